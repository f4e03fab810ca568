# The dump of the int8 type shows both ranges in order; the string type's
# dump shows its first length range.
ranges=$(awk '/-- Ddt \(Level\)--/{f=1} f&&/ValueRange|min:|max:/{print} /^$/{if(f)exit}' validator.log)
expected='    -- ValueRange -- 
    min:         1
    max:         5
    -- ValueRange -- 
    min:         10
    max:         20'
[[ "$ranges" == "$expected" ]] || { echo "ranges differ:"; echo "$ranges"; exit 1; }
lengths=$(awk '/-- Ddt \(Label\)--/{f=1} f&&/StringLength/{print} /^$/{if(f)exit}' validator.log)
expected='StringLengthMin:         1
StringLengthMax:         8'
[[ "$lengths" == "$expected" ]] || { echo "length range differs:"; echo "$lengths"; exit 1; }
