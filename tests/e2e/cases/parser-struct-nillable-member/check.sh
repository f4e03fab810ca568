# The struct dump shows the bounds of each member.
actual=$(awk '/-- Struct \(Address\) --/{f=1} f&&/Struct Member|Multiplicity/{print} /^$/{if(f)exit}' validator.log)
expected='    -- Struct Member (street) --
    MultiplicityMin:   0
    MultiplicityMax:   1
    -- Struct Member (city) --
    MultiplicityMin:   1
    MultiplicityMax:   1'
[[ "$actual" == "$expected" ]] || { echo "member bounds differ:"; echo "$actual"; exit 1; }
