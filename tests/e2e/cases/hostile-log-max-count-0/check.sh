# A max count of 0 keeps no numbered file; the files beside the log stay.
set -e
n=$(ls | grep -c '^validator\.log\.' || true)
[ "$n" -eq 0 ] || { echo "numbered files: $n"; exit 1; }
for f in validator.log-1 notes.1; do
  [ "$(cat "$f")" = keep ] || { echo "$f was touched"; exit 1; }
done
