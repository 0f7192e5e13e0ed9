# shellcheck shell=bash
# For scripts that run checks one after the other, whatever fails: check COMMAND ..., and count_checks at the end, whose status is
# that of all of them.

passed=0
failed=0

check() {
  echo "== $*"
  local begin=$SECONDS
  if "$@"; then
    passed=$((passed + 1))
    echo "== passed in $((SECONDS - begin)) s"
  else
    failed=$((failed + 1))
    echo "== FAILED: $*"
  fi
}

count_checks() {
  echo "$passed passed, $failed failed"
  [ "$failed" = 0 ]
}
