#!/usr/bin/env bats
# The bytes of the partition: written, cleared and read.
load device

u32() { printf '\\x%02x\\x%02x\\x%02x\\x%02x' $(($1 & 255)) $(($1 >> 8 & 255)) $(($1 >> 16 & 255)) $(($1 >> 24)); }

# header OFFSET NAME SIZE: what a section header is.
header() {
    put "$1" "$(u32 0x58881688)$(u32 "$3")$2"
    put $(($1 + 40)) "\xff\xff\xff\xff\xff\xff\xff\xff$(u32 0x58891689)$(u32 512)$(u32 1)$(u32 0)$(u32 0)$(u32 16)"
}
put() { printf "%b" "$2" | dd of="$DEV/image" bs=1 seek=$(($1)) conv=notrunc status=none; }

# An image of 4 MiB made by hand for "Dummy 1 OFF" of px0000, with this recovery flag and a blob of 1001 bytes.
expected_image() {
    truncate -s 0 "$DEV/image"
    truncate -s 4M "$DEV/image"
    header 0 hwknobs 0x600
    put 0x200 default
    put 0x220 px0000
    put 0x22c "\x0$1"
    put 0x400 "ENV_v1\0\0AA=BB"
    put 0x7f4 "ENV_v1\0\0$(u32 $((65 + 65 + 61 + 66 + 66)))"
    header 0x800 hwknobs-dt 1001
    put 0xa00 "$(printf 'b%.0s' {1..1001})"
    if [[ $1 == 1 ]]; then header 0x20a00 hwknobs-status 0x200; fi
}

@test "the image, byte for byte" {
    compiler blob <<<'cat >/dev/null; printf "b%.0s" $(seq 1001)'
    echo 0 >"$DEV/proc/chip/hw_code"
    hwknobs set 1
    expected_image 0
    cmp "$DEV/boot_para" "$DEV/image"
    hwknobs set -r 1
    expected_image 1
    cmp "$DEV/boot_para" "$DEV/image"
}

@test "another file gets the image, the default partition is cleared all the same" {
    compiler blob <<<'cat >/dev/null; printf "b%.0s" $(seq 1001)'
    hwknobs setname kaslr_disable
    patch 0x3fffff x
    hwknobs --file=out setname kaslr_disable
    is_blank
    [[ $(stat -c '%s %a' "$DEV/data/out") == "$((0xa00 + 1008)) 600" ]]
    compiler blob <<<'cat >/dev/null; printf "b%.0s" $(seq 1024)' # of no size that needs to be rounded
    hwknobs --file=even setname kaslr_disable
    [[ $(stat -c %s "$DEV/data/even") == $((0xa00 + 1024)) ]]
    hwknobs --file=out setname -r kaslr_disable
    [[ $(stat -c %s "$DEV/data/out") == $((0x20e00)) ]]
    DTCBIN=dtc hwknobs --file=out setname -r kaslr_disable
    DTCBIN=dtc run -0 hwknobs --file=out setname -m kmemleak_disable
    [[ ${lines[0]} == *"#item=2" ]]
    DTCBIN=dtc run -1 hwknobs --file=out status --partition
    [[ ${lines[0]} == *"failure recovery 1" && ${lines[-1]} == "   Activate  kmemleak_disable("* ]]
    hwknobs --file=out xmlconfig-set <<<"<hwknobs name='other' platform='px8314'/>"
    [[ $(tail -c +513 "$DEV/data/out" | head -c 6 | tr '\0' .) == other. && $(stat -c %s "$DEV/data/out") == $((0x20e00)) ]]
    hwknobs --file=bare xmlconfig-set <<<"<hwknobs name='other' platform='px8314'/>"
    [[ $(stat -c %s "$DEV/data/bare") == $((0xa00)) ]]
    is_blank
    expect 1 "ERROR: Cannot read file out dt blob (No data available)" \
        device run sh -c 'truncate -s 5000 out; hwknobs --file=out status --partition'
    compiler limited <<<'prlimit --fsize=1024 --pid $PPID; exec dtc "$@"' # a part of the image has room
    ends_in 1 "ERROR: Cannot write file /dev/block/by-name/boot_para (No space left on device)" hwknobs setname kaslr_disable
    ends_in 1 "  hwknobs partition setting doesn't exist" hwknobs status --partition
    ends_in 1 "ERROR: Cannot open output file /none/out" hwknobs --file=/none/out setname kaslr_disable
    truncate -s 1048575 "$DEV/boot_para"
    ends_in 1 "ERROR: Partition size too small 1048575" hwknobs --file=out setname kaslr_disable
}

@test "clear: three ranges, sizes and failures" {
    local option left
    while IFS='|' read -r option left; do
        tr '\0' x </dev/zero | head -c 2M >"$DEV/boot_para"
        # shellcheck disable=SC2086
        expect 0 "" hwknobs clear $option
        [[ $(bytes 0 1)$(bytes 0xfffff 1)$(bytes 0x100000 1)$(bytes 0x1fffff 1) == "$left" ]]
    done < <(rows clear_ranges)
    truncate -s 1M "$DEV/boot_para"
    expect 0 "" hwknobs clear --ddr-data
    [[ $(bytes 0xfffff 1) == 78 ]]
    truncate -s $((0x100001)) "$DEV/boot_para"
    run -0 hwknobs --verbose clear --all
    [[ $output == "DEBUG: hwknobs_partimage_clear: filename /dev/block/by-name/boot_para action 0
DEBUG: start offset 0 end offset 1048577" && $(stat -c %s "$DEV/boot_para") == $((0x100001)) ]]
    truncate -s $((0x8000000)) "$DEV/boot_para"
    expect 0 "" hwknobs clear
    truncate -s $((0x8000001)) "$DEV/boot_para"
    expect 1 "ERROR: hwknobs_partimage_clear: partition size too large" hwknobs clear
    expect 1 "ERROR: Cannot open output file none" hwknobs --file=none clear
    mkfifo "$DEV/data/pipe" # which is no reason to wait for somebody who writes to it
    expect 1 "ERROR: Partition size too small -1" timeout 20 "$device_script" run "$DEV" hwknobs --file=pipe clear
}

@test "no setting, and a damaged one" {
    local none="<<partition>>
  hwknobs partition setting doesn't exist"
    expect 1 "$none" hwknobs status --partition
    expect 1 "DEBUG: load filename none
DEBUG: load: Cannot open file none
$none" hwknobs --verbose --file=none status --partition
    expect 1 "DEBUG: load filename .
DEBUG: load: boot para read failed, size mismatch 0

$none" hwknobs --verbose --file=. status --partition
    hwknobs setname kaslr_disable
    cp "$DEV/boot_para" "$DEV/good"
    local offset value said
    while read -r offset value said; do
        cp "$DEV/good" "$DEV/boot_para"
        patch "$offset" "$value"
        run -1 hwknobs --verbose status --partition
        grep -qxF "$said" <<<"$output" || fail "$offset: $output"
    done < <(rows damaged_partitions)
    cp "$DEV/good" "$DEV/boot_para"
    patch 0x200 'abcdefghijklmnopqrstuvwxyz12345\0'
    run -1 hwknobs status --partition
    [[ ${lines[0]} == "<<partition>> hwknobs partition setting name abcdefghijklmnopqrstuvwxyz12345 plat px8314 failure recovery 0" ]]
    while read -r value said; do
        cp "$DEV/good" "$DEV/boot_para"
        truncate -s $((value)) "$DEV/boot_para"
        run -1 hwknobs --verbose status --partition
        grep -qxF "$said" <<<"$output" || fail "$value: $output"
    done < <(rows cut_partitions)
    mkfifo "$DEV/data/pipe"
    { head -c 100 "$DEV/good" && sleep 0.2 && tail -c +101 "$DEV/good"; } >"$DEV/data/pipe" & # its header in two parts
    ends_in 1 "ERROR: Cannot lseek file pipe (Illegal seek)" hwknobs --file=pipe status --partition
}
