# The class dumps (A before R: key order) show the multiplicity of each sequence.
expected='    Name:              t
    Type:              9
    MultiplicityMin:   0
    MultiplicityMax:   32767
    IsOrdered:         0
    IsUnique:          1
    Name:              s
    Type:              3
    MultiplicityMin:   2
    MultiplicityMax:   5
    IsOrdered:         1
    IsUnique:          0'
# Only the two sequence attributes: the lines of each from its name on.
actual=$(grep -E '^    (Name|Type|MultiplicityMin|MultiplicityMax|IsOrdered|IsUnique): ' validator.log \
    | awk '/^    Name: +[ts]$/ { keep = 6 } keep > 0 { print; keep-- }')
[[ "$actual" == "$expected" ]] || { echo "sequence bounds differ:"; echo "$actual"; exit 1; }
