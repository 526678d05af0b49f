#!/usr/bin/env bats
# The tables as the tool shows them, as the device-tree compiler takes them, and as they come back from a device.

load ../device

# Their lines by platform, in files of that name; rows.cpp tells the columns.
setup_file() {
    mkdir "$BATS_FILE_TMPDIR/rows"
    cd "$BATS_FILE_TMPDIR/rows" || return
    "$CATALOGUE_ROWS" | awk -F '\t' '{ print >$1 }'
}

setup() {
    "$device_script" create "$DEV" --plat-code 8314
    cd "$BATS_FILE_TMPDIR/rows" || return
}

# listing PLATFORM: what "list" shows of it.
listing() {
    awk -F '\t' '$2 == 0' "$1" | sort -t $'\t' -n -k 3 | awk -F '\t' '
        $5 == "" { row[NR] = sprintf("%3d %s %s", $3, $4, $6 == "" ? "" : " [require an argument for customization]") }
        $5 != "" { row[NR] = sprintf("%3d %-72s %-40s %-12s %-8s", $3, $4, $5, $6, $7) }
        END {
            printf "XPR config list %s(arch %s) num:%d\n", $5 == "" ? "" : "V2 ", $1, NR
            dashes = sprintf("%144s", "")
            gsub(" ", "-", dashes)
            if ($5 != "") printf "%3s %-72s %-40s %-12s %-8s\n%s\n", "ID", "DESC", "NAME", "ARG", "GROUP", dashes
            for (i = 1; i <= NR; i++) print row[i]
        }'
}

@test "list shows the rows of every table, and the completions read them there" {
    for platform in *; do
        diff <(listing "$platform") <("$HWKNOBS" --plat="$platform" list)
        awk -F '\t' '$2 == 0 { print $3, $5 == "" ? "-" : $5, $6 == "" ? "-" : $6, $4 }' "$platform" | sort -n |
            diff - <("$HWKNOBS" --plat="$platform" list | sed -nE -f "$tests/../share/completions/list_rows.sed")
    done
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

# Marks make the compiler's messages name the row. The empty root node in between keeps two fragments that are broken
# alone from being sound together.
overlay() {
    echo '/dts-v1/; /plugin/;'
    awk -F '\t' '$9 != "" { printf "/ { };\n# 1 \"%s row %d\"\n%s\n", $1, $3, $9 }' "$1"
}

@test "all fragments compile without a word, set what the rules see, and merge" {
    for platform in *; do
        overlay "$platform" >"$DEV/dts"
        expect 0 "" dtc -I dts -O dtb -o "$DEV/dtbo" "$DEV/dts"
        diff <(cut -f 10- "$platform" | tr '\t' '\n' | grep .) <(settings "$DEV/dtbo")
        base_for "$DEV/dtbo" | dtc -@ -I dts -O dtb -o "$DEV/base"
        fdtoverlay -i "$DEV/base" -o "$DEV/merged" "$DEV/dtbo"
    done
}

# Of all arguments with the same number at once. A sign, and digits of a string, are not read back.
@test "what is selected is read back, with each argument" {
    mkdir "$DEV/data/words"
    awk -F '\t' -v words="$DEV/data/words" '$5 != "" { print $5, $8 >words "/" $1 "." $2 }' ./*
    device run sh -e >"$DEV/lines" <<'END'
for words in words/*; do
    platform=${words#*/}
    xargs hwknobs --plat="${platform%.*}" setname <"$words" | sed -n 's/^\tActivate/   Activate/p' |
        sed 's/\[arg=-[0-9]*\]/[arg=0]/; s/\[str=[0-9,]*\]/[str=]/' >set
    hwknobs status --partition | grep '^   Activate' | diff set -
    cat set
done
END
    # Each sample of each row.
    [[ $(grep -c . "$DEV/lines") == $(cat "$DEV"/data/words/* | wc -l) ]]
}
