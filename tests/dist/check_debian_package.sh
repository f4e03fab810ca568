#!/usr/bin/env bash
# Builds the Debian package with CPack in a scratch folder and inspects it:
# file name, control data (name, version, architecture, the runtime
# libraries in Depends), the files it installs and their modes, and that the
# unpacked executable runs from the PATH and the unpacked pkg-config file
# points into the unpacked tree.
#
# usage: check_debian_package.sh BUILD_DIR WORK_DIR SOURCE_DIR VERSION MAN_PAGE_NAME
set -u
build=$1 work=$2 src=$3 version=$4 man=$5
source "$(dirname "$0")/dist_support.sh"

rm -rf "$work"
mkdir -p "$work"
if ! cpack -G DEB --config "$build/CPackConfig.cmake" -B "$work/out" > "$work/cpack.log" 2>&1; then
    cat "$work/cpack.log"
    fail "cpack -G DEB failed"
    finish
fi

arch=$(dpkg --print-architecture)
debs=("$work"/out/*.deb)
expect_same_text "package files" "$work/out/zef-model-validator_${version}_${arch}.deb" "${debs[*]}"
deb=${debs[0]}
[[ -f $deb ]] || finish

field() { dpkg-deb -f "$deb" "$1"; }
expect_same_text "Package" "zef-model-validator" "$(field Package)"
expect_same_text "Version" "$version" "$(field Version)"
expect_same_text "Architecture" "$arch" "$(field Architecture)"
[[ -n $(field Maintainer) ]] || fail "no Maintainer"
[[ $(field Description) == "validator for management information models"* ]] ||
    fail "Description: $(field Description)"

# Depends: the package names, without version constraints or alternatives.
depends=$(field Depends | tr ',|' '\n\n' | sed -e 's/(.*)//' -e 's/[[:space:]]//g' | sed '/^$/d' | sort -u)
for needed in libpocofoundation80 libpocoxml80 libc6 libstdc++6; do
    grep -qxF "$needed" <<< "$depends" || fail "Depends lacks $needed: $(field Depends)"
done

# The files, with the same layout as an installation below /usr.
expected=$(expected_installed_files "$src" "$man" | sed 's|^|usr/|')
actual=$(dpkg-deb --fsys-tarfile "$deb" | tar -t | sed 's|^\./||' | grep -v '/$' | LC_ALL=C sort)
expect_same_text "files of the package" "$expected" "$actual"
listing=$(dpkg-deb -c "$deb")
while read -r mode _ _ _ _ path; do
    [[ $mode == d* ]] && continue
    case $path in
        ./usr/bin/*) want=-rwxr-xr-x ;;
        *) want=-rw-r--r-- ;;
    esac
    [[ $mode == "$want" ]] || fail "mode of $path is $mode, expected $want"
done <<< "$listing"
grep -q ' root/root ' <<< "$listing" || fail "files are not owned by root: $listing"

# Unpacked, the executable runs from the PATH with the system's libraries.
root="$work/root"
dpkg-deb -x "$deb" "$root" || fail "dpkg-deb -x failed"
missing=$(ldd "$root/usr/bin/zef_model_validator" | grep 'not found')
expect_same_text "libraries the loader cannot find" "" "$missing"
stdout=$(cd "$work" && TMPDIR="$work" ZEF_VALIDATOR_LOGGING_FNAME="$work/validator.log" \
         PATH="$root/usr/bin:$PATH" zef_model_validator -v 2>&1)
status=$?
expect_same_text "exit status of zef_model_validator -v" 0 "$status"
grep -qF -- "$version" <<< "$stdout" || fail "zef_model_validator -v does not print $version: $stdout"

cflags=$(PKG_CONFIG_LIBDIR="$root/usr/share/pkgconfig" pkg-config --cflags zef_model_validator 2>&1)
include_dir=${cflags#-I}
expect_same_text "folder named by the packaged pkg-config file" \
    "$(realpath "$root/usr/include/zef_model_validator")" "$(realpath -m "${include_dir%% *}")"

finish
