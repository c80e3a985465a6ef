#!/usr/bin/env bash
# Checks that every script has --help, and refuses an unknown option in one line.
set -uo pipefail
cd "$(dirname "$0")/../.." || exit

failed=0
complain() { echo "$*" >&2; failed=1; }
for script in scripts/*; do
  [[ -f $script ]] || continue
  said=$(timeout 10 "$script" --help </dev/null) || complain "$script --help fails"
  [[ ${#said} -gt 40 ]] || complain "$script --help says: $said"
  said=$(timeout 10 "$script" --nonsense </dev/null 2>&1 >/dev/null)
  [[ $? -eq 2 && $said == *"'--nonsense'"* && $(wc -l <<<"$said") -eq 1 ]] ||
    complain "$script --nonsense says: $said"
done
exit $failed
