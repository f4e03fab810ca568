# Every line rotates the log: at most five numbered files, all named
# validator.log.<digits>; the files beside them are left alone.
set -e
n=$(ls | grep -c '^validator\.log\.[0-9][0-9]*$')
[ "$n" -ge 1 ] && [ "$n" -le 5 ] || { echo "numbered files: $n"; exit 1; }
for f in validator.log-1 validator.logx.2 notes.1 other.log.3; do
  [ "$(cat "$f")" = keep ] || { echo "$f was touched"; exit 1; }
done
