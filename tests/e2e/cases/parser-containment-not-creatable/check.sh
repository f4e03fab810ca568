# The containment dumps show the rights: RA cannot be created, RB not deleted.
actual=$(grep -a -E ' - [^ ]+ +-- Containment|^(CanCreate|CanDelete)' validator.log | sed -E 's/^.* - [^ ]+ +//')
expected='-- Containment (RA) --
CanCreate:         0
CanDelete:         1
-- Containment (RB) --
CanCreate:         1
CanDelete:         0'
[[ "$actual" == "$expected" ]] || { echo "rights differ:"; echo "$actual"; exit 1; }
