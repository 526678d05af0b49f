# Shared by the scripts that try the catalogue with the tool, the compiler and the virtual device.
# shellcheck shell=bash
# Not -u: bats itself does not stand it.
set -eo pipefail

HWKNOBS_TOP=$(cd -- "$BATS_TEST_DIRNAME/../.." && pwd)
export HWKNOBS=${HWKNOBS:-$HWKNOBS_TOP/build/release/hwknobs/hwknobs}
CATALOGUE_ROWS=${CATALOGUE_ROWS:-$HWKNOBS_TOP/build/release/tests/catalogue/catalogue_rows}

device() {
    "$HWKNOBS_TOP/device/device" "$@"
}

fail() {
    printf '%s\n' "$@" >&2
    return 1
}

# platforms VERSION: the names of those with tables of that version, in their order.
platforms() {
    "$CATALOGUE_ROWS" platforms | awk -v version="$1" '$2 == version { print $1 }'
}

# tool DIR WORD...: runs the tool in the device.
tool() {
    local dir=$1
    shift
    device run "$dir" hwknobs "$@"
}

[[ -x $HWKNOBS && -x $CATALOGUE_ROWS ]] || fail "build first: $HWKNOBS, $CATALOGUE_ROWS"
mapfile -t BY_POSITION < <(platforms 0)
mapfile -t BY_ID < <(platforms 2)
((${#BY_POSITION[@]} == 16 && ${#BY_ID[@]} == 8)) || fail 'there are 16 tables without ids, and 8 with them'
