# The record's dump in the log (level 8) shows what the parser stored.
actual=$(awk -v h='-- Bidirectional Association (Link) --' 'index($0, h) { f = 1; sub(/^.* - [^ ]+ +/, "") } f { print } /^$/ { if (f) exit }' validator.log)
[[ "$actual" == "$(cat expected_dump)" ]] || { echo "dump differs:"; echo "$actual"; exit 1; }
# The second end keeps its bounds and its reserving flag.
actual=$(awk '/-- Association end \(a\)/ { f = 1; sub(/^.* - [^ ]+ +/, "") } f && /^(Lower|Upper|IsReserving|IsRestricted|Identifier|Classifier)/ { print } /^$/ { f = 0 }' validator.log)
expected='Identifier         Link
Classifier         A
Lower:               0
Upper:               8
IsReserving:         1
IsRestricted:        0'
[[ "$actual" == "$expected" ]] || { echo "end a differs:"; echo "$actual"; exit 1; }
