#!/usr/bin/env bash
# A valid model: its file read, no finding.
set -eu
here=$(dirname "${BASH_SOURCE[0]}")
python3 "$here/../../report_check.py" json report.json
diff expected_report.json report.json
