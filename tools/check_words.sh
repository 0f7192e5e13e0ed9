#!/usr/bin/env bash
# Checks that no file and no commit refers to a paper, a program or a machine that is not in this repository.
set -euo pipefail
cd "$(dirname "$0")/.."

# The letters in brackets keep the patterns from finding themselves.
patterns='\b(spe[c]s?|spe[c]ifications?)\b|\bpar[t] [0-9]+(\.[0-9]+)*\b|\bV[B]6?\b|\bVisual Basi[c]\b'
patterns+='|\b(legac[y]|origina[l]) (program|system|application|code|version|software)|\bre-?implemen[t]'
patterns+='|\bissu[e] #?[0-9]+\b|/(wor[k]|far[m]|roo[t])/|\bdeb\.debia[n]\b|\bregistry\.npmj[s]\b'

# grep's status 1 means that nothing was found; anything higher is an error.
in_files=$(git grep -nIiE "$patterns" -- . ':!*.svg') || [ $? = 1 ]
in_commits=$(git log --format='%h %s%n%b' | grep -iE "$patterns") || [ $? = 1 ]
[ -z "$in_files$in_commits" ] || { cut -c1-160 <<<"$in_files"$'\n'"$in_commits"; exit 1; }
