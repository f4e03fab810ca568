# The link planted at the default log name is neither followed nor replaced.
set -e
[ "$(cat precious.txt)" = precious ] || { echo "precious.txt was written"; exit 1; }
[ -L tmp/zef_model_validator_tester.log ] || { echo "the link is gone"; exit 1; }
