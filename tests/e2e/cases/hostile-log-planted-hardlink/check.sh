# A second name of another file, planted at the default log name, is not written into.
set -e
[ "$(cat precious.txt)" = precious ] || { echo "precious.txt was written"; exit 1; }
