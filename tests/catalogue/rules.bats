#!/usr/bin/env bats
# A table with a broken row does not build, and the compiler's message tells the row and the rule.

load ../device

setup() { cd "$BATS_TEST_TMPDIR" || return; }

# compile FILE: as many errors as there are; a compiler of one kind stops at the 20th, and each has its own option.
compile() {
    local no_limit=-fmax-errors=0
    if "${CXX:-c++}" --version | grep -q clang; then no_limit=-ferror-limit=0; fi
    "${CXX:-c++}" -std=c++20 "$no_limit" -I"$tests/../hwknobs" -fsyntax-only "$1" 2>&1
}

# tables <CASES: a line "RULE ROW..." each. The broken row of a rule's nth case stands behind n good ones, so that the
# number in the message tells the cases apart, which are all compiled together.
tables() {
    local table=0 n i rule row
    local -A cases
    echo '#include "hwknobs_plat/catalogue/table.h"'
    echo 'using namespace catalogue;'
    echo '#define X10 "xxxxxxxxxx"'
    echo '#define X30 X10 X10 X10'
    echo '#define X330 X30 X30 X30 X30 X30 X30 X30 X30 X30 X30 X30'
    echo '#define X986 X330 X330 X30 X30 X30 X30 X30 X30 X30 X30 X30 X30 X10 X10 "xxxxxx"'
    while read -r rule row; do
        n=$((++cases[$rule]))
        printf 'constexpr row rows_%d[] = {\n' $((++table))
        echo '    {900, {HRT, "good", "A good row", both("g", "1", "&good { a; b; };"), choice{"good"}}},'
        for ((i = 1; i < n; i++)); do
            printf '    {%d, {HRT, "good_%d", "A good row", dt("&good { a%d; };")}},\n' $((900 + i)) "$i" "$i"
        done
        printf '    %s};\nconstinit const hwknobs_plat table_%d = version_2<rows_%d>("px0000");\n' "$row" "$table" "$table"
    done
}

@test "good rows build" {
    grep -v '^#' "$data/good_rows.txt" | tables >good.cpp
    expect 0 "" compile good.cpp
}

@test "a broken row is told with its rule" {
    grep -v '^#' "$data/broken_rows.txt" >cases.txt
    tables <cases.txt >broken.cpp
    run -1 compile broken.cpp
    local -A cases
    while read -r rule row; do
        grep -qE "row_keeps_rules<$((++cases[$rule])), .*rule::$rule>" <<<"$output" || fail "not told: $rule $row"
    done <cases.txt
    # Every rule is tried.
    sed -n '/^enum class rule {/,/^}/s/^    \([a-z_0-9]*\),$/\1/p' "$tests/../hwknobs/hwknobs_plat/catalogue/rules.h" |
        diff <(cut -d' ' -f1 cases.txt | sort -u) <(grep -v '^none$' | sort)
}
