#!/usr/bin/env bats
# Every fragment, with each sample argument, is accepted by the device-tree compiler without a word, and merges.

bats_require_minimum_version 1.5.0

setup() {
    load catalogue.bash
    cd -- "$BATS_TEST_TMPDIR" || return
}

# compile NAME: NAME.dts to NAME.dtbo. What the compiler says is left in NAME.log; it must not say anything.
compile() {
    dtc -I dts -O dtb -o "$1.dtbo" "$1.dts" 2>"$1.log" && [[ ! -s $1.log ]]
}

# Rows that are broken may hide each other: each is compiled alone, to name them all.
report_rows() {
    local platform=$1 number
    for number in $("$CATALOGUE_ROWS" numbers "$platform"); do
        "$CATALOGUE_ROWS" overlay "$platform" "$number" >row.dts
        compile row || printf '%s, row %s:\n%s\n' "$platform" "$number" "$(<row.log)" >&2
    done
    fail "$platform has fragments that do not compile as they should" "$(<"$platform.log")"
}

# A tree with all labels that the overlay refers to.
make_base() {
    local label
    printf '/dts-v1/;\n/ {\n'
    while IFS= read -r label; do
        printf '\t%s: %s { };\n' "$label" "$label"
    done < <(fdtget -p "$1.dtbo" /__fixups__)
    printf '};\n'
}

merge() {
    local platform=$1 untouched
    make_base "$platform" >base.dts
    dtc -@ -I dts -O dtb -o base.dtb base.dts
    fdtoverlay -i base.dtb -o merged.dtb "$platform.dtbo" || fail "$platform does not merge"
    dtc -q -I dtb -O dts -o merged.dts merged.dtb
    # Of its own a node of the base has a phandle and nothing else.
    untouched=$(grep -A2 -P '^\t\w+ \{$' merged.dts | grep -A1 -P '^\t\tphandle' | grep -c -P '^\t\};$' || :)
    ((untouched == 0)) || fail "$platform: nothing was merged into $untouched nodes"
}

@test "fragments of all platforms compile and merge" {
    local platform fragments checked=0
    for platform in "${BY_POSITION[@]}" "${BY_ID[@]}"; do
        "$CATALOGUE_ROWS" overlay "$platform" >"$platform.dts"
        fragments=$(grep -c '^# 1 ' "$platform.dts")
        compile "$platform" || report_rows "$platform"
        merge "$platform"
        checked=$((checked + fragments))
    done
    echo "$checked fragments"
    ((checked > 4000))
}

@test "a broken fragment is found and named" {
    CATALOGUE_ROWS=$BATS_TEST_TMPDIR/rows
    cat >"$CATALOGUE_ROWS" <<'END'
#!/bin/bash
[[ $1 == overlay ]] || exec seq 3
fragment=('' '&chosen { a = <1>; };' '&chosen { node@1 { a; };' '&chosen { node@2 { a; }; };')
printf '/dts-v1/;\n/plugin/;\n'
for row in ${3:-1 2 3}; do printf '/ { };\n# 1 "px row %s"\n%s\n' "$row" "${fragment[row]}"; done
END
    chmod +x "$CATALOGUE_ROWS"
    "$CATALOGUE_ROWS" overlay px >px.dts
    run ! compile px
    run report_rows px
    ((status == 1))
    [[ $output == *'px, row 2:'*'syntax error'* ]]
    [[ $output == *'px, row 3:'*'Warning'* ]]
    [[ $output != *'row 1:'* ]]
}
