#!/usr/bin/env bats
# result, auth-status, selftest and the XML commands.
load device

@test "result: the word, and its inverted exit status" {
    expect 1 "hwknobs boot status = 0x0" hwknobs result
    device reboot --status ffff
    expect 1 "hwknobs boot status = 0xffff" hwknobs result
    device reboot --status 89abcdef
    expect 1 "hwknobs boot status = 0x89abcdef" hwknobs result
    truncate -s $((0x20c03)) "$DEV/boot_para"
    expect 0 "" hwknobs result
    expect 0 "DEBUG: hwknobs_boot_status: boot para read hwknobs header failed, size mismatch 3"$'\n' hwknobs --verbose result
    expect 0 "" hwknobs --file=none result
    expect 0 "DEBUG: hwknobs_boot_status: Cannot open file none" hwknobs --verbose --file=x --file none result
}

@test "auth-status: every code" {
    local pl lk stage code message
    while IFS='|' read -r stage code message; do
        pl="Unknown Status" lk="Unknown Status"
        if [[ $stage == PL ]]; then pl=$message; else lk=$message; fi
        device reboot --pl "$code" --lk "$code"
        if [[ $code == HWKNOBS_FORCE_ENABLE ]]; then pl=$message lk=$message; fi
        expect 1 "[PL]: $pl
[LK]: $lk" hwknobs auth-status
    done < <(rows auth_codes)
    device reboot --pl PL_AUTH_FAIL
    expect 1 "[PL]: SBOOT enable, Image authentication FAIL
ERROR: hwknobs_sec_boot_status: Can't open atag,lk-sec entry
" hwknobs auth-status
    mkdir "$DEV/proc/device-tree/chosen/atag,lk-sec"
    ends_in 1 "ERROR: hwknobs_sec_boot_status: Can't read atag,lk-sec entry" hwknobs auth-status
    rm -r "$DEV/proc/device-tree/chosen"
    expect 0 "hwknobs setting does not take effect" hwknobs auth-status
}

@test "selftest" {
    local code
    for code in 6108 1104; do
        echo "$code" >"$DEV/proc/chip/hw_code"
        expect 0 "$(<"$data/selftest_passed.txt")" hwknobs --plat=px0000 selftest
    done
    echo 0 >"$DEV/proc/chip/hw_code"
    expect 2 "$(<"$data/selftest_failed.txt")" hwknobs --verbose selftest
    echo 8314 >"$DEV/proc/chip/hw_code" # a few of its names are too long
    run -2 hwknobs --verbose selftest
    [[ $output == *"Command length is greater than NAME_MAX_LEN: 31."*"not ok 2 "* ]]
}

@test "xmlconfig-show: the exact document" {
    hwknobs xmlconfig-show lcm_settings a3 perf_stat_events scycles | no_id | diff "$data/exported.xml" -
    expect 1 "ERROR: No item" hwknobs xmlconfig-show
    [[ $(hwknobs --plat=px7314 xmlconfig-show kaslr_disable) == *'platform="px7314"'* ]]
    run -0 device run sh -c 'hwknobs --verbose xmlconfig-show kaslr_disable >log; cat log'
    [[ $output == DEBUG*"<?xml"*"</hwknobs>" ]]
}

# The merged tree without what differs by design: the record of the run.
booted_tree() {
    device reboot >&2
    dtc -I dtb -O dts "$DEV/merged.dtb" 2>/dev/null | sed '/^\t\thwknobs {/,/^\t\t};/d'
    sort "$DEV/plenv"
}

@test "an exported selection boots like the one that was set" {
    local selection=(kaslr_disable lcm_settings a-3 perf_stat_events scycles enable_gpu_acp)
    hwknobs setname "${selection[@]}"
    booted_tree >"$DEV/by_set"
    hwknobs xmlconfig-show "${selection[@]}" >"$DEV/data/config.xml"
    expect 0 $'Config generate (config.xml)\n\tname dummy platform px8314\nconfig generate ok' \
        hwknobs xmlconfig-set config.xml ignored
    booted_tree | diff "$DEV/by_set" -
    run -0 hwknobs xmlconfig-set <"$DEV/data/config.xml"
    [[ ${lines[0]} == "Config generate (stdin)" ]]
    booted_tree | diff "$DEV/by_set" -
    [[ $(bytes 0x22c 1) == 00 && $(fdtget "$DEV/merged.dtb" /chosen/hwknobs command) == xmlconfig-set ]]
    run -1 hwknobs status
    [[ ${lines[2]} == $'\t> command && date && platform && failure_recovery' ]]
    echo -n true >"$DEV/proc/device-tree/chosen/hwknobs/boot_failure_recovery"
    echo -n x >"$DEV/proc/device-tree/chosen/hwknobs/item0" # is shown of a "set" alone
    run -0 hwknobs status
    [[ ${#lines[@]} == 2 && ${lines[1]} == "   plat px8314 boot recovery true" ]]
    echo -n other >"$DEV/proc/device-tree/chosen/hwknobs/command"
    run -1 hwknobs status
    [[ ${lines[2]} == "ERROR: hwknobs_system_status: unknown hwknobs command other" ]]
}

# xml BODY: applies a document of px8314 with this body.
xml() { hwknobs xmlconfig-set <<<"<hwknobs name='n' platform='px8314'>$1</hwknobs>"; }

@test "what documents may hold" {
    compiler record <<<'cat >source; printf blob'
    xml '<plsetting><item key="a" value="1"/><item key="c" value="3"/><items key="x" value="y"/></plsetting><?dtbo x?>
         <dtbo>first</dtbo><plsetting><item key="a" value="2"/><item key="B.c" value="x y"/></plsetting>
         <dtbo><![CDATA[/* <&> */]]><x/></dtbo>'
    [[ $(head -c 18 "$DEV/data/source") == "/* <&> */"$'\n'"&chosen " ]]
    [[ $(bytes 0x408 18) == "$(hex 'B.c=x y\0a=2\0c=3\0\0\0')" && $(bytes 0x200 2) == 6e00 ]]
    # No source, no blob.
    run -0 xml '<plsetting><item key="x"/><item value="y"/><item key="k" value=""/></plsetting>'
    [[ ${lines[2]} == "WARN: skip null value 0x"*", (nil)" && ${lines[3]} == "WARN: skip null value (nil), 0x"* ]]
    [[ $(bytes 0x408 4) == "$(hex 'k=\0\0')" && $(bytes 0x804 4) == 00000000 ]]
    hwknobs xmlconfig-set <<<"<hwknobs name='a2345678901234567890123456789012345' platform='px8314'/>"
    [[ $(bytes 0x21e 2) == 3100 ]] # cut to 31 characters
    printf '%-4095s' "<hwknobs name='n' platform='px8314'/>" >"$DEV/data/largest"
    ends_in 0 "config generate ok" hwknobs xmlconfig-set largest
    xml '<dtbo>
<![CDATA[lost]]></dtbo>' # the first child alone counts, a newline here
    [[ $(grep -c lost "$DEV/data/source") == 0 ]]
}

@test "documents that are refused leave the partition as it was" {
    hwknobs setname kaslr_disable
    cp "$DEV/boot_para" "$DEV/before"
    local document said errors
    # shellcheck disable=SC2034 # errors is for ends_in
    while IFS='|' read -r document said errors; do
        ends_in 1 "ERROR: $said" hwknobs xmlconfig-set <<<"$(printf '%b' "$document")"
        cmp "$DEV/boot_para" "$DEV/before"
    done < <(rows refused_documents)
    run -1 --separate-stderr hwknobs xmlconfig-set <<<"<hwknobs name='n' platform='px8314'></hwknobs"
    [[ $stderr == "noname.xml:2: parser error"* && $output == $'Config generate (stdin)\nERROR: Could not parse XML file content' ]]
    head -c 4096 /dev/zero | tr '\0' ' ' >"$DEV/data/large"
    ends_in 1 $'\t> n < sizeof(buf)' hwknobs xmlconfig-set large
    ends_in 1 "ERROR: Can't open input file -, 2" hwknobs xmlconfig-set -
    ends_in 1 "ERROR: xml config file size too small" hwknobs xmlconfig-set . # a folder
    cmp "$DEV/boot_para" "$DEV/before"
}
