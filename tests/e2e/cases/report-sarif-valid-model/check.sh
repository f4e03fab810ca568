#!/usr/bin/env bash
# A valid model: a complete SARIF log with its artifact and no result.
set -eu
here=$(dirname "${BASH_SOURCE[0]}")
python3 "$here/../../report_check.py" sarif report.sarif
[[ -z $(python3 "$here/../../report_check.py" results report.sarif) ]] || { echo "results in the log"; exit 1; }
grep -q '"results": \[\]' report.sarif
grep -q '"uri": "a.xml",' report.sarif
