# Each class dump in the log shows its one attribute with the stored default.
expected='    Name:              a
    DefaultValue:      true
    Name:              b
    DefaultValue:      true
    Name:              c
    DefaultValue:      false
    Name:              d
    DefaultValue:      false'
actual=$(grep -E '^    (Name|DefaultValue): ' validator.log | head -n 8)
[[ "$actual" == "$expected" ]] || { echo "stored defaults differ:"; echo "$actual"; exit 1; }
