#!/usr/bin/env bats
# The command line: options, platforms and listings.
load device

@test "usage and unknown words" {
    local usage words said errors
    usage=$(<"$data/usage.txt")
    expect 1 "$usage" hwknobs --verbose --plat px0000
    expect 1 "${usage//usage hwknobs/usage x/y}" device run bash -c 'exec -a x/y hwknobs --help plat-list'
    expect 1 "ERROR: Unknown command '$(printf 'x%.0s' {1..238})" hwknobs "$(printf 'x%.0s' {1..239})" # cut
    # shellcheck disable=SC2034 # errors is for expect
    while IFS='|' read -r words said errors; do
        # shellcheck disable=SC2086
        expect 1 "$said" hwknobs $words
    done < <(rows refused_words)
}

@test "detection of the platform" {
    local unknown="ERROR: Can't determine platform, fix it first or specify the platform via --plat"$'\n'
    local chosen=$DEV/proc/device-tree/chosen code
    for code in 0 10000 0x0; do # only 16 bits count
        echo "$code" >"$DEV/proc/chip/hw_code"
        run -0 hwknobs list
        [[ ${lines[0]} == "XPR config list (arch px0000) num:7" ]]
    done
    printf '\0\0\0\0\x10\x62\0\0%12s' '' >"$chosen/atag,chipid"
    for code in ffff zz ''; do # the file decides, even against a chipid that names one
        echo "$code" >"$DEV/proc/chip/hw_code"
        expect 1 "$unknown" hwknobs list
    done
    rm "$DEV/proc/chip/hw_code"
    printf '\0\0\0\0\x10\x63\0\0%12s' '' >"$chosen/atag,chipid"
    expect 1 "$unknown" hwknobs list
    printf '\0\0\0\0\x10\x62\x01\0%16s' '' >"$chosen/atag,chipid" # longer than 20 bytes
    run -0 hwknobs list-group
    [[ ${lines[0]} == "XPR config list group (arch px6210) " ]]
    printf '\0\0\0\0\x10\x62\0\0%11s' '' >"$chosen/atag,chipid"
    expect 1 "$unknown" hwknobs list
    : >"$chosen/atag,chipid"
    expect 1 "$unknown" hwknobs list
    rm "$chosen/atag,chipid"
    expect 1 "Fail to open /proc/device-tree/chosen/atag,chipid(2), No such file or directory
$unknown" hwknobs list
    mkdir "$chosen/atag,chipid"
    expect 1 "Fail to read /proc/device-tree/chosen/atag,chipid(21), Is a directory
$unknown" hwknobs list
    echo 1206 >"$DEV/proc/chip/hw_code"
    run -0 hwknobs --verbose list
    [[ ${output%%XPR*} == "DEBUG: platform query hw_code 1206
DEBUG: plat px0000 hw_code 0
DEBUG: plat px1104 hw_code 1104
DEBUG: plat px1206 hw_code 1206
" ]]
}

@test "platforms and groups" {
    local groups
    [[ $(hwknobs plat-list | head -n 3) == $'Support platform\n\tpx0000\n\tpx1104' ]]
    echo ffff >"$DEV/proc/chip/hw_code" # is compared with all of them
    diff <(hwknobs plat-list | sed -n 's/^\t//p') <(hwknobs --verbose list | sed -n 's/^DEBUG: plat \(.*\) hw_code.*/\1/p')
    echo 8314 >"$DEV/proc/chip/hw_code"
    expect 0 "This platfrom does not support groups." hwknobs --plat=px8314 --plat px0000 list-group
    expect 0 "$(<"$data/groups.txt")" hwknobs list-group
    run -0 --separate-stderr hwknobs list --bad word -g KERNEL --group GPU --all
    [[ $stderr == "list: unrecognized option '--bad'" && ${lines[0]} == "XPR config list V2 (arch px8314) group selected:( KERNEL  GPU )" ]]
    [[ $(tail -n +4 <<<"$output" | awk '{ print $NF }' | sort -u | xargs) == "GPU KERNEL" ]]
    mapfile -t groups < <(tail -n +4 "$data/groups.txt" | awk '{ print $2 }')
    run -0 hwknobs list "${groups[@]/#/--group=}"
    [[ ${lines[0]} == *"($(printf ' %s ' "${groups[@]}"))" ]]
    diff <(tail -n +2 <<<"$output") <(hwknobs list | tail -n +2)
    expect 0 "Unknown group: cpu
Unknown group: UNKNOWN" hwknobs list --group=CPU --group=cpu --group=UNKNOWN
}

@test "output that cannot be written is no success, and a closed one harms no file" {
    run -1 device run sh -c 'hwknobs plat-list >/dev/full'
    run -1 device run sh -c 'hwknobs --verbose clear >&-'
    is_blank
}
