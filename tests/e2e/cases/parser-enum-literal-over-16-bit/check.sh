# The enum dump lists the literals that the enum kept, with their values.
expected='    -- Literal (ON) -- 
    value:         1
    -- Literal (LOW) -- 
    value:         -32768'
actual=$(awk '/-- Enum \(State\)--/{f=1} f&&/Literal|value:/{print} /^$/{if(f)exit}' validator.log)
[[ "$actual" == "$expected" ]] || { echo "literals differ:"; echo "$actual"; exit 1; }
