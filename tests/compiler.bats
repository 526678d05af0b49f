#!/usr/bin/env bats
# Compilers that fail, and compilers that treat their three streams in unusual ways.
load device

@test "failures end in a message and status 1, and leave no setting" {
    local body said
    hwknobs setname kaslr_disable
    cp "$DEV/boot_para" "$DEV/good"
    while IFS='|' read -r body said; do
        cp "$DEV/good" "$DEV/boot_para"
        compiler dtc <<<"$body"
        run -1 timeout 20 "$device_script" run "$DEV" hwknobs setname kaslr_disable
        [[ ${output#*randomize-base$'\n'} == "$(printf '%b' "$said")" ]] || fail "$body: $output"
        is_blank
    done < <(rows failing_compilers)
    compiler dtc <<<'cat >/dev/null; seq 2000 >&2; exit 1' # more than one read takes
    run -1 hwknobs --verbose setname kaslr_disable
    [[ $output == *$'\n'"$(seq 2000)"$'\n==================\n'"DEBUG: Dump dt_fragment:
DEBUG: /dts-v1/;"* ]]
}

@test "a compiler that is gone before it has read its input, and pipes that cannot be as large as others" {
    needs_strace
    local strace=(env ASAN_OPTIONS=detect_leaks=0 strace -o /dev/null -e inject=poll:delay_enter=300000:when=1)
    hwknobs setname kaslr_disable
    compiler dtc <<<'exit 0' # it read nothing, and says that all went well
    ends_in 1 "== dts (size: 0) ==" device run "${strace[@]/poll/write}" hwknobs status --partition
    ends_in 1 "ERROR: Write fragment error" device run "${strace[@]}" hwknobs setname kaslr_disable
    compiler dtc <<<'echo why >&2; exit 4'
    run -1 device run "${strace[@]}" hwknobs setname kaslr_disable
    [[ $output == *"why"*"ERROR: DTC './dtc' failed (status 4)" ]]
    hwknobs xmlconfig-set <<<"<hwknobs name='n' platform='px8314'/>"
    compiler dtc <<<'cat >/dev/null; seq 40000' # more than 64 KiB
    ends_in 1 "== dts (size: 228894) ==" timeout 20 "$device_script" run "$DEV" \
        env ASAN_OPTIONS=detect_leaks=0 strace -o /dev/null -e inject=fcntl:error=EPERM:when=5 hwknobs status --partition
}

@test "streams closed in any order lose no bytes" {
    local body
    while read -r body; do
        compiler dtc <<<"$body"
        run -0 timeout 20 "$device_script" run "$DEV" hwknobs setname kaslr_disable
        [[ ${lines[-1]} == "config set ok" && $(bytes 0x804 4) == 00000200 ]] || fail "$body: $output"
        [[ $(bytes 0x20900 256) == "$(printf '00%.0s' {1..256})" && $(bytes 0x209fc 4) == 00000000 ]]
    done < <(rows odd_compilers)
}

@test "each line is printed once and in order, whoever writes" {
    compiler dtc <<<'cat >/dev/null; echo "from the compiler" >&9; exit 1'
    run -1 device run sh -c 'hwknobs setname kaslr_disable >>log 9>>log; status=$?; cat log; exit $status'
    [[ ${#lines[@]} == 7 && ${lines[2]} == "from the compiler" && ${lines[3]} == "DTC compile failed" ]]
    DTCBIN='' run -1 hwknobs setname kaslr_disable
    [[ $(grep -c '' <<<"$output") == 6 && $output == *$'==================\nERROR: DTC \'\' failed (status 1)' ]]
}

@test "the child starts with default signals and no file of the tool, the tool survives an ignored SIGCHLD" {
    local caller=(env --ignore-signal={HUP,RTMAX,CHLD,PIPE,INT,XFSZ} --block-signal=USR1)
    # This shell keeps the signals that it was started with, others reset some.
    compiler dtc bash <<<'grep -E "^Sig(Ign|Blk)" /proc/self/status >signals; readlink /proc/self/fd/* >files; exec dtc "$@"'
    echo "<hwknobs name='n' platform='px8314'><dtbo>/dts-v1/; /plugin/;</dtbo></hwknobs>" >"$DEV/data/document"
    ends_in 0 "config generate ok" hwknobs xmlconfig-set document
    [[ -s $DEV/data/files && $(<"$DEV/data/files") != *document* ]]
    run -0 device run "${caller[@]}" hwknobs setname kaslr_disable
    [[ ! -s $DEV/data/signals || $(tr -d '\n' <"$DEV/data/signals") =~ ^SigBlk:.0+SigIgn:.0+$ ]]
    [[ $(<"$DEV/data/files") != *boot_para* ]]
    run -1 device run "${caller[@]}" hwknobs status --partition
    [[ $output == *"kaslr_disable"* ]]
}

@test "the command that reads back, and long names of compilers" {
    hwknobs setname kaslr_disable
    compiler dtc_vendor <<<'echo "$@" >arguments; cat >/dev/null'
    DTCBIN="unset" run -1 device run env MALLOC_PERTURB_=1 PATH=/data/local/tmp:/system/bin:/usr/bin hwknobs status --partition
    [[ ${lines[-1]} == "== dts (size: 0) ==" ]]
    [[ $(<"$DEV/data/arguments") == "-Wno-unit_address_vs_reg -I dtb -O dts -" ]]
    export DTCBIN
    compiler names <<<'echo "$@" >arguments; exec dtc "$@"'
    DTCBIN=$(printf './%.0s' {1..123})names
    run -1 hwknobs status --partition
    [[ $(<"$DEV/data/arguments") == -Wn ]] # 251 + 4 characters
    DTCBIN=$(printf './%.0s' {1..125})names/not
    run -1 hwknobs status --partition
    [[ $(<"$DEV/data/arguments") == "" ]] # the first 255 characters of the name
    ends_in 0 "config set ok" hwknobs setname kaslr_disable
}
