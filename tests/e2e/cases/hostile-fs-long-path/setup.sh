# A path longer than any the system takes (PATH_MAX is 4096).
p=$(printf 'd%.0s' $(seq 250))
printf '%s' "$p" > segment
