#!/usr/bin/env bash
# Checks the rule catalog against the sources: every template a finding is
# reported with belongs to exactly one rule of the catalog the executable
# lists, at the severity the call reports, and every rule is reported.
#
# usage: check_rule_templates.sh EXECUTABLE SOURCE_DIR WORK_DIR
set -eu
exe=$1
src=$2
work=$3
mkdir -p "$work"
"$exe" --list-rules > "$work/rules.txt"
python3 "$src/tests/rules/finding_templates.py" "$src" --rules "$work/rules.txt"
