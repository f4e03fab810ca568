#!/usr/bin/env bash
# Installs the dependencies, builds, and times the validator against a bare
# parse of generated model sets of about 1, 4, 16, 32 and 64 MB (see
# bench/README.md). Extra arguments go to bench/run_benchmark.py, for
# example --rounds 9 or --sizes 1,4,16.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/bootstrap.sh
scripts/build.sh
bench/run_benchmark.py --build build "$@"
