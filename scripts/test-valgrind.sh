#!/usr/bin/env bash
# Runs the end-to-end cases of broken and hostile input (every case named
# hostile-*, the log-* cases and parser-two-models-elements) with the
# executable under valgrind's memcheck. Each case must still print what it
# expects and end with its status, within its time and memory bounds scaled
# for the slower run (ZEF_E2E_BOUND_SCALE, default 4); a memcheck error or a
# leak makes valgrind end the run with status 99, which fails the case.
# Builds into ./build as scripts/build.sh does; ZEF_VALGRIND_BUILD names
# another build folder. Needs valgrind (scripts/bootstrap.sh installs it).
set -euo pipefail
cd "$(dirname "$0")/.."
build=${ZEF_VALGRIND_BUILD:-build}
cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo > /dev/null
cmake --build "$build" -j"$(nproc)"
export ZEF_E2E_BOUND_SCALE=${ZEF_E2E_BOUND_SCALE:-4}
export ZEF_E2E_WRAPPER="valgrind -q --error-exitcode=99 --leak-check=full \
--show-leak-kinds=definite,indirect,possible --errors-for-leak-kinds=definite,indirect,possible"
ctest --test-dir "$build" --output-on-failure -j"$(nproc)" -R '^e2e\.(hostile-|log-|parser-two-models-elements$)'
