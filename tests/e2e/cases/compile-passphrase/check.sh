# Both keys are typed by the one substitute, which is no passphrase; the
# passphrase type itself stays, and so does the type of R's non-key attribute.
actual=$(grep -a -E 'DerivedDatatype:|isPassphrase:| - [^ ]+ +-- (Ddt|Moc)' validator.log | sed -E 's/^.* - [^ ]+ +//')
expected='-- Moc (A)--
    DerivedDatatype:   M~1~M~1~Secret_forPassphraseMOCKey_StructKey
-- Moc (R)--
    DerivedDatatype:   M~1~M~1~Secret_forPassphraseMOCKey_StructKey
    DerivedDatatype:   M~1~Secret
-- Ddt (M~1~Secret_forPassphraseMOCKey_StructKey)--
isPassphrase:      false
-- Ddt (Secret)--
isPassphrase:      true'
[[ "$actual" == "$expected" ]] || { echo "types differ:"; echo "$actual"; exit 1; }
