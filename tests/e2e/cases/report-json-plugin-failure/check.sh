#!/usr/bin/env bash
# Each plug-in's result is in the report; the failure is an error finding of
# the plug-in, its information a note, and the exit status is 247.
set -eu
here=$(dirname "${BASH_SOURCE[0]}")
python3 "$here/../../report_check.py" json report.json
diff expected_report.json report.json
