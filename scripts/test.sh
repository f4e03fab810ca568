#!/usr/bin/env bash
# Installs the dependencies, builds, and runs every test through CTest.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/bootstrap.sh
scripts/build.sh
ctest --test-dir build --output-on-failure -j"$(nproc)"
