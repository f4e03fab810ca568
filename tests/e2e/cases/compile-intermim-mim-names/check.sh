# Both containments found their classes in the two MOMs.
actual=$(grep -a -E ' - [^ ]+ +-- InterMim|^ParentMoc|^ChildMoc' validator.log | sed -E 's/^.* - [^ ]+ +//')
expected='-- InterMimContainment (RY) --
ParentMoc:          M~1~R
ChildMoc:           N~2~Y
-- InterMimContainment (RX) --
ParentMoc:          M~1~R
ChildMoc:           N~2~X'
[[ "$actual" == "$expected" ]] || { echo "containments differ:"; echo "$actual"; exit 1; }
