#!/usr/bin/env bash
# The JSON report holds every finding of the summary, in its order, with the
# place of its element in the model files (checked against the files), its
# rule and identity key.
set -eu
here=$(dirname "${BASH_SOURCE[0]}")
python3 "$here/../../report_check.py" json report.json
diff expected_report.json report.json
