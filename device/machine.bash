# The machine that boot-test boots: Debian's kernel, the programs beside the tool, the disk and qemu. Sourced after
# debian.bash; "work" and "disk" are set by then, and "limit", the seconds that a boot may take.
# shellcheck shell=bash disable=SC2164 # set -e holds

fetch_guest() {
    local kernel deb
    cd -- "$1"
    set_up_apt "$1/apt" deb arm64
    kernel=$(run_apt apt-cache depends linux-image-cloud-arm64 | sed -n 's/^ *Depends: \(linux-image-\)/\1/p')
    run_apt apt-get download "$kernel" busybox-static device-tree-compiler libc6 libfdt1 libyaml-0-2
    for deb in *.deb; do dpkg -x "$deb" unpacked; done
    mkdir -p guest/root/{bin,lib,system/bin,vendor/bin}
    cp unpacked/boot/vmlinuz-* guest/kernel
    cd -- unpacked
    cp bin/busybox ../guest/root/bin/
    cp usr/bin/dtc ../guest/root/vendor/bin/dtc_vendor
    cp -L lib/ld-linux-aarch64.so.1 lib/aarch64-linux-gnu/libc.so.6 \
        usr/lib/aarch64-linux-gnu/{libfdt.so.1,libyaml-0.so.2} ../guest/root/lib/
}

# In the cache: the kernel, and a root folder that lacks only the tool.
get_guest() {
    if [[ -e $cache/guest ]]; then return; fi
    echo 'fetching the kernel'
    rm -rf -- "$cache/guest.fetch"
    mkdir -p -- "$cache/guest.fetch"
    (fetch_guest "$cache/guest.fetch")
    mv -- "$cache/guest.fetch/guest" "$cache/guest"
    rm -rf -- "$cache/guest.fetch"
}

# The first program in the guest. Powering off without a sync: what the tool wrote has to
# be on the disk by then.
write_init() {
    cat <<'INIT'
#!/bin/busybox sh
/bin/busybox mkdir -p /proc /sys /dev /tmp /data/local/tmp
/bin/busybox --install -s /bin
export PATH=/system/bin:/vendor/bin:/bin
mount -t proc proc /proc
mount -t sysfs sysfs /sys
mount -t devtmpfs dev /dev
exec </dev/console >/dev/console 2>&1
mkdir -p /dev/block/by-name
for wait in 1 2 3 4 5 6 7 8 9 10; do
  for partition in /sys/class/block/*/partition; do
    partition=${partition%/partition}
    grep -qx PARTNAME=boot_para "$partition/uevent" || continue
    ln -s "/dev/${partition##*/}" /dev/block/by-name/boot_para
    break 2
  done
  sleep 0.2
done
# The last to close a partition waits for its data to be written: the tool must not be that.
exec 3</dev/block/by-name/boot_para
cd /data/local/tmp
while IFS= read -r command; do
  echo "@@ $command"
  sh -c "$command" </dev/null
  echo "@@ status $?"
done </commands
echo '@@ end'
poweroff -n -f
INIT
}

# ---- the disk and the tree

machine=(-M virt -cpu cortex-a72 -m 256M -accel 'tcg,thread=single' -nographic -nodefaults
    -serial stdio -no-reboot -nic none)

# The machine's own tree in source form, with what a device's first stage adds to it.
write_tree() {
    local dumping=("${machine[@]}")
    dumping[1]=virt,dumpdtb=$work/machine.dtb
    qemu-system-aarch64 "${dumping[@]}" </dev/null >"$work/dumpdtb.log" 2>&1
    dtc -q -I dtb -O dts "$work/machine.dtb"
    echo '/ { chosen { atag,chipid = [00000000 0861 0000 00000000 00000000 00000000]; }; };' # of px6108
}

# A partition table with neighbours that nobody may touch.
make_disk() {
    local start
    truncate -s 16M "$disk"
    sfdisk -q "$disk" <<'TABLE'
label: gpt
start=2048, size=2048, name=misc
start=4096, size=8192, name=boot_para
start=12288, size=2048, name=userdata
TABLE
    for start in 2048 12288; do
        head -c 1M /dev/zero | tr '\0' N | dd of="$disk" bs=512 seek=$start conv=notrunc status=none
    done
}

# Everything but boot_para, the partition table included.
rest_of_disk() {
    { dd if="$disk" bs=512 count=4096 && dd if="$disk" bs=512 skip=12288; } 2>/dev/null | sha256sum
}

# ---- qemu

qemu_pid=

stop_qemu() {
    [[ -n $qemu_pid ]] || return 0
    kill -KILL "$qemu_pid" 2>/dev/null || :
    wait "$qemu_pid" 2>/dev/null || :
    qemu_pid=
}

# Runs the machine with a tree until it powers off, or until a line LAST is seen, when its
# power is cut. Succeeds when that came within the time limit.
run_machine() {
    local log=$1 tree=$2 last=${3-} serial=$work/serial line deadline=$((SECONDS + limit)) in came=1
    rm -f -- "$serial"
    mkfifo -- "$serial"
    # The host's cache outlives qemu: no flush is needed to find what reached the disk.
    qemu-system-aarch64 "${machine[@]}" -kernel "$cache/guest/kernel" -initrd "$work/initrd" \
        -dtb "$tree" -append 'console=ttyAMA0 quiet loglevel=1 panic=-1' \
        -drive "file=$disk,if=none,id=disk,format=raw,cache=unsafe" \
        -device nvme,drive=disk,serial=disk </dev/null >"$serial" 2>&1 &
    qemu_pid=$!
    exec {in}<"$serial"
    : >"$log"
    while ((SECONDS < deadline)) &&
        IFS= read -r -t $((deadline - SECONDS)) -u "$in" line; do
        line=${line//$'\r'/}
        if [[ -n $last && $line == "$last" ]]; then
            came=0
            break
        fi
        printf '%s\n' "$line" >>"$log"
        if [[ -z $last && $line == '@@ end' ]]; then
            # From here on it has only to power off.
            came=0
        fi
    done
    if [[ -n $last ]]; then stop_qemu; fi
    exec {in}<&-
    while kill -0 "$qemu_pid" 2>/dev/null && ((SECONDS < deadline)); do sleep 0.1; done
    if kill -0 "$qemu_pid" 2>/dev/null; then came=1; fi
    stop_qemu
    return "$came"
}
