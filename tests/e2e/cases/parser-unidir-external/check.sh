# The record's dump in the log (level 8) shows what the parser stored.
actual=$(awk -v h='-- UniDirAssociation (Uses) --' 'index($0, h) { f = 1; sub(/^.* - [^ ]+ +/, "") } f { print } /^$/ { if (f) exit }' validator.log)
[[ "$actual" == "$(cat expected_dump)" ]] || { echo "dump differs:"; echo "$actual"; exit 1; }
