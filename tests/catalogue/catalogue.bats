#!/usr/bin/env bats
# The tables as the tool shows them, as the device-tree compiler takes them, and as they come back from a device.

load ../device

setup_file() {
    "$CATALOGUE_ROWS" platforms >"$BATS_FILE_TMPDIR/platforms"
}

# platforms [VERSION]: the names of all, or of those with tables of that version, in their order.
platforms() { awk -v version="$1" 'version == "" || $2 == version { print $1 }' "$BATS_FILE_TMPDIR/platforms"; }

@test "list shows the rows of every table" {
    for platform in $(platforms); do
        # Without the heading, and with one blank between columns.
        diff <("$CATALOGUE_ROWS" list "$platform") <("$HWKNOBS" --plat="$platform" list | sed -E '1d; 2{/ID/d}; 3{/^-/d}
            s/^ +//; s/ +/ /g; s/ \[require an argument.*/ required/; s/ $//')
    done
}

@test "each hardware code detects its platform, from either place" {
    detected() { hwknobs list | sed -n '1s/.*(arch \([^)]*\)).*/\1/p'; }
    while read -r platform _ code; do
        printf '%s\n' "$code" >"$DEV/proc/chip/hw_code"
        [[ $(detected) == "$platform" ]]
        rm "$DEV/proc/chip/hw_code"
        # Five words; the code stands in the second.
        printf -v code '%04x' "$((16#$code))"
        printf '%b' '\0\0\0\0' "\\x${code:2}\\x${code:0:2}" '\0\0\0\0\0\0\0\0\0\0\0\0\0\0' \
            >"$DEV/proc/device-tree/chosen/atag,chipid"
        [[ $(detected) == "$platform" ]]
    done <"$BATS_FILE_TMPDIR/platforms"
}

# settings OVERLAY: label and name of each property that it sets, in the order of its fragments. The labels come last.
settings() {
    dtc -q -I dtb -O dts "$1" | awk '{ sub(/^\t+/, "") }
        /^fragment@/ { target = $1 ":target" }
        /^}/ { within = 0 }
        within { sub(/[ ;].*/, ""); of[++n] = target; property[n] = $0 }
        /^__overlay__/ { within = 1 }
        labels { while (match($0, /fragment@[0-9]+:target/)) { label[substr($0, RSTART, RLENGTH)] = $1; sub(/:target/, "") } }
        /^__fixups__/ { labels = 1 }
        END { for (i = 1; i <= n; i++) print label[of[i]], property[i] }'
}

base_for() {
    echo '/dts-v1/; / {'
    fdtget -p "$1" /__fixups__ | sed 's/.*/&: & { };/'
    echo '};'
}

@test "all fragments compile without a word, set what the rules see, and merge" {
    cd "$BATS_TEST_TMPDIR"
    for platform in $(platforms); do
        "$CATALOGUE_ROWS" overlay "$platform" >rows.dts
        expect 0 "" dtc -I dts -O dtb -o rows.dtbo rows.dts
        diff <("$CATALOGUE_ROWS" sets "$platform") <(settings rows.dtbo)
        base_for rows.dtbo | dtc -@ -I dts -O dtb -o base.dtb
        fdtoverlay -i base.dtb -o merged.dtb rows.dtbo
    done
}

@test "what is selected is read back, with each argument" {
    for platform in $(platforms 2); do
        for ((n = 0; ; n++)); do
            mapfile -t words < <("$CATALOGUE_ROWS" words "$platform" $n | tr -s ' \n' '\n')
            ((${#words[@]})) || break
            run -0 --separate-stderr hwknobs --plat="$platform" setname "${words[@]}"
            diff <(grep -P '^\tActivate' <<<"$output" | sed 's/^\t/   /') \
                <(hwknobs status --partition | sed '1,/^== dts/d')
        done
        # The lowest and the highest number at least.
        ((n >= 2))
    done
}
