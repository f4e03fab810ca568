# The dumps show the base type of each derived type: the first primitive, or
# none.
actual=$(grep -a -E ' - [^ ]+ +-- Ddt|^Type:' validator.log | sed -E 's/^.* - [^ ]+ +//')
expected='-- Ddt (Nothing)--
Type:              0
-- Ddt (Reference)--
Type:              0
-- Ddt (Small)--
Type:              1'
[[ "$actual" == "$expected" ]] || { echo "base types differ:"; echo "$actual"; exit 1; }
