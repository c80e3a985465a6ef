# Sourced by the scripts. For --help, prints the comment at the head of the script and exits.

usage() { sed -n '2,/^[^#]/s/^# \{0,1\}//p' "$0"; }
# refuse MESSAGE: exits with one line for an invalid command line.
refuse() { echo "$(basename "$0"): $* (see --help)" >&2; exit 2; }

for argument in "$@"; do
  case $argument in -h | --help) usage; exit 0 ;; esac
done
