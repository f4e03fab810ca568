#!/usr/bin/env bash
# The model file is as the case holds it, and no report was written.
set -eu
cmp -s a.xml a.xml.orig || { echo "a.xml was changed"; exit 1; }
[[ ! -e r.json ]] || { echo "a report file was left"; exit 1; }
