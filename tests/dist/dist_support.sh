# Helpers shared by the installation and packaging checks (sourced).

failures=0

# Records a failed expectation; the script goes on so that one run shows all.
fail() {
    echo "FAIL: $*"
    failures=$((failures + 1))
}

# Exits with the outcome of the expectations checked so far.
finish() {
    if (( failures > 0 )); then
        echo "$failures expectation(s) failed"
        exit 1
    fi
    echo "all expectations met"
    exit 0
}

# Prints the files the installed tree must hold, relative to the prefix,
# sorted: the executable, the public headers of the source tree's include/
# folder, the manual page, the completion and the pkg-config file.
# usage: expected_installed_files SOURCE_DIR MAN_PAGE_NAME
expected_installed_files() {
    local src=$1 man=$2 header
    {
        echo "bin/zef_model_validator"
        for header in "$src"/include/*.h; do
            echo "include/zef_model_validator/${header##*/}"
        done
        echo "share/man/man1/$man"
        echo "share/bash-completion/completions/zef_model_validator"
        echo "share/pkgconfig/zef_model_validator.pc"
    } | LC_ALL=C sort
}

# Compares two texts and reports the difference under a title.
# usage: expect_same_text TITLE EXPECTED ACTUAL
expect_same_text() {
    if [[ "$2" != "$3" ]]; then
        fail "$1 (expected vs actual):"
        diff <(printf '%s\n' "$2") <(printf '%s\n' "$3")
    fi
}
