#!/usr/bin/env bats
# The completions, in the shells themselves.
load device

setup_file() {
    export PREFIX=$BATS_FILE_TMPDIR/prefix
    cmake --install "$HWKNOBS_BUILD" --prefix "$PREFIX" >/dev/null
}

# The tool on the search path runs on px8314; the one in "nowhere" finds no platform, and the one in "long" has texts that
# push its columns to the right.
setup() {
    cd "$BATS_TEST_TMPDIR" || return
    export HOME=$PWD PATH=$PWD/bin:$PATH long="a description that is even longer than the columns for it, all 72 of them"
    mkdir bin nowhere long
    printf '#!/bin/sh\nexec %q --plat=px8314 "$@"\n' "$HWKNOBS" >bin/hwknobs
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

# Prints the completions of each line of stdin in that shell, sorted, and without what readline keeps of the word.
complete_in() {
    if [[ $1 == fish ]]; then in_fish 'echo (complete -C $line | string replace -r "\t.*" "")'; else in_terminal "$1"; fi 2>&1 |
        awk '{
            for (n = 1; n <= NF; n++) {
                if ($n ~ /^--[a-z]+=./) sub(/^[^=]*=/, "", $n)
                sub(/=$/, "", $n)
                for (i = n; i > 1 && $i < $(i - 1); i--) { word = $i; $i = $(i - 1); $(i - 1) = word }
            }
            $1 = $1
            print
        }'
}

@test "completions in bash, zsh and fish" {
    local shell
    rows completions >cases
    for shell in fish zsh bash; do
        echo "in $shell:"
        paste -d '|' <(cut -d '|' -f 1 cases) <(cut -d '|' -f 1 cases | complete_in "$shell") | diff cases -
    done
}

@test "descriptions in zsh and fish" {
    local said="Keep PMU counters running in CPU idle"
    [[ $(in_fish 'complete -C $line' <<<"hwknobs set 331") == 331$'\t'"$said" ]]
    [[ $(LIST=1 in_terminal zsh <<<"hwknobs setname pmu_") =~ pmu_idle_keep" "+--" $said" ]]
}
