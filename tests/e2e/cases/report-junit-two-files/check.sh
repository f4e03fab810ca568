#!/usr/bin/env bash
# One test case per model file, failed by its errors, with its warnings as
# output; every place checked against the model files.
set -eu
here=$(dirname "${BASH_SOURCE[0]}")
python3 "$here/../../report_check.py" junit report.xml
diff expected_report.xml report.xml
