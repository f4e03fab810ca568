# Every plug-in runs, in load order, a failing one included.
expected=$'Rejecting check\nRejecting finish\nInforming check\nInforming finish'
[[ "$(cat calls)" == "$expected" ]] || { echo "calls:"; cat calls; exit 1; }
