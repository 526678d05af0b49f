#!/usr/bin/env bats
# The virtual device itself, where namespaces are refused too.
load device

# within WAY COMMAND...: runs a command of the device script in a sandbox of which only that way leads into a device.
within() {
    local way=$1
    shift
    case $way in
        user) "$@" ;;
        proot) bwrap --dev-bind / / --unshare-user --disable-userns --cap-drop ALL "$@" ;;
    esac
}

@test "a device is the same, whichever way leads into it" {
    local way
    [[ $(<"$DEV/.way") == user* ]] || skip "only one way leads into a device here"
    for way in user proot; do
        DEV=$BATS_TEST_TMPDIR/$way
        within "$way" "$device_script" create "$DEV" --plat-code 8314
        [[ $(<"$DEV/.way") == "$way"* ]]
        expect 3 $'/data/local/tmp\ndtc' within "$way" "$device_script" run "$DEV" \
            sh -c 'pwd; echo "$DTCBIN"; read -r own </proc/self/comm; [ "$own" = sh ] && exit 3'
        # The status of the command, not that of the process which outlives it; and a signal's.
        expect 4 '' within "$way" "$device_script" run "$DEV" sh -c 'sleep 0.2 >/dev/null 2>&1 & exit 4'
        run -137 within "$way" "$device_script" run "$DEV" sh -c 'kill -KILL $$'
        within "$way" "$device_script" run "$DEV" hwknobs setname kaslr_disable
        run within "$way" "$device_script" shell "$DEV" <<<'reboot --status ffff'
        [[ $status == 0 && $output == *"boot: setting 'default' for px8314 applied, 5 properties"* ]]
        expect 1 'hwknobs boot status = 0xffff' within "$way" "$device_script" run "$DEV" hwknobs result
        run -0 within "$way" "$device_script" run "$DEV" hwknobs status
        [[ $output == *"boot recovery false"* ]]
    done
}
