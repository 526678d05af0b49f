# Each test has a virtual device of its own, in the test's temporary folder.
bats_require_minimum_version 1.5.0

tests=${BASH_SOURCE[0]%/*}
device_script=$tests/../device/device
# shellcheck disable=SC2034 # tables of cases and expected outputs, for the tests
data=$tests/data
DEV=$BATS_TEST_TMPDIR/device

setup() { "$device_script" create "$DEV" --plat-code 8314; }

device() { "$device_script" "$1" "$DEV" "${@:2}"; }
# For seconds only: a warning that is repeated without end must not fill the memory of the test that keeps it.
hwknobs() (ulimit -t 10 && device run hwknobs "$@")

needs_strace() { if [[ $(<"$DEV/.way") == proot* ]]; then skip "strace does not work under proot"; fi; }

fail() {
    printf '%s\n' "$@"
    return 1
}

# expect STATUS OUTPUT COMMAND...: runs the command, which gives exactly this and a newline on standard output.
# On standard error it says nothing, or what matches the pattern in "errors", which a case sets for itself.
expect() {
    run --keep-empty-lines --separate-stderr "${@:3}"
    if [[ $status != "$1" || $output != "$2${2:+$'\n'}" ]] || ! said_errors; then
        echo "command: ${*:3}"
        echo "status:  $status, expected $1"
        echo "errors:  $stderr"
        diff <(echo "$2") <(echo -n "$output") || true
        return 1
    fi
}

# ends_in STATUS LINE COMMAND...: the same for the last line alone.
ends_in() {
    run --separate-stderr "${@:3}"
    { [[ $status == "$1" && ${lines[-1]-} == "$2" ]] && said_errors; } || fail "command: ${*:3}" "$status: $output" "$stderr"
}

# shellcheck disable=SC2053 # a pattern
said_errors() { [[ ${stderr%$'\n'} == ${errors-} ]]; }

# rows TABLE: its lines without the first, which names its columns.
rows() { tail -n +2 "$data/$1.txt"; }

# compiler NAME [SHELL]: a compiler in the device's data folder, which is the working directory inside. Its body is on
# stdin.
compiler() {
    cat <(echo "#!/bin/${2-sh}") - >"$DEV/data/$1"
    chmod +x "$DEV/data/$1"
    export DTCBIN=./$1
}

id_of() { hwknobs list | awk -v name="$1" '$0 ~ " " name " " { print $1 }'; }

# patch OFFSET BYTES: overwrites a part of the partition; BYTES as printf knows them.
patch() { printf "%b" "$2" | dd of="$DEV/boot_para" bs=1 seek=$(($1)) conv=notrunc status=none; }
bytes() { dd if="$DEV/boot_para" bs=1 skip=$(($1)) count=$(($2)) status=none | digits; }
hex() { printf '%b' "$1" | digits; }
digits() { od -An -v -tx1 | tr -d ' \n'; }
is_blank() { cmp -s -n "$(stat -c %s "$DEV/boot_para")" "$DEV/boot_para" /dev/zero; }

no_id() { sed -E '/Activate/s/\([0-9]+\)/(ID)/'; }
no_timestamp() { sed -E 's/[0-9]{4}-[0-9]{2}-[0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2}/TIME/'; }
