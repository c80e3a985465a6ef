# Sourced by the scripts. --help prints the comment at the head of the script, and ends it.

usage() { sed -n '2,/^[^#]/s/^# \{0,1\}//p' "$0"; }
# refuse MESSAGE: one line, for a command line that the script does not understand.
refuse() { echo "$(basename "$0"): $* (see --help)" >&2; exit 2; }

for argument in "$@"; do
  case $argument in -h | --help) usage; exit 0 ;; esac
done
