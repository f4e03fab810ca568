#!/usr/bin/env bash
# The plug-in results are results of the log; the run itself succeeded and
# ends with 247.
set -eu
here=$(dirname "${BASH_SOURCE[0]}")
python3 "$here/../../report_check.py" sarif report.sarif
python3 "$here/../../report_check.py" results report.sarif | diff expected_results -
grep -q '"executionSuccessful": true,' report.sarif
grep -q '"exitCode": 247' report.sarif
