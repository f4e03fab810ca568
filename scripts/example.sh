#!/usr/bin/env bash
# Installs the dependencies, builds, and validates the bundled example model.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/bootstrap.sh
scripts/build.sh
build/bin/zef_model_validator -d examples/multi
