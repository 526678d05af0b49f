#!/usr/bin/env bats
# A table with a broken row does not build, and the compiler's message tells the row and the rule.

# The header is compiled once for all cases.
setup_file() {
    load catalogue.bash
    cd -- "$BATS_FILE_TMPDIR" || return
    echo '#include "hwknobs_plat/catalogue/table.h"' >table.h
    compile -x c++-header table.h -o table.h.gch
}

setup() {
    load catalogue.bash
    cd -- "$BATS_FILE_TMPDIR" || return
    echo 'using namespace catalogue;' >cases.cpp
    cases=()
}

# As many errors as there are: a compiler of one kind stops at the 20th, and each has its own option against it.
compile() {
    local no_limit=-fmax-errors=0
    if "${CXX:-c++}" --version | grep -q clang; then no_limit=-ferror-limit=0; fi
    "${CXX:-c++}" -std=c++20 "$no_limit" -I"$HWKNOBS_TOP/hwknobs" "$@"
}

# build ROWS [VERSION]: a table of these rows, which the compiler checks like any other.
build() {
    local rows=$1 version=${2-2}
    cat >case.cpp <<END
using namespace catalogue;
constexpr hwknobs_config rows[] = {
$rows
};
constinit const hwknobs_plat table = version_$version<rows>("px0000");
END
    compile -include table.h -fsyntax-only case.cpp
}

# tells ROW RULE: the compiler said that the row breaks the rule.
tells() {
    [[ $output == *"row_keeps_rules<$1, catalogue::rule::$2>"* ]]
}

broken_rules() {
    echo 'The compiler told of:'
    grep -o 'row_keeps_rules<[0-9][^>]*>' <<<"$output" | sort -u -V
}

# refused ROW RULE ROWS [VERSION]
refused() {
    run build "${@:3}"
    ((status != 0)) || fail "builds: $3"
    tells "$1" "$2" || fail "row $1 should break the rule $2:" "$3" "$(broken_rules)"
}

# good_rows COUNT
good_rows() {
    local i
    for ((i = 0; i < $1; i++)); do
        printf '    dt(%d, HRT, "good_%d", "A good row", "&chosen { good; };"),\n' $((900 + i)) "$i"
    done
}

# row RULE ROW: a case for rows_are_refused. The broken row of the nth case stands behind n good ones: the number
# tells the cases apart, which are all compiled together.
row() {
    cases+=("$1" "$2")
    local number=$((${#cases[@]} / 2))
    printf 'constexpr hwknobs_config rows_%d[] = {\n%s\n    %s,\n};\n' "$number" "$(good_rows "$number")" "$2"
    printf 'constinit const hwknobs_plat table_%d = version_2<rows_%d>("px0000");\n' "$number" "$number"
} >>cases.cpp

rows_are_refused() {
    local i
    run compile -include table.h -fsyntax-only cases.cpp
    ((status != 0))
    for ((i = 0; i < ${#cases[@]}; i += 2)); do
        tells $((i / 2 + 1)) "${cases[i]}" ||
            fail "row $((i / 2 + 1)) should break the rule ${cases[i]}:" "${cases[i + 1]}" "$(broken_rules)"
    done
}

long_text() {
    printf "%$1s" '' | tr ' ' x
}

@test "good tables build" {
    build "$(good_rows 3)
        dt(1, CPU, \"$(long_text 40)\", \"$(long_text 72)\", R\"(&a { b = <1>, \"x\"; };)\"),
        env(1023, TOOL, \"a_0\", \"Text, (with) [signs] -1 % (1 s) & <more>\", \"Key_1\", \"a-B,_9\"),
        both(2, GPU, \"both\", \"Both halves\", \"k\", \"\", \"&a { b = \\\"100%%\\\"; };\"),
        dt_arg(3, LPM, \"numbers\", \"Numbers\", \"&a { b = <%u 0x%x>; };\"),
        dt_arg(4, LPM, \"listed\", \"A list\", R\"(&a { b = \"%s[on,off]\"; c = \"d\"; };)\"),
        dt_arg(5, LPM, \"free\", \"Free text\", R\"(&a { b = \"%s \"; };)\"),
        env_arg(6, LPM, \"key\", \"Setting\", \"k\", \"%s\"),"
    build 'dt("No id", "&a { b; };"), env_arg("With argument", "k", "%d"), end_of_table' 0
}

@test "descriptions" {
    row row_has_a_description 'dt(1, CPU, "a", "", "&a { b; };")'
    row row_has_a_description 'dt(1, CPU, "a", nullptr, "&a { b; };")'
    row desc_fits_72_columns "dt(1, CPU, \"a\", \"$(long_text 73)\", \"&a { b; };\")"
    row desc_holds_plain_text_only 'dt(1, CPU, "a", "a \"quote\"", "&a { b; };")'
    row desc_holds_plain_text_only 'dt(1, CPU, "a", "a \\ backslash", "&a { b; };")'
    row desc_holds_plain_text_only 'dt(1, CPU, "a", "two -- dashes", "&a { b; };")'
    row desc_holds_plain_text_only 'dt(1, CPU, "a", "a\ttab", "&a { b; };")'
    row desc_holds_plain_text_only 'dt(1, CPU, "a", "55 °C", "&a { b; };")'
    row desc_reads_like_no_argument_or_index 'dt(1, CPU, "a", "like (x) an index (12)", "&a { b; };")'
    row desc_reads_like_no_argument_or_index 'dt(1, CPU, "a", "like () an index", "&a { b; };")'
    row desc_reads_like_no_argument_or_index 'dt(1, CPU, "a", "like [arg=1]", "&a { b; };")'
    row desc_reads_like_no_argument_or_index 'dt(1, CPU, "a", "like [str=a]", "&a { b; };")'
    rows_are_refused
}

@test "names, ids and groups" {
    row name_is_lower_case_with_underscores 'dt(1, CPU, "aB", "x", "&a { b; };")'
    row name_is_lower_case_with_underscores 'dt(1, CPU, "a-b", "x", "&a { b; };")'
    row name_is_lower_case_with_underscores 'dt(1, CPU, "", "x", "&a { b; };")'
    row name_is_lower_case_with_underscores 'dt(1, CPU, nullptr, "x", "&a { b; };")'
    row name_fits_40_columns "dt(1, CPU, \"$(long_text 41)\", \"x\", \"&a { b; };\")"
    row name_is_unique 'dt(1, CPU, "good_0", "x", "&a { b; };")'
    row id_is_from_1_to_1023 'dt(0, CPU, "a", "x", "&a { b; };")'
    row id_is_from_1_to_1023 'dt(1024, CPU, "a", "x", "&a { b; };")'
    row id_is_unique 'dt(900, CPU, "a", "x", "&a { b; };")'
    row group_is_known 'dt(1, UNKNOWN, "a", "x", "&a { b; };")'
    row group_is_known 'dt(1, hwknobs_group(14), "a", "x", "&a { b; };")'
    rows_are_refused
}

@test "settings and fragments" {
    row key_and_value_go_together 'env(1, CPU, "a", "x", "key", nullptr)'
    row key_and_value_go_together 'both(1, CPU, "a", "x", nullptr, "value", "&a { b; };")'
    row row_sets_something 'dt(1, CPU, "a", "x", nullptr)'
    row plenv_key_is_read_back 'env(1, CPU, "a", "x", "a-key", "value")'
    row plenv_key_is_read_back 'env(1, CPU, "a", "x", "", "value")'
    row plenv_value_is_read_back 'env(1, CPU, "a", "x", "key", "a value")'
    row plenv_value_is_read_back 'env(1, CPU, "a", "x", "key", "5%%")'
    row plenv_value_is_read_back 'env_arg(1, CPU, "a", "x", "key", "+%d")'
    row plenv_value_is_read_back 'env_arg(1, CPU, "a", "x", "key", "%s[on,off].")'
    row fragment_has_no_line_of_an_item 'dt(1, CPU, "a", "x", "&a { first-item; };")'
    row fragment_fits_into_cdata 'dt(1, CPU, "a", "x", "&a { b = \"[[x]]>\"; };")'
    rows_are_refused
}

@test "arguments" {
    row argument_row_has_exactly_one_template \
        '{"x", 1, {"key", "%d"}, "&a { b = <%d>; };", 1, CPU, "a"}'
    row argument_row_has_a_conversion 'dt_arg(1, CPU, "a", "x", "&a { b = <1>; };")'
    row argument_row_has_a_conversion 'env_arg(1, CPU, "a", "x", "key", "value")'
    row row_without_argument_has_no_conversion 'dt(1, CPU, "a", "x", "&a { b = <%d>; };")'
    row row_without_argument_has_no_conversion 'both(1, CPU, "a", "x", "key", "%s", "&a { b; };")'
    row row_without_argument_has_no_conversion 'dt(1, CPU, "a", "x", "&a { b = \"50%\"; };")'
    row template_is_valid 'dt_arg(1, CPU, "a", "x", "&a { b = <%08x>; };")'
    row template_is_valid 'dt_arg(1, CPU, "a", "x", "&a { b = <%d %u>; };")'
    row template_is_valid 'dt_arg(1, CPU, "a", "x", "&a { b = \"%s[on,on]\"; };")'
    row template_is_valid 'dt_arg(1, CPU, "a", "x", "&a { b = \"%s[on,,off]\"; };")'
    row template_is_valid 'dt_arg(1, CPU, "a", "x", "&a { b = \"%s[o_n]\"; };")'
    row template_is_valid 'dt_arg(1, CPU, "a", "x", "&a { b = \"%s[on\"; };")'
    row argument_row_has_no_percent_sign 'dt_arg(1, CPU, "a", "x", "&a { b = <%d>; c = \"100%%\"; };")'
    row allowed_values_are_read_back 'dt_arg(1, CPU, "a", "x", "&a { b = \"%s[on,off,2]\"; };")'
    row no_string_follows_a_free_one 'dt_arg(1, CPU, "a", "x", "&a { b = \"%s \"; c=\"d\"; };")'
    row blank_follows_bare_string_conversion 'dt_arg(1, CPU, "a", "x", "&a { b = \"%s\"; };")'
    rows_are_refused
}

# 33 bytes an entry with its key, "=", the longest value and the NUL.
plenv_rows() {
    local i
    for ((i = 10; i < 10 + $1; i++)); do
        printf 'env(%d, CPU, "n%d", "x", "k%d", "short"),\n' "$i" "$i" "$i"
        printf 'env_arg(%d, CPU, "m%d", "x", "k%d", "%%d-%s"),\n' $((i + 500)) "$i" "$i" "$(long_text 17)"
    done
}

@test "tables" {
    # The block holds 1003 bytes: 30 entries of 33, and one of 13.
    build "$(plenv_rows 30) env(1, CPU, \"l\", \"x\", \"k\", \"1234567890\"),"
    refused 60 plenv_of_all_rows_fits_the_block "$(plenv_rows 30) env(1, CPU, \"l\", \"x\", \"k\", \"12345678901\"),"
    refused 60 plenv_of_all_rows_fits_the_block \
        "$(plenv_rows 30) env_arg(1, CPU, \"l\", \"x\", \"k\", \"%s[a,abcdefghijk,b]\"),"
    refused 1 end_row_is_last 'dt("x", "&a { b; };"), dt("y", "&a { b; };"),' 0
    refused 1 row_has_a_description 'dt("x", "&a { b; };"), end_of_table, dt("y", "&a { b; };"), end_of_table' 0
    refused 0 desc_fits_72_columns "dt(\"$(long_text 73)\", \"&a { b; };\"), end_of_table" 0
}

@test "every rule is tried here" {
    local rule tried=0
    while read -r rule; do
        [[ $rule != none ]] || continue
        grep -q "^    \(row\|refused [0-9]*\) $rule " "$BATS_TEST_FILENAME" || fail "no case breaks the rule $rule"
        tried=$((tried + 1))
    done < <(sed -n '/^enum class rule {/,/^}/s/^    \([a-z_0-9]*\),$/\1/p' \
        "$HWKNOBS_TOP/hwknobs/hwknobs_plat/catalogue/rules.h")
    ((tried >= 26))
}
