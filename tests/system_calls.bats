#!/usr/bin/env bats
# System calls that fail, one at a time: each ends in its message and status 1.
load device

# Of the calls of one name a path filter and a number pick out the one that is to fail.
@test "a failing call ends in its message" {
    needs_strace
    hwknobs setname kaslr_disable
    cp "$DEV/boot_para" "$DEV/good"
    printf '\0\0\0\0\x14\x83\0\0%12s' '' >"$DEV/proc/device-tree/chosen/atag,chipid" # for where hw_code cannot be read
    local partition=/dev/block/by-name/boot_para command filter inject said errors
    # shellcheck disable=SC2034 # errors is for said_errors
    while IFS='|' read -r command filter inject said errors; do
        cp "$DEV/good" "$DEV/boot_para"
        # shellcheck disable=SC2086
        run -1 --separate-stderr timeout 20 "$device_script" run "$DEV" env ASAN_OPTIONS=detect_leaks=0 \
            strace -o /dev/null ${filter/PART/-P $partition} -e "inject=$inject" hwknobs $command
        { [[ ${lines[-1]//$partition/PART} == "$said"* ]] && said_errors; } || fail "$command $inject: $output" "$stderr"
    done < <(rows failing_calls)
}

@test "what is written is written through, and never by a standard descriptor" {
    needs_strace
    device run env ASAN_OPTIONS=detect_leaks=0 strace -o log -P /dev/block/by-name/boot_para \
        sh -c 'exec hwknobs setname kaslr_disable <&- 2>&-'
    [[ $(grep -c 'O_RDWR.*O_SYNC' "$DEV/data/log") == 2 && $(grep -c 'open.* = [0-2]$' "$DEV/data/log") == 0 ]]
}
