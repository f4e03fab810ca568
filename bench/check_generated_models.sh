#!/usr/bin/env bash
# Checks the model set generator against the real validator.
#
# usage: check_generated_models.sh PYTHON GENERATOR VALIDATOR WORK_DIR
#
# 1. A small set of several files and MOMs validates with "Model seems valid"
#    and exit status 0.
# 2. The same seed writes byte-identical files.
# 3. A set with planted errors (every kind at least once) exits with 255 and
#    its summary lists exactly the messages the generator expects, nothing else.
set -u

python=$1
generator=$2
validator=$3
work=$4

rm -rf "$work"
mkdir -p "$work/tmp"
export TMPDIR="$work/tmp"
export USER=tester
unset ZEF_LOGGING_FNAME ZEF_LOGGING_LEVEL ZEF_LOGGING_FMAXSIZE ZEF_LOGGING_FMAXCOUNT
export ZEF_VALIDATOR_LOGGING_FNAME="$work/validator.log"
export ZEF_VALIDATOR_LOGGING_LEVEL=4

fail=0
report() { echo "FAIL: $*"; fail=1; }

small=(--size-mb 0.5 --classes-per-mom 12 --seed 7)

"$python" "$generator" --out "$work/valid" "${small[@]}" || { echo "generator failed"; exit 1; }
files=$(ls "$work/valid"/*.xml | wc -l)
moms=$(cat "$work/valid"/*.xml | grep -c "<mim ")
[[ $files -ge 3 ]] || report "expected several files, got $files"
[[ $moms -ge 4 ]] || report "expected several MOMs, got $moms"
grep -q "<interMim>" "$work"/valid/*.xml || report "no inter-MOM containment generated"
grep -q "<biDirectionalAssociation>" "$work"/valid/*.xml || report "no bidirectional association generated"
grep -q "<uniDirectionalAssociation>" "$work"/valid/*.xml || report "no unidirectional association generated"
[[ -s "$work/valid/planted_errors.txt" ]] && report "a set without planted errors lists some"

"$validator" -d "$work/valid" > "$work/valid.stdout" 2> "$work/valid.stderr"
status=$?
[[ $status -eq 0 ]] || report "valid set: exit status $status, expected 0"
grep -qxF "    Model seems valid, for more info see the log: '$ZEF_VALIDATOR_LOGGING_FNAME'." "$work/valid.stdout" \
    || { report "valid set: no \"Model seems valid\" line"; cat "$work/valid.stdout"; }

"$python" "$generator" --out "$work/again" "${small[@]}" > /dev/null || { echo "generator failed"; exit 1; }
diff -r "$work/valid" "$work/again" > /dev/null || report "the same seed gave different files"

"$python" "$generator" --out "$work/planted" "${small[@]}" --plant-errors 10 || { echo "generator failed"; exit 1; }
expected_count=$(wc -l < "$work/planted/planted_errors.txt")
[[ $expected_count -ge 10 ]] || report "10 planted errors list only $expected_count messages"
# Without -q the summary shows warnings too, so none can hide.
"$validator" -d "$work/planted" > "$work/planted.stdout" 2> "$work/planted.stderr"
status=$?
[[ $status -eq 255 ]] || report "planted set: exit status $status, expected 255"
sed -n 's/^    \(ERROR, \|WARNING, \)/\1/p' "$work/planted.stdout" | sort > "$work/planted.actual"
sort "$work/planted/planted_errors.txt" > "$work/planted.expected"
if ! cmp -s "$work/planted.expected" "$work/planted.actual"; then
    report "planted set: summary differs from the planted errors (expected vs actual):"
    diff "$work/planted.expected" "$work/planted.actual"
fi

exit $fail
