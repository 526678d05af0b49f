#!/usr/bin/env bats
# The completions, in the shells themselves.
load device

setup_file() {
    export PREFIX=$BATS_FILE_TMPDIR/prefix
    cmake --install "$HWKNOBS_BUILD" --prefix "$PREFIX" >/dev/null
}

# The tool on the search path runs in the device; the one in "nowhere" finds no platform, and the one in "long" has texts
# that push its columns to the right.
setup() {
    "$device_script" create "$DEV" --plat-code 8314
    cd "$BATS_TEST_TMPDIR" || return
    export HOME=$PWD PATH=$PWD/bin:$PATH long="a description that is even longer than the columns for it, all 72 of them"
    mkdir bin nowhere long
    printf '#!/bin/sh\nexec %q run %q hwknobs "$@"\n' "$device_script" "$DEV" >bin/hwknobs
    ln -s "$HWKNOBS" nowhere/hwknobs
    printf '%s\n' '#!/bin/sh' "cat <<'END'" "$(long_list)" END >long/hwknobs
    chmod +x bin/hwknobs long/hwknobs
    touch config.xml
}

long_list() {
    local name=a_name_that_is_longer_than_the_forty_columns_it_has
    echo "XPR config list V2 (arch px8314) num:4"
    printf '%3s %-72s %-40s %-12s %-8s\n' ID DESC NAME ARG GROUP \
        1 "$long" plain "" KERNEL 20 "$long" "$name" "" GPU 300 "PC is required" required "" DRAM 4 "X" last required VCORE
}

in_terminal() { timeout 100 zsh -f "$BATS_TEST_DIRNAME/complete.zsh" "$PREFIX" "$1"; }

in_fish() {
    # shellcheck disable=SC2016 # for fish
    fish --no-config -c 'set fish_complete_path $argv/share/fish/vendor_completions.d
        while read -l line; '"$1"'; end' "$PREFIX"
}

# Prints the completions of each line of stdin in that shell, sorted.
complete_in() {
    if [[ $1 == fish ]]; then in_fish 'echo (complete -C $line | string replace -r "\t.*" "")'; else in_terminal "$1"; fi 2>&1 |
        while read -r -a words; do
            printf '%s\n' "${words[@]}" | sed -E 's/^--[a-z]+=(.+)/\1/; s/=$//' | sort | xargs
        done
}

# The numbers and names of all platforms, by the columns where they stand: no text of the catalogue is too long.
whole_catalogue() {
    local platform list
    for platform in $("$HWKNOBS" plat-list | tail -n +2); do
        list=$("$HWKNOBS" --plat="$platform" list)
        echo "nowhere/hwknobs --plat=$platform set |$(awk '$1 ~ /^[0-9]+$/ { print $1 }' <<<"$list" | sort | xargs)"
        if [[ $list != *V2* ]]; then continue; fi
        echo "nowhere/hwknobs --plat=$platform setname |$(tail -n +4 <<<"$list" | cut -c 78-117 | sort | xargs)"
    done
}

# The shells share what reads a listing: one of them shows that nothing of the catalogue is lost.
@test "completions in bash, zsh and fish" {
    local shell
    for shell in fish zsh bash; do
        {
            rows completions
            if [[ $shell == bash ]]; then whole_catalogue; fi
        } >cases
        echo "in $shell:"
        paste -d '|' <(cut -d '|' -f 1 cases) <(cut -d '|' -f 1 cases | complete_in "$shell") | diff cases -
    done
}

@test "descriptions in zsh and fish" {
    local said="Keep PMU counters running in CPU idle"
    [[ $(in_fish 'complete -C $line' <<<"hwknobs set 331") == 331$'\t'"$said" ]]
    [[ $(LIST=1 in_terminal zsh <<<"hwknobs setname pmu_") =~ pmu_idle_keep" "+--" $said" ]]
}
