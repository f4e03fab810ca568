#!/usr/bin/env bash
# A run that ends abnormally still leaves its report: the file it stopped at
# failed, and the status is the 255 the run ends with.
set -eu
here=$(dirname "${BASH_SOURCE[0]}")
python3 "$here/../../report_check.py" json report.json
diff expected_report.json report.json
