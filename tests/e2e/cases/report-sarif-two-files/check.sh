#!/usr/bin/env bash
# The SARIF log has the properties SARIF 2.1.0 and code-scanning services
# need, every result on the line of its element in the model files (checked
# against the files), named relative to the run folder.
set -eu
here=$(dirname "${BASH_SOURCE[0]}")
python3 "$here/../../report_check.py" sarif report.sarif
python3 "$here/../../report_check.py" results report.sarif | diff expected_results -
