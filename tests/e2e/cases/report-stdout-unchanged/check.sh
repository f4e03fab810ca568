#!/usr/bin/env bash
# The report options add a report and change nothing else: the same run
# without them prints the same standard output, byte for byte, and ends with
# the same status; so do the quiet runs with and without a report.
set -eu
status=0
"$ZEF_TEST_VALIDATOR" shop.xml stock.xml > plain.out 2> plain.err || status=$?
cmp ../stdout plain.out
[[ $status -eq 255 && ! -s plain.err ]]

status=0
"$ZEF_TEST_VALIDATOR" -q shop.xml stock.xml > quiet.out 2> quiet.err || status=$?
[[ $status -eq 255 ]]
for format in json sarif junit; do
    status=0
    "$ZEF_TEST_VALIDATOR" -q "--report-format=$format" "--report-file=quiet.$format" shop.xml stock.xml \
        > "quiet-$format.out" 2>&1 || status=$?
    cmp quiet.out "quiet-$format.out"
    [[ $status -eq 255 && -s "quiet.$format" ]]
done
