#!/usr/bin/env bash
# Builds everything with AddressSanitizer and UndefinedBehaviorSanitizer into
# ./build-sanitize and runs every test through CTest; any report of either
# sanitizer fails its test. The time and memory bounds of the end-to-end
# cases are scaled for the slower build (ZEF_E2E_BOUND_SCALE, default 4).
# Needs the packages of scripts/bootstrap.sh (scripts/test.sh installs them).
# ZEF_SANITIZE_BUILD names another build folder.
set -euo pipefail
cd "$(dirname "$0")/.."
build=${ZEF_SANITIZE_BUILD:-build-sanitize}
cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DZEF_SANITIZE=ON > /dev/null
cmake --build "$build" -j"$(nproc)"
export ZEF_E2E_BOUND_SCALE=${ZEF_E2E_BOUND_SCALE:-4}
export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=1:abort_on_error=0:exitcode=86}
export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1:exitcode=87}
ctest --test-dir "$build" --output-on-failure -j"$(nproc)"
