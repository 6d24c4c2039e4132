# What the scripts of this folder share. A check that fails says so and the script goes on; `finish` gives
# the verdict. The names in capitals come from CMakeLists.txt.
# shellcheck shell=bash
set -u

work=$(mktemp -d)
# shellcheck disable=SC2154
trap 'rm -rf "$work"' EXIT
failures=0

# check SENTENCE COMMAND...: the command must succeed.
check() {
    local sentence=$1 output
    shift
    if ! output=$("$@" 2>&1); then
        printf 'FAILED: %s\n%s\n' "$sentence" "$output"
        failures=$((failures + 1))
    fi
}

# check_equal SENTENCE EXPECTED FOUND
check_equal() {
    if [ "$2" != "$3" ]; then
        printf 'FAILED: %s\n' "$1"
        diff <(printf '%s\n' "$2") <(printf '%s\n' "$3") | sed 's/^</expected:/; s/^>/found:   /'
        failures=$((failures + 1))
    fi
}

# What the build failed to do ends the script: nothing after it would mean anything.
must() {
    "$@" >"$work/must.log" 2>&1 && return
    echo "FAILED: $*"
    cat "$work/must.log"
    exit 1
}

files_under() {
    (cd "$1" && find . ! -type d | sed 's|^\./||' | LC_ALL=C sort)
}

finish() {
    echo "$failures checks failed"
    rm -f "${TEST_PREMATURE_EXIT_FILE:-}"
    [ "$failures" -eq 0 ]
}
