# check, then finish, once each.
[[ "$(cat calls)" == $'Silent check\nSilent finish' ]] || { echo "calls:"; cat calls; exit 1; }
