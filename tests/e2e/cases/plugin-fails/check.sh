# finish follows a failed check too.
[[ "$(cat calls)" == $'Rejecting check\nRejecting finish' ]] || { echo "calls:"; cat calls; exit 1; }
