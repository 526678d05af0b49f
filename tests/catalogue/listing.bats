#!/usr/bin/env bats
# The listings say what the tables hold, and a device finds its own table.

setup() {
    load catalogue.bash
}

# same_listing PLATFORM GROUPS OPTION...: the listing that the options ask for shows the rows of the groups.
same_listing() {
    local platform=$1 groups
    read -r -a groups <<<"$2"
    shift 2
    diff <("$CATALOGUE_ROWS" listing "$platform" "${groups[@]}") <("$HWKNOBS" --plat="$platform" list "$@") ||
        fail "$platform: list $* differs from the table"
}

@test "list shows the rows of every table" {
    local platform
    for platform in "${BY_POSITION[@]}" "${BY_ID[@]}"; do
        same_listing "$platform" ''
    done
}

@test "list shows the rows of the groups that are asked for" {
    local platform
    for platform in "${BY_ID[@]}"; do
        same_listing "$platform" 'KERNEL GPU' -g GPU --group=KERNEL
        same_listing "$platform" DPSW --group DPSW
    done
}

@test "list takes no notice of groups where the table has none" {
    local platform
    for platform in "${BY_POSITION[@]}"; do
        same_listing "$platform" '' --group=CPU
    done
}

@test "plat-list shows the platforms in their order" {
    diff <(printf '%s\n' 'Support platform' "${BY_POSITION[@]/#/$'\t'}" "${BY_ID[@]/#/$'\t'}") <("$HWKNOBS" plat-list)
}

detected() {
    tool "$1" list | sed -n '1s/.*(arch \([^)]*\)).*/\1/p'
}

@test "each hardware code detects its platform, from either place" {
    local platform code tried=0 by_file=$BATS_TEST_TMPDIR/by_file by_chipid=$BATS_TEST_TMPDIR/by_chipid
    device create "$by_file" --plat-code 0
    device create "$by_chipid" --chipid 0
    while read -r platform _ code; do
        printf '%s\n' "$code" >"$by_file/proc/chip/hw_code"
        [[ $(detected "$by_file") == "$platform" ]] || fail "hw_code $code is not $platform"
        # Five words; the code stands in the second.
        printf -v code '%04x' "$((16#$code))"
        printf '%b' '\0\0\0\0' "\\x${code:2}\\x${code:0:2}" '\0\0\0\0\0\0\0\0\0\0\0\0\0\0' \
            >"$by_chipid/proc/device-tree/chosen/atag,chipid"
        [[ $(detected "$by_chipid") == "$platform" ]] || fail "chipid with $code is not $platform"
        tried=$((tried + 1))
    done < <("$CATALOGUE_ROWS" platforms)
    ((tried == 24))
}
