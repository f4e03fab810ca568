#!/usr/bin/env bash
# Builds the fuzz target of the model load cycle with clang (libFuzzer,
# AddressSanitizer, UndefinedBehaviorSanitizer) into ./build-fuzz and runs it
# for a bounded time on a seed corpus of the project's own model files.
#
# usage: scripts/fuzz.sh [SECONDS]   (default 60)
# ZEF_FUZZ_BUILD names another build folder.
#
# The corpus grows in build-fuzz/fuzz-corpus and is kept between runs. An
# input that crashes, leaks or hangs the target is written to
# build-fuzz/fuzz-artifacts/ and the script fails; fix the fault and keep the
# input in tests/fuzz/regressions/, which the test suite replays.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-60}
build=${ZEF_FUZZ_BUILD:-build-fuzz}

CC=clang CXX=clang++ cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DZEF_FUZZ=ON -DZEF_SANITIZE=ON -DZEF_BUILD_TESTS=OFF > /dev/null
cmake --build "$build" -j"$(nproc)" --target zef_model_fuzzer

build=$(cd "$build" && pwd)
seeds=$build/fuzz-seeds
corpus=$build/fuzz-corpus
artifacts=$build/fuzz-artifacts
scratch=$build/fuzz-scratch
rm -rf "$seeds" "$scratch"
mkdir -p "$seeds" "$corpus" "$artifacts" "$scratch"
# Every model file of the project below 64 KiB: examples, end-to-end cases
# and the kept regressions.
find examples tests/e2e/cases tests/fuzz/regressions -type f -name '*.xml' -size -64k -print0 |
  while IFS= read -r -d '' file; do
    cp "$file" "$seeds/$(printf '%s' "$file" | tr '/' '_')"
  done

TMPDIR="$scratch" "$build/bin/zef_model_fuzzer" \
  -max_total_time="$seconds" -max_len=65536 -timeout=30 -rss_limit_mb=2048 \
  -artifact_prefix="$artifacts/" -print_final_stats=1 \
  "$corpus" "$seeds"
