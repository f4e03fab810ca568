#!/usr/bin/env bash
# Runs one end-to-end case against the real executable.
#
# usage: run_case.sh EXECUTABLE CASE_DIR WORK_DIR BUILD_DIR
#
# The case folder is copied to WORK_DIR/run and the executable runs there, so
# relative model paths work and the sources are never touched. Files of a case:
#   args              one command-line argument per line (optional)
#   env               KEY=VALUE lines to export, "-KEY" lines to unset (optional)
#   setup.sh          run with bash in the run folder before the executable (optional)
#   expected_stdout   the exact standard output
#   expected_status   the exit status the shell sees
#   expected_stderr   the exact standard error (optional)
#   stderr_contains   lines each of which must occur in standard error (optional)
#   log_contains      lines each of which must occur in the log file (optional)
#   log_lacks         lines none of which may occur in the log file (optional)
#   log_file          the log path when the case moves it (optional; default @LOG@)
#   check.sh          run with bash in the run folder afterwards; non-zero fails (optional)
#   bounds            "seconds=N" and "memory_mib=M" lines: the run must end within
#                     N seconds of wall time (it is killed then) and its peak
#                     resident memory stay within M MiB (optional)
#   ulimit            "file_kib=N": the executable (with its wrapper and the
#                     bounded run) gets a file size limit of N KiB (ulimit -f),
#                     set in its own subshell only; its standard output and
#                     error reach the runner through pipes, so the limit cuts
#                     only the files the run writes itself (optional)
# setup.sh and check.sh see the build folder as $E2E_BUILD.
# Environment of the runner itself (optional):
#   ZEF_E2E_WRAPPER      a command put before the executable, split at blanks
#                        (for example "valgrind -q --error-exitcode=99")
#   ZEF_E2E_BOUND_SCALE  a whole factor applied to both bounds (slower builds)
#   ZEF_E2E_STATS        a file to which each bounded run appends
#                        "<case> seconds=... memory_kib=... timed_out=..."
# Placeholders in every file: @WORK@ the run folder, @LOG@ the default log
# path (@WORK@/validator.log), @BUILD@ the build folder.
set -u

exe=$1
case_dir=$2
work=$3
build=$4
run="$work/run"

rm -rf "$work"
mkdir -p "$work"
cp -a "$case_dir" "$run"
mkdir -p "$run/tmp"
log_default="$run/validator.log"

subst() {
    sed -e "s|@WORK@|$run|g" -e "s|@LOG@|$log_default|g" -e "s|@BUILD@|$build|g" "$1"
}

args=()
if [[ -f "$case_dir/args" ]]; then
    while IFS= read -r line || [[ -n "$line" ]]; do
        args+=("$line")
    done < <(subst "$case_dir/args")
fi

# A clean, predictable environment for every case.
unset ZEF_LOGGING_FNAME ZEF_LOGGING_LEVEL ZEF_LOGGING_FMAXSIZE ZEF_LOGGING_FMAXCOUNT ZEF_VALIDATOR_LOGGING_LEVEL
unset ZEF_VALIDATOR_MAX_FILE_SIZE ZEF_VALIDATOR_MAX_DEPTH ZEF_VALIDATOR_MAX_ENTITY_EXPANSION \
      ZEF_VALIDATOR_MAX_PATTERN_LENGTH ZEF_VALIDATOR_MAX_PATTERN_REPEAT ZEF_VALIDATOR_MAX_PATTERN_SIZE \
      ZEF_VALIDATOR_MAX_PATTERN_VALUE ZEF_VALIDATOR_MAX_PATTERN_TIME ZEF_VALIDATOR_MAX_PATTERN_MEMORY \
      ZEF_VALIDATOR_MAX_PATTERN_TOTAL_TIME
export TMPDIR="$run/tmp"
export USER=tester
export ZEF_VALIDATOR_LOGGING_FNAME="$log_default"
if [[ -f "$case_dir/env" ]]; then
    while IFS= read -r line || [[ -n "$line" ]]; do
        [[ -z "$line" ]] && continue
        if [[ "$line" == -* ]]; then
            unset "${line#-}"
        else
            export "${line%%=*}=${line#*=}"
        fi
    done < <(subst "$case_dir/env")
fi

cd "$run" || exit 1
# setup.sh and check.sh find the build folder (plug-ins, tools) here.
export E2E_BUILD="$build"
if [[ -f "$case_dir/setup.sh" ]]; then
    bash "$case_dir/setup.sh" || { echo "setup.sh failed"; exit 1; }
fi

wrapper=()
if [[ -n "${ZEF_E2E_WRAPPER:-}" ]]; then
    read -r -a wrapper <<< "$ZEF_E2E_WRAPPER"
fi
max_seconds=""
max_mib=""
command=("${wrapper[@]}" "$exe" "${args[@]}")
if [[ -f "$case_dir/bounds" ]]; then
    scale=${ZEF_E2E_BOUND_SCALE:-1}
    max_seconds=$(( $(sed -n 's/^seconds=//p' "$case_dir/bounds") * scale ))
    max_mib=$(( $(sed -n 's/^memory_mib=//p' "$case_dir/bounds") * scale ))
    command=("$build/bin/zef_bounded_run" "$max_seconds" "$work/stats" "${command[@]}")
fi
file_kib=""
if [[ -f "$case_dir/ulimit" ]]; then
    file_kib=$(sed -n 's/^file_kib=//p' "$case_dir/ulimit")
fi
if [[ -n "$file_kib" ]]; then
    mkfifo "$work/stdout.pipe" "$work/stderr.pipe"
    cat "$work/stdout.pipe" > "$work/stdout" &
    stdout_reader=$!
    cat "$work/stderr.pipe" > "$work/stderr" &
    stderr_reader=$!
    ( ulimit -f "$file_kib" && exec "${command[@]}" ) \
        > "$work/stdout.pipe" 2> "$work/stderr.pipe" < /dev/null
    status=$?
    wait "$stdout_reader" "$stderr_reader"
else
    "${command[@]}" > "$work/stdout" 2> "$work/stderr" < /dev/null
    status=$?
fi

fail=0
report() { echo "FAIL: $*"; fail=1; }

if [[ -n "$max_seconds" ]]; then
    stats=$(cat "$work/stats" 2>/dev/null)
    [[ -n "${ZEF_E2E_STATS:-}" ]] && echo "$(basename "$case_dir") $stats" >> "$ZEF_E2E_STATS"
    if [[ "$stats" != *"timed_out=0"* ]]; then
        report "did not end within $max_seconds s ($stats)"
    fi
    kib=$(sed -n 's/.*memory_kib=\([0-9]*\).*/\1/p' <<< "$stats")
    if [[ -z "$kib" || "$kib" -gt $(( max_mib * 1024 )) ]]; then
        report "peak memory above $max_mib MiB ($stats)"
    fi
fi

subst "$case_dir/expected_stdout" > "$work/expected_stdout"
if ! cmp -s "$work/expected_stdout" "$work/stdout"; then
    report "standard output differs (expected vs actual):"
    diff "$work/expected_stdout" "$work/stdout"
fi

expected_status=$(subst "$case_dir/expected_status" | tr -d '[:space:]')
if [[ "$status" != "$expected_status" ]]; then
    report "exit status $status, expected $expected_status"
fi

if [[ -f "$case_dir/expected_stderr" ]]; then
    subst "$case_dir/expected_stderr" > "$work/expected_stderr"
    if ! cmp -s "$work/expected_stderr" "$work/stderr"; then
        report "standard error differs (expected vs actual):"
        diff "$work/expected_stderr" "$work/stderr"
    fi
fi

check_lines() { # file-with-expected-lines haystack want(yes/no) what
    local line
    while IFS= read -r line || [[ -n "$line" ]]; do
        [[ -z "$line" ]] && continue
        if grep -qF -- "$line" "$2" 2>/dev/null; then
            [[ "$3" == no ]] && report "$4 holds unexpected text: $line"
        else
            [[ "$3" == yes ]] && report "$4 lacks: $line"
        fi
    done < <(subst "$1")
}

if [[ -f "$case_dir/stderr_contains" ]]; then
    check_lines "$case_dir/stderr_contains" "$work/stderr" yes "standard error"
fi

log_file="$log_default"
if [[ -f "$case_dir/log_file" ]]; then
    log_file=$(subst "$case_dir/log_file" | head -n 1)
fi
if [[ -f "$case_dir/log_contains" ]]; then
    check_lines "$case_dir/log_contains" "$log_file" yes "log $log_file"
fi
if [[ -f "$case_dir/log_lacks" ]]; then
    check_lines "$case_dir/log_lacks" "$log_file" no "log $log_file"
fi

if [[ -f "$case_dir/check.sh" ]]; then
    if ! bash "$case_dir/check.sh"; then
        report "check.sh failed"
    fi
fi

if [[ $fail -ne 0 ]]; then
    echo "--- stderr ---"
    cat "$work/stderr"
    exit 1
fi
exit 0
