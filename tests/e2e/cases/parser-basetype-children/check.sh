# The dumps show the base type of each derived type: the first primitive, or
# none.
actual=$(grep -a -E 'traceRecords +-- Ddt|^Type:' validator.log | sed 's/^.*traceRecords *//')
expected='-- Ddt (Nothing)--
Type:              0
-- Ddt (Reference)--
Type:              0
-- Ddt (Small)--
Type:              1'
[[ "$actual" == "$expected" ]] || { echo "base types differ:"; echo "$actual"; exit 1; }
