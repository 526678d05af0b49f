#!/usr/bin/env bats
# The set flow: what is composed, changed, kept and refused, and what a device boots with afterwards.
load device

@test "the exact source of a setting" {
    local before after stamp
    compiler record <<<'cat >source; printf blob'
    export TZ=XXX-14 # nobody's local time; a name of less than three letters is taken for UTC
    before=$(date +'%F %T')
    hwknobs set -r "$(id_of lcm_settings)" a-2 "$(id_of kaslr_disable)" "$(id_of perf_stat_events)" sa,b-1 >"$DEV/output"
    no_id <"$DEV/output" | diff "$data/set_output.txt" -
    no_id <"$DEV/data/source" | no_timestamp | diff - "$data/set_source.dts"
    after=$(date +'%F %T')
    stamp=$(sed -n 's/.*timestamp = "\(.*\)".*/\1/p' "$DEV/data/source")
    [[ ! $stamp < $before && ! $stamp > $after ]]
    [[ $(bytes 0x408 18) == "$(hex 'perf_event=a,b-1\0\0')" ]]
}

@test "modify, delete and the recovery flag keep what they do not name" {
    local id names
    id=$(id_of lcm_settings)
    hwknobs setname kaslr_disable lcm_settings a1 kmemleak_disable
    run -0 hwknobs setname --modify perf_stat_events scycles lcm_settings a9
    names=$(sed -n 's/^\tActivate  \([^(]*\).*/\1/p' <<<"$output" | xargs)
    [[ $names == "kaslr_disable lcm_settings kmemleak_disable perf_stat_events" ]]
    [[ $output == *"lcm_settings($id)[arg=9]"* ]]
    run -0 hwknobs set --delete "$(id_of enable_gpu_acp)" "$id"
    [[ ${lines[0]} == "warn: cannot find item enable_gpu_acp to delete" && ${lines[1]} == *"#item=3" ]]

    run -0 hwknobs set -m --no-recovery --recovery
    [[ $(bytes 0x22c 1) == 01 && ${lines[0]} == "enable boot fail recovery mechanism" ]]
    run -0 hwknobs setname -m enable_gpu_acp # the stored flag stays
    [[ $(bytes 0x22c 1) == 01 && ${lines[0]} == *"#item=4" ]]
    run -0 hwknobs set -d -m --no-recovery # the last mode wins
    [[ $(bytes 0x22c 1) == 00 && ${lines[0]} == *"#item=4" ]]
    run -0 hwknobs setname kmemleak_enable
    [[ ${lines[0]} == *"#item=1" ]]
}

@test "what is refused leaves the partition as it was" {
    local none="ERROR: No item set by arguments" mismatch="ERROR: platform name mismatch between setting and partition"
    expect 0 "<<partition>>
  hwknobs partition setting doesn't exist
Skip delete option" hwknobs setname -d kaslr_disable
    is_blank
    run -0 hwknobs setname -m kaslr_disable
    [[ ${lines[0]} == "Config set (platform px8314), #item=1" ]]
    cp "$DEV/boot_para" "$DEV/before"
    expect 1 "$none" hwknobs set
    expect 1 "$none" hwknobs set -m
    expect 1 "$none" hwknobs set -d --no-recovery
    errors="set: invalid option -- 'x'" expect 1 $'ERROR: hwknobs set with unknown option\n' hwknobs set -x 1
    expect 1 "ERROR: invalid config number -m" hwknobs set -d "$(id_of kaslr_disable)" -m 5
    expect 1 "$mismatch" hwknobs --plat=px8314 setname -m kmemleak_disable
    ends_in 1 "ERROR: plenv settings need 1012 bytes, the partition holds 1003" \
        hwknobs setname perf_stat_events "s$(printf 'x%.0s' {1..1000})"
    DTCBIN=/none run -1 hwknobs setname -m kmemleak_disable
    [[ $output == "ERROR: Cannot change the setting in "*"the stored items are unknown" ]]
    cmp "$DEV/boot_para" "$DEV/before"
    hwknobs --plat=px7314 setname -m kmemleak_disable # another platform's name passes
}

@test "another platform than the device's" {
    hwknobs --plat=px7314 setname lcm_settings a2
    run -0 hwknobs setname -m kmemleak_disable lcm_settings a3 # the setting stays one of its platform, as its items do
    [[ ${lines[0]} == "Config set (platform px7314), #item=3" && $(bytes 0x220 7) == "$(hex 'px7314\0')" ]]
    [[ ${lines[1]} == *" lcm_settings("*")[arg=2]"* && ${lines[2]} == *" kmemleak_disable($(id_of kmemleak_disable))"* ]]
    run -0 hwknobs --plat=px0000 set 1
    [[ ${lines[0]} == "Config set (platform px0000), #item=1" && $(bytes 0x220 7) == "$(hex 'px0000\0')" ]]
}

@test "an imported setting without overlay holds no items, and can be changed" {
    hwknobs xmlconfig-set <<<"<hwknobs name='n' platform='px8314'><plsetting/></hwknobs>"
    ends_in 0 "config set ok" hwknobs set -m -r
    [[ $(bytes 0x22c 1) == 01 && $(bytes 0x200 8) == "$(hex 'default\0')" ]]
    hwknobs xmlconfig-set <<<"<hwknobs name='n' platform='px8314'><plsetting/></hwknobs>"
    run -0 hwknobs setname -m kaslr_disable
    [[ ${lines[0]} == *"#item=1" ]]
}

@test "a second writer waits for the first" {
    compiler slow <<<'if [ ! -e started ]; then : >started; sleep 1; fi; exec dtc "$@"' # the first time
    hwknobs setname kaslr_disable &
    until [[ -e $DEV/data/started ]]; do sleep 0.05; done
    run -0 hwknobs --verbose --file=../../../dev/block/by-name/boot_para setname -m kmemleak_disable
    wait $!
    [[ $output == *"DEBUG: /dev/block/by-name/boot_para: another command is changing it, waiting"*"#item=2"* ]]
    rm "$DEV/data/started"
    hwknobs setname kaslr_disable &
    until [[ -e $DEV/data/started ]]; do sleep 0.05; done
    hwknobs --verbose clear >"$DEV/cleared" &
    hwknobs --verbose --file=other xmlconfig-set >"$DEV/imported" <<<"<hwknobs name='n' platform='px8314'/>"
    wait
    [[ $(<"$DEV/cleared") == *waiting*partimage_clear* && $(<"$DEV/imported") == *waiting*partimage_clear* ]]
    exec 8>"$DEV/data/out" # held by another program
    flock 8
    hwknobs --verbose --file=out setname kaslr_disable >"$DEV/written" 8>&- &
    timeout 10 bash -c 'until grep -q "^DEBUG: out: another" "$1"; do sleep 0.05; done' - "$DEV/written"
    [[ ! -s $DEV/data/out ]]
    exec 8>&-
    wait $!
    [[ -s $DEV/data/out ]]
}

@test "every row without an argument at once, and long strings, come back whole" {
    local ids long
    long=$(printf 'x%.0s' {1..3900}) # to get past the 64 KiB that a pipe holds if nobody enlarges it
    ids=$(hwknobs list | awk 'NR > 3 && substr($0, 119, 8) != "required" { print $1 }' | shuf --random-source=/bin/sh)
    # shellcheck disable=SC2086
    hwknobs set $ids "$(id_of dyndbg_set)" "s$long" "$(id_of kernel_argument_add)" "s$long" \
        "$(id_of module_blocklist_set)" "s$long" >"$DEV/written"
    [[ $((0x$(bytes 0x806 1))) -ge 1 ]]
    grep -v ^config "$DEV/written" | sed -n 's/^\t/   /p' >"$DEV/expected"
    [[ $(wc -l <"$DEV/expected") -gt 240 ]]
    run hwknobs status --partition
    cmp "$DEV/expected" <(sed -n '/^   Activate/p' <<<"$output")
    run -0 hwknobs setname -m lcm_settings a1
    cmp "$DEV/expected" <(sed -n 's/^\t/   /p' <<<"$output" | head -n -1)
    device reboot
    run -0 hwknobs status
    cmp <(cut -c 1-258 "$DEV/expected") <(sed -n '/^   Activate/p' <<<"$output" | head -n -1) # 255 of a property
}

@test "a device boots with what was set" {
    local id
    expect 0 "<<system>> hwknobs setting does not take effect" hwknobs status
    hwknobs setname -r enable_gpu_acp perf_stat_events scycles
    run -1 hwknobs status --partition
    [[ ${lines[0]} == *" failure recovery 1" && ${lines[2]} == "  perf_event=cycles" ]]
    device reboot
    echo -n late >"$DEV/proc/device-tree/chosen/hwknobs/item9" # behind a gap
    run -0 hwknobs status --system --partition
    [[ $(no_timestamp <<<"$output" | no_id) == "<<system>> hwknobs 'set' command at TIME
   plat px8314 boot recovery true
   Activate  enable_gpu_acp(ID) Enable GPU ACP
   Activate  perf_stat_events(ID)[str=cycles] Set Boot Perf Stat Events" ]]
    [[ $(fdtget "$DEV/merged.dtb" /mali system-coherency) == 0 && $(<"$DEV/plenv") == perf_event=cycles ]]
    for id in {0..1024}; do echo -n "$id" >"$DEV/proc/device-tree/chosen/hwknobs/item$id"; done
    ends_in 0 "   1023" hwknobs status
    rm "$DEV/proc/device-tree/chosen/hwknobs/item1" && mkdir "$DEV/proc/device-tree/chosen/hwknobs/item1"
    ends_in 0 "DEBUG: dt_read_string: Can't read hwknobs command entry" hwknobs --verbose status
    hwknobs clear
    device reboot
    expect 0 "<<system>> hwknobs setting does not take effect" hwknobs status
}

@test "a setting without ids is written, and read back as a warning without end" {
    echo 0 >"$DEV/proc/chip/hw_code"
    hwknobs set 1 7
    device reboot
    [[ $(fdtget "$DEV/merged.dtb" /SUSPEND status) == test-overide-1 && $(sort "$DEV/plenv" | xargs) == "AA=BB test_level=high" ]]
    run -141 bash -o pipefail -c "timeout 20 '$device_script' run '$DEV' hwknobs status --partition | sed -n '2000{p;q}'"
    [[ $output == "warn: unknown option id, skip" ]]
    expect 1 $'Error in file hwknobs/hwknobs_img:919\n\tfunction: void config_item::format_validate()
\t> check_string == NULL' hwknobs set 4 a1
}
