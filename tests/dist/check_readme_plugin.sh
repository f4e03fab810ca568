#!/usr/bin/env bash
# The README shows the example plug-in examples/plugins/mom_list.c in full;
# the code there must be the file, line for line, so that what readers copy
# is what the build compiles and the end-to-end cases run.
#
# usage: check_readme_plugin.sh SOURCE_DIR
set -u
source_dir=$1
source "$(dirname "$0")/dist_support.sh"

# The file as the README indents it: four blanks before every non-empty line.
expected=$(sed -e 's/^\(.\)/    \1/' "$source_dir/examples/plugins/mom_list.c")
readme=$(cat "$source_dir/README.md")
if [[ "$readme" != *"$expected"* ]]; then
    fail "README.md does not show examples/plugins/mom_list.c as it is"
fi
finish
