#!/usr/bin/env bats
# What the guide tells to type, on virtual devices.
load device

guide=$BATS_TEST_DIRNAME/../docs/guide.md

@test "guide: every command for a device" {
    local line count=0
    cp "$BATS_TEST_DIRNAME/../test" "$DEV/data/hwknobs" # something to make executable
    while IFS= read -r line; do
        count=$((count + 1))
        if [[ $line == reboot ]]; then
            device reboot --status 0 --pl PL_SEC_DISABLE --lk LK_SEC_DISABLE
            continue
        fi
        run device run sh -c "$line"
        [[ $output != *ERROR:* && $output != *"Error in file"* && $output != *warn:* && $output != *"not found"* ]] ||
            fail "$line" "$output"
        case $line in
            'hwknobs setname '*) [[ ${lines[-1]} == "config set ok" ]] ;;
            'hwknobs xmlconfig-set'*) [[ ${lines[-1]} == "config generate ok" ]] ;;
            diff*) [[ $status == 1 ]] ;;
            'hwknobs status' | 'hwknobs status '* | 'hwknobs result' | 'hwknobs auth-status' | 'hwknobs selftest') ((status <= 2)) ;;
            *) [[ $status == 0 ]] ;;
        esac || fail "$line" "$status: $output"
    done < <(sed -nE 's/^ +\$ //p' "$guide")
    ((count > 40))
}

@test "guide: the script for many devices" {
    cd "$BATS_TEST_TMPDIR"
    local serial script command count=0
    script=$(realpath "$device_script")
    for serial in A B C D; do "$script" create "$serial" --plat-code 8314; done
    truncate -s 512 C/boot_para
    rm -r D/proc # as good as offline
    # Like older ones, this adb always ends with 0.
    mkdir bin
    cat >bin/adb <<ADB
#!/bin/bash
case \$1\$3 in
    devices) printf 'List of devices attached\n' && printf '%s\tdevice\n' A B C && printf 'D\toffline\n\n' ;;
    -sshell) "$script" run "\$2" sh -c "\$4" | sed 's/\$/\r/' ;;
    -spush) cp "\$4" "\$2/data/" ;;
esac
exit 0
ADB
    sed '1,/^```bash$/d; /^```$/,$d' "$guide" >set-all
    chmod +x set-all bin/adb
    "$script" run A hwknobs xmlconfig-show kaslr_disable >selection.xml
    PATH=$PWD/bin:$PATH
    while IFS= read -r command; do
        run bash -c "$command"
        if [[ $command != ./set-all* ]]; then continue; fi
        count=$((count + 1))
        [[ $status == 2 && $(sort <<<"$output") == "A: ok
B: ok
C: FAILED: ERROR: Partition size too small 512
D: FAILED: device: not a device: D" ]] || fail "$command" "$status: $output"
    done < <(sed -n '/^```$/,$s/^    host\$ //p' "$guide" | grep -v '^ansible') # too large to install for one line
    ((count == 2))
    run -1 bash -c 'adb() { :; }; export -f adb; ./set-all list'
    [[ $output == "no devices" ]]
}
