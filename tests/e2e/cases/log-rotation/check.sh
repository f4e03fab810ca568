# Small files: the run's trace rotates, keeping two numbered files.
set -e
ls validator.log validator.log.* > files.txt
test -f validator.log
n=$(ls validator.log.* | wc -l)
[ "$n" -le 2 ] || { echo "too many numbered files: $n"; exit 1; }
[ "$n" -ge 1 ] || { echo "no rotation happened"; exit 1; }
