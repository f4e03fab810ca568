#!/usr/bin/env bash
# The bash completion parses, registers itself for zef_model_validator, and
# completes options, model files, list files, directories and libraries in a
# scratch folder.
#
# usage: check_completion.sh COMPLETION_SCRIPT WORK_DIR
set -u
script=$1 work=$2
source "$(dirname "$0")/dist_support.sh"

bash -n "$script" || { fail "bash -n $script"; finish; }

rm -rf "$work"
mkdir -p "$work/models/deep" "$work/plugins" "$work/with blank"
touch "$work/a.xml" "$work/b.xml" "$work/list.txt" "$work/c.XML" "$work/lib.so" \
      "$work/models/m.xml" "$work/plugins/p.so" "$work/plugins/q.so.1" "$work/with blank/w.xml"
cd "$work" || exit 1

# shellcheck source=/dev/null
source "$script"
expect_same_text "registration" "complete -F _zef_model_validator zef_model_validator" \
    "$(complete -p zef_model_validator 2>&1)"

# Completes the words given (the last is the one being completed) and
# compares the sorted candidates with the expected ones, which are joined
# by "|" (file names may hold blanks).
# usage: expect_completion "EXPECTED|CANDIDATES" WORD...
expect_completion() {
    local expected=$1
    shift
    COMP_WORDS=(zef_model_validator "$@")
    COMP_CWORD=$(( ${#COMP_WORDS[@]} - 1 ))
    COMP_LINE="${COMP_WORDS[*]}"
    COMP_POINT=${#COMP_LINE}
    COMPREPLY=()
    _zef_model_validator
    local actual
    actual=$(printf '%s\n' "${COMPREPLY[@]}" | sed '/^$/d' | LC_ALL=C sort | paste -sd '|')
    expected=$(tr '|' '\n' <<< "$expected" | sed '/^$/d' | LC_ALL=C sort | paste -sd '|')
    expect_same_text "completion of '$*'" "$expected" "$actual"
}

# Options, short and long.
expect_completion "--config" --c
expect_completion "--version" --ver
expect_completion "--directory" --d
expect_completion "--mainroot" --m
expect_completion "--help" --h
expect_completion "--plugins" --pl
expect_completion "--quiet" --q
expect_completion "--list-rules" --l
expect_completion "--report-format=|--report-file=" --rep
expect_completion "--strict|--strict=warnings" --st
expect_completion "--help|--version|--directory|--config|--plugins|--mainroot|--quiet|--list-rules|--report-format=|--report-file=|--strict|--strict=warnings" --
expect_completion "-h|-v|-d|-c|-p|-m|-q|--help|--version|--directory|--config|--plugins|--mainroot|--quiet|--list-rules|--report-format=|--report-file=|--strict|--strict=warnings" -
expect_completion "-q" -q
expect_completion "" --x
# Model files: *.xml (case as the command sees it) and directories.
expect_completion "a.xml|b.xml|models|plugins|with blank" ""
expect_completion "a.xml" a
expect_completion "models/m.xml|models/deep" models/
expect_completion "a.xml|b.xml|models|plugins|with blank" -q ""
# -c: any file, and directories.
expect_completion "a.xml|b.xml|list.txt|c.XML|lib.so|models|plugins|with blank" -c ""
expect_completion "lib.so|list.txt" --config l
expect_completion "list.txt" --config = lis
expect_completion "list.txt" --config=lis
# -d: directories only.
expect_completion "models|plugins|with blank" -d ""
expect_completion "models/deep" --directory models/
expect_completion "models/deep" --directory = models/
# -p: shared libraries and directories.
expect_completion "lib.so|models|plugins|with blank" -p ""
expect_completion "plugins/p.so" -p plugins/
expect_completion "plugins/p.so" --plugins = plugins/
# -m: a class name, nothing to offer.
expect_completion "" -m ""
# The report options: formats, any file, and the level of --strict after "=" only.
expect_completion "json|junit|sarif" --report-format ""
expect_completion "sarif" --report-format = s
expect_completion "junit|json" --report-format=j
expect_completion "list.txt" --report-file = lis
expect_completion "warnings" --strict = ""
expect_completion "warnings" --strict=w
expect_completion "a.xml" --strict a
# After --, model files only, even for words that look like options.
expect_completion "a.xml|b.xml|models|plugins|with blank" -- ""
expect_completion "" -- -
# A folder with a blank in its name.
expect_completion "with blank/w.xml" "with blank/"

finish
