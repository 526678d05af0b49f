#!/usr/bin/env bats
# What is selected on a device is read back from it as the same items. The tables with ids are tried: what the others
# hold cannot be read back.

setup() {
    load catalogue.bash
    cd -- "$BATS_TEST_TMPDIR" || return
    # In memory where that can be had: each writing of the partition waits for the disk.
    dev=$(mktemp -d -p /dev/shm || mktemp -d)
    device create "$dev" --plat-code 0
}

teardown() {
    rm -rf -- "$dev"
}

# become PLATFORM: makes the device one of that platform.
become() {
    platform=$1
    "$CATALOGUE_ROWS" platforms | awk -v name="$1" '$1 == name { print $3 }' >"$dev/proc/chip/hw_code"
}

# The tool, of which only failures are worth to be seen.
quietly() {
    local said
    said=$(tool "$dev" "$@") || fail "$platform: $1 failed" "$said"
}

# stored_is ITEM-WORD...: the device holds these items, in this order, and their bootloader settings.
stored_is() {
    diff <("$CATALOGUE_ROWS" stored "$platform" "$@") <(tool "$dev" status --partition | sed 's/^\(== dts\) (.*/\1 ==/') ||
        fail "$platform: what is read back differs from what was set"
}

# The numbers of the rows without argument, neither in the order of the table nor of the ids.
plain_rows() {
    mapfile -t items < <("$CATALOGUE_ROWS" plain "$platform" | cut -d' ' -f1 | sort -r)
    ((${#items[@]} > 150))
}

@test "rows without argument, all at once, and one more" {
    local name items
    for name in "${BY_ID[@]}"; do
        become "$name"
        plain_rows
        quietly set "${items[@]:1}"
        stored_is "${items[@]:1}"
        quietly set -m "${items[0]}"
        stored_is "${items[@]:1}" "${items[0]}"
    done
}

@test "rows without argument by their names" {
    local items
    become "${BY_ID[-1]}"
    plain_rows
    mapfile -t names < <("$CATALOGUE_ROWS" plain "$platform" | sort -r | cut -d' ' -f2)
    quietly setname "${names[@]}"
    stored_is "${items[@]}"
}

@test "rows with each argument that can be read back" {
    local name round items
    for name in "${BY_ID[@]}"; do
        become "$name"
        for ((round = 0; ; round++)); do
            "$CATALOGUE_ROWS" arguments "$platform" "$round" >words
            read -r -d '' -a items <words || :
            ((${#items[@]})) || break
            quietly set "${items[@]}"
            stored_is "${items[@]}"
        done
        # The lowest and the highest number at least.
        ((round >= 2))
    done
}
