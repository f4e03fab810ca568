#!/usr/bin/env bash
# Installs the build into a scratch prefix and checks the installed tree:
# every file and nothing else, the files' contents, and that the pkg-config
# file and the manual page work from there.
#
# usage: check_install_tree.sh BUILD_DIR PREFIX SOURCE_DIR VERSION MAN_PAGE_NAME
set -u
build=$1 prefix=$2 src=$3 version=$4 man=$5
source "$(dirname "$0")/dist_support.sh"

rm -rf "$prefix"
mkdir -p "$(dirname "$prefix")"
if ! cmake --install "$build" --prefix "$prefix" > "$prefix.install.log" 2>&1; then
    cat "$prefix.install.log"
    fail "cmake --install failed"
    finish
fi

expected=$(expected_installed_files "$src" "$man")
actual=$(cd "$prefix" && find . \( -type f -o -type l \) | sed 's|^\./||' | LC_ALL=C sort)
expect_same_text "installed files" "$expected" "$actual"

exe="$prefix/bin/zef_model_validator"
[[ -x "$exe" ]] || fail "$exe is not executable"

for header in "$src"/include/*.h; do
    cmp -s "$header" "$prefix/include/zef_model_validator/${header##*/}" ||
        fail "installed ${header##*/} differs from include/${header##*/}"
done
cmp -s "$src/contrib/bash-completion/zef_model_validator" \
       "$prefix/share/bash-completion/completions/zef_model_validator" ||
    fail "installed completion differs from contrib/bash-completion/zef_model_validator"

# The manual page: gzipped, release filled in, found by man, no groff warning.
page="$prefix/share/man/man1/$man"
if [[ "$man" == *.gz ]]; then
    page_text=$(gzip -dc "$page") || fail "$page is not gzip data"
else
    page_text=$(cat "$page")
fi
grep -q "^\.TH ZEF_MODEL_VALIDATOR 1 .*\"zef_model_validator $version\"" <<< "$page_text" ||
    fail "the title line of the installed manual page lacks the release $version"
grep -q '@PROJECT_VERSION@' <<< "$page_text" && fail "the installed manual page holds a placeholder"
warnings=$(groff -man -ww -z <<< "$page_text" 2>&1)
expect_same_text "groff warnings of the installed manual page" "" "$warnings"
rendered=$(MANPAGER=cat MANWIDTH=80 man -M "$prefix/share/man" zef_model_validator 2> "$prefix.man.err")
grep -q 'ZEF_VALIDATOR_LOGGING_FNAME' <<< "$rendered" ||
    fail "man -M PREFIX/share/man zef_model_validator does not show the page: $(cat "$prefix.man.err")"

# pkg-config, pointed at the scratch prefix only.
export PKG_CONFIG_PATH="$prefix/share/pkgconfig"
export PKG_CONFIG_LIBDIR="$prefix/share/pkgconfig"
modversion=$(pkg-config --modversion zef_model_validator 2>&1)
expect_same_text "pkg-config --modversion" "$version" "$modversion"
cflags=$(pkg-config --cflags zef_model_validator 2>&1)
case $cflags in
    -I*) include_dir=${cflags#-I}; include_dir=${include_dir%% *} ;;
    *) include_dir= ; fail "pkg-config --cflags gives no include folder: $cflags" ;;
esac
if [[ -n $include_dir ]]; then
    expect_same_text "folder named by pkg-config --cflags" \
        "$(realpath "$prefix/include/zef_model_validator")" "$(realpath -m "$include_dir")"
fi
validator=$(pkg-config --variable=validator zef_model_validator 2>&1)
expect_same_text "executable named by pkg-config --variable=validator" \
    "$(realpath "$exe")" "$(realpath -m "$validator")"
symbol=$(pkg-config --variable=entrysymbol zef_model_validator 2>&1)
expect_same_text "pkg-config --variable=entrysymbol" "getZefOamApiStaticValidatorInterface" "$symbol"
libs=$(pkg-config --libs zef_model_validator 2>&1)
expect_same_text "pkg-config --libs (a plug-in links nothing of ours)" "" "$libs"

finish
