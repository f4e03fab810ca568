#!/usr/bin/env bash
# The manual page renders without a groff warning, both the source and the
# page with its release filled in, and documents every option, exit status,
# environment variable and the log file rotation.
#
# usage: check_man_page.sh SOURCE_PAGE BUILT_PAGE VERSION
set -u
source_page=$1 built_page=$2 version=$3
source "$(dirname "$0")/dist_support.sh"

for page in "$source_page" "$built_page"; do
    warnings=$(groff -man -ww -z "$page" 2>&1)
    status=$?
    expect_same_text "groff -man -ww -z $page" "" "$warnings"
    expect_same_text "exit status of groff for $page" 0 "$status"
done

grep -q "^\.TH ZEF_MODEL_VALIDATOR 1 .*\"zef_model_validator $version\"" "$built_page" ||
    fail "the title line of $built_page lacks the release $version"

text=$(groff -man -Tascii -P-cbou "$built_page" 2>&1)
# Every word of the page's reference, one per line.
words=$(tr -s ' \t' '\n\n' <<< "$text")
expect_word() {
    grep -qxF -- "$1" <<< "$(sed 's/[,.;:)]*$//; s/^(//' <<< "$words")" || fail "the page lacks the word $1"
}
expect_phrase() {
    grep -qF -- "$1" <<< "$(tr -s ' \n' '  ' <<< "$text")" || fail "the page lacks the text: $1"
}

for option in -h --help -v --version -d --directory -c --config -p --plugins -m --mainroot -q --quiet \
              --list-rules --report-format=format --report-file=report; do
    expect_word "$option"
done
for variable in ZEF_VALIDATOR_LOGGING_FNAME ZEF_VALIDATOR_LOGGING_LEVEL USER TMPDIR \
                ZEF_LOGGING_FMAXSIZE ZEF_LOGGING_FMAXCOUNT ZEF_LOGGING_LEVEL ZEF_LOGGING_FNAME \
                ZEF_VALIDATOR_MAX_FILE_SIZE ZEF_VALIDATOR_MAX_DEPTH ZEF_VALIDATOR_MAX_ENTITY_EXPANSION \
                ZEF_VALIDATOR_MAX_PATTERN_LENGTH ZEF_VALIDATOR_MAX_PATTERN_REPEAT ZEF_VALIDATOR_MAX_PATTERN_SIZE \
                ZEF_VALIDATOR_MAX_PATTERN_VALUE ZEF_VALIDATOR_MAX_PATTERN_TIME ZEF_VALIDATOR_MAX_PATTERN_MEMORY \
                ZEF_VALIDATOR_MAX_PATTERN_TOTAL_TIME; do
    expect_word "$variable"
done

# Section headings.
for heading in NAME SYNOPSIS DESCRIPTION OPTIONS OUTPUT REPORTS "EXIT STATUS" ENVIRONMENT "LOG FILE" LIMITS \
               PLUG-INS EXAMPLES; do
    grep -qx -- "$heading" <<< "$text" || fail "the page lacks the section $heading"
done

# Exit statuses, with the load failure that still exits 0.
section() { sed -n "/^$1\$/,/^[A-Z][A-Z -]*\$/p" <<< "$text" | tr -s ' \n' '  '; }
exit_section=$(section "EXIT STATUS")
for status in 0 247 255 134; do
    grep -q "  $status  " <<< " $exit_section " || grep -q " $status " <<< "$exit_section" ||
        fail "EXIT STATUS lacks $status"
done
grep -qF "when loading failed (Failed to load model files.) without any ERROR finding" <<< "$exit_section" ||
    fail "EXIT STATUS does not say that a failed load without ERROR findings exits 0"

# Defaults of the environment variables.
environment=$(section ENVIRONMENT)
for default in "Default: 8" "Default: /tmp" "Default: 5242880" "Default: 5." "Default: 6." \
               "Default: \$TMPDIR/zef.log or /tmp/zef.log" "Default: the word user when the log goes to /tmp; nothing when TMPDIR is set"; do
    grep -qF -- "$default" <<< "$environment" || fail "ENVIRONMENT lacks \"$default\""
done

# Log file names and rotation.
expect_phrase '$TMPDIR//zef_model_validator_$USER.log'
expect_phrase '/tmp/zef_model_validator_$USER.log'
expect_phrase 'named after it: NAME.1, NAME.2, ...'
expect_phrase 'beside the active log file, in the same folder'
expect_phrase 'Rotation renames and deletes only files named exactly NAME.digits'
expect_phrase 'Default: 268435456 (256 MiB).'

# The plug-in contract and an example run.
expect_phrase 'getZefOamApiStaticValidatorInterface(void);'
expect_phrase 'cc -shared -fPIC $(pkg-config --cflags zef_model_validator)'
expect_phrase '$ zef_model_validator -p ./myplugin.so model.xml'
expect_phrase 'myplugin(1.0) - Validation of model succeeded'

finish
