#!/usr/bin/env bash
# No file and no commit points a reader to a paper, a program or a machine that does not come with this repository.
set -euo pipefail
cd "$(dirname "$0")/.."

# A letter in brackets keeps a pattern from finding itself.
patterns='\b(spe[c]s?|spe[c]ifications?)\b|\bpar[t] [0-9]+(\.[0-9]+)*\b|\bV[B]6?\b|\bVisual Basi[c]\b'
patterns+='|\b(legac[y]|origina[l]) (program|system|application|code|version|software)|\bre-?implemen[t]'
patterns+='|\bissu[e] #?[0-9]+\b|/(wor[k]|far[m]|roo[t])/|\bdeb\.debia[n]\b|\bregistry\.npmj[s]\b'

# grep's status 1 is "nothing found"; anything above is trouble of its own.
in_files=$(git grep -nIiE "$patterns" -- . ':!*.svg') || [ $? = 1 ]
in_commits=$(git log --format='%h %s%n%b' | grep -iE "$patterns") || [ $? = 1 ]
[ -z "$in_files$in_commits" ] || { cut -c1-160 <<<"$in_files"$'\n'"$in_commits"; exit 1; }
