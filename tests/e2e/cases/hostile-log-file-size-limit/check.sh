# The failure is told once, the old log keeps its content, and the lines of
# the run reached standard error from the first one on.
set -e
[ "$(grep -c 'Failed to write log file' ../stderr)" = 1 ] || { echo "failure not told exactly once"; exit 1; }
cmp validator.log old.log
grep -q "Couldn't get mom id, mom version is NULL" ../stderr || { echo "first error line missing"; exit 1; }
