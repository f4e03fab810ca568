#!/usr/bin/env bash
# Without --strict a failed load without errors passes; the report tells the
# file that failed and the one never read.
set -eu
here=$(dirname "${BASH_SOURCE[0]}")
python3 "$here/../../report_check.py" json report.json
diff expected_report.json report.json
