#!/usr/bin/env bash
# Builds a plug-in against the installed tree with the flags of pkg-config,
# as a plug-in author does, and loads it with the installed executable's -p
# option: once as a static validator, once as a library without the entry
# function. Then builds the example plug-ins the same way and runs them on the
# example model set through the installed executable.
#
# usage: check_plugin_build.sh PREFIX WORK_DIR PLUGIN_SOURCE C_COMPILER VERSION EXAMPLES_DIR
set -u
prefix=$1 work=$2 plugin_src=$3 cc=$4 version=$5 examples=$6
source "$(dirname "$0")/dist_support.sh"

rm -rf "$work"
mkdir -p "$work"
cd "$work" || exit 1
exe="$prefix/bin/zef_model_validator"
export PKG_CONFIG_PATH="$prefix/share/pkgconfig"
export PKG_CONFIG_LIBDIR="$prefix/share/pkgconfig"
export TMPDIR="$work"
export ZEF_VALIDATOR_LOGGING_FNAME="$work/validator.log"

if ! cflags=$(pkg-config --cflags zef_model_validator); then
    fail "pkg-config does not know zef_model_validator below $prefix"
    finish
fi
# shellcheck disable=SC2086 # the flags are words
"$cc" -shared -fPIC -std=c99 -pedantic -Wall -Wextra -Werror $cflags \
    -o probe.so "$plugin_src" || fail "the plug-in does not build against the installed headers"
# shellcheck disable=SC2086
"$cc" -shared -fPIC -std=c99 -pedantic -Wall -Wextra -Werror $cflags -DZEF_PROBE_WITHOUT_ENTRY \
    -o noentry.so "$plugin_src" || fail "the library without entry does not build"
(( failures > 0 )) && finish

nm -D --defined-only probe.so | grep -q ' T getZefOamApiStaticValidatorInterface$' ||
    fail "probe.so does not export getZefOamApiStaticValidatorInterface"

# Options act in order: -p loads the plug-in, -v then ends the run.
export ZEF_DIST_PROBE_MARK="$work/probe.mark"
stdout=$(PATH="$prefix/bin:$PATH" zef_model_validator -p ./probe.so -v 2> stderr)
status=$?
expect_same_text "exit status of -p ./probe.so -v" 0 "$status"
grep -qF -- "$version" <<< "$stdout" || fail "-p ./probe.so -v does not print the version: $stdout"
grep -q 'Failed to open\|is not valid\|is not a static validator' <<< "$stdout" &&
    fail "probe.so was refused: $stdout"
expect_same_text "marks of the entry function" "entry called" "$(cat probe.mark 2>/dev/null)"
expect_same_text "standard error of -p ./probe.so -v" "" "$(cat stderr)"

rm -f probe.mark
stdout=$("$exe" -p ./noentry.so -v 2> stderr)
status=$?
expect_same_text "exit status of -p ./noentry.so -v" 0 "$status"
expect_same_text "output of -p ./noentry.so -v (first two lines)" \
    "WARNING:
    File  \"./noentry.so\" is not a static validator and was ignored." \
    "$(head -n 2 <<< "$stdout")"
[[ -e probe.mark ]] && fail "noentry.so left a mark"

for example in naming_check mom_list; do
    # shellcheck disable=SC2086
    "$cc" -shared -fPIC -std=c99 -pedantic -Wall -Wextra -Werror $cflags \
        -o "$example.so" "$examples/plugins/$example.c" ||
        fail "the example plug-in $example.c does not build against the installed headers"
done
(( failures > 0 )) && finish
stdout=$("$exe" -q -p ./naming_check.so -p ./mom_list.so "$examples"/multi/*.xml 2> stderr)
status=$?
expect_same_text "exit status of the example plug-ins on the example model" 0 "$status"
expect_same_text "output of the example plug-ins on the example model (quiet)" \
    "    Model seems valid, for more info see the log: '$work/validator.log'." "$stdout"
expect_same_text "standard error of the example plug-ins" "" "$(cat stderr)"
grep -qF 'NamingCheck(1.0) - Validation result: Checked 6 classes, 21 attributes and 3 actions.' validator.log ||
    fail "the log lacks the naming check's result"
grep -qF 'MomList(1.0) - Validation result: MOMs: Common 1.0, Element 2.1, Transport 1.3, Sync 1.0' validator.log ||
    fail "the log lacks the MOM list's result"

finish
