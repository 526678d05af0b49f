# How commands get into a virtual device: the way that "create" found, and what is seen inside. Sourced by device.
# shellcheck shell=bash

# The ways, in the order in which they are tried:
#   user    namespaces that anybody may have, a user namespace among them
#   root    the same without the user namespace: a chroot refuses that one, to root as well
#   proot   no namespaces: the paths in system calls are changed, by way of ptrace
namespaces_of() {
    case $1 in
        user) REPLY=--unshare-all ;;
        root) REPLY='--unshare-ipc --unshare-pid --unshare-net --unshare-uts --unshare-cgroup-try' ;;
    esac
}

# Finds the first way that works, and whether a procfs may be mounted; DIR/.way keeps both, as tests run thousands of
# commands.
find_way() {
    local dev=$1 way procfs proc_args namespaces said=''
    for way in user root; do
        namespaces_of "$way"
        read -ra namespaces <<<"$REPLY"
        for procfs in 1 0; do
            proc_args=(--proc /proc)
            if ((!procfs)); then proc_args=(); fi
            # Their messages are kept, and the first of them is the one to show.
            if said+=$(bwrap "${namespaces[@]}" --ro-bind /usr /usr --symlink usr/lib /lib --symlink usr/lib64 /lib64 \
                --dev /dev --tmpfs /tmp "${proc_args[@]}" true 2>&1)$'\n'; then
                if [[ $way == root ]]; then echo 'device: no user namespaces here, using the others as root' >&2; fi
                printf '%s %s\n' "$way" "$procfs" >"$dev/.way"
                return
            fi
        done
    done
    proot -v -1 -b /usr true 2>/dev/null ||
        die "programs cannot be run in a device here, neither by bubblewrap (${said%%$'\n'*}) nor by proot"
    echo 'device: no namespaces here, using proot (device/README.md tells its limits)' >&2
    make_proot_root "$dev/.root"
    echo 'proot 1' >"$dev/.way"
}

# Mount points for proot: a path that its root lacks would be missing from the folder that holds it.
make_proot_root() {
    local root=$1 node
    mkdir -p -- "$root"/{usr,etc,proc,tmp,data/local/tmp,system/bin,system/etc,dev/pts,dev/shm,dev/block/by-name}
    ln -s usr/bin usr/sbin usr/lib usr/lib64 "$root/"
    for node in "${proot_nodes[@]}" block/by-name/boot_para; do : >"$root/dev/$node"; done
    ln -s /proc/self/fd "$root/dev/fd"
    ln -s fd/0 "$root/dev/stdin"
    ln -s fd/1 "$root/dev/stdout"
    ln -s fd/2 "$root/dev/stderr"
}
proot_nodes=(null zero full random urandom tty ptmx)

# enter DIR COMMAND...: runs the command, and exits with its status. Without a fork where proot is not needed.
enter() {
    local dev=$1 way procfs name variables=(PATH=/system/bin:/usr/bin:/bin ENV=/system/etc/shrc)
    shift
    [[ -f $binary ]] || die "no hwknobs binary at $binary (build it, or set HWKNOBS)"
    if [[ ! -e $dev/.way ]]; then find_way "$dev"; fi
    read -r way procfs <"$dev/.way"
    procfs=${DEVICE_PROCFS:-$procfs}
    if [[ ${DTCBIN-} != unset ]]; then variables+=("DTCBIN=${DTCBIN-dtc}"); fi
    for name in ASAN_OPTIONS UBSAN_OPTIONS LSAN_OPTIONS TERM TZ; do
        if [[ -v $name ]]; then variables+=("$name=${!name}"); fi
    done
    if [[ $way == proot ]]; then enter_proot "$@"; else enter_namespaces "$@"; fi
}

# Both of these use the variables of enter.

enter_namespaces() {
    local args variable
    namespaces_of "$way"
    read -ra args <<<"$REPLY"
    args+=(
        --die-with-parent --cap-drop ALL --clearenv
        --ro-bind /usr /usr
        --symlink usr/bin /bin --symlink usr/sbin /sbin --symlink usr/lib /lib
        --dir /etc --ro-bind-try /etc/ld.so.cache /etc/ld.so.cache
        --ro-bind-try /etc/localtime /etc/localtime
        --dir /system/bin --ro-bind "$binary" /system/bin/hwknobs
        --dir /system/etc --ro-bind "$here/shrc.sh" /system/etc/shrc
        --ro-bind "$dev/proc" /proc
        --dev /dev --dir /dev/block/by-name
        --perms 1777 --tmpfs /tmp
        --dir /data/local --bind "$dev/data" /data/local/tmp --chdir /data/local/tmp
    )
    if [[ -d /usr/lib64 ]]; then args+=(--symlink usr/lib64 /lib64); fi
    if [[ -e $dev/boot_para ]]; then
        args+=(--bind "$dev/boot_para" /dev/block/by-name/boot_para)
    fi
    if [[ $procfs == 1 ]]; then
        args+=(--proc /proc/.kernel --remount-ro /proc/.kernel)
    fi
    # Last, as mount points are made in it: / is not writable on a device.
    args+=(--remount-ro /)
    for variable in "${variables[@]}"; do args+=(--setenv "${variable%%=*}" "${variable#*=}"); done
    # On a terminal a session of its own would take job control from the command.
    if [[ ! -t 0 ]]; then args+=(--new-session); fi
    exec bwrap "${args[@]}" -- "$@"
}

enter_proot() {
    local node kept status=0 args=(
        -v -1 # nothing but errors
        -r "$dev/.root" -w /data/local/tmp
        -b /usr
        -b /etc/ld.so.cache -b /etc/localtime
        -b "$binary:/system/bin/hwknobs"
        -b "$here/shrc.sh:/system/etc/shrc"
        -b "$dev/data:/data/local/tmp"
        -b /dev/pts -b /dev/shm
    )
    for node in "${proot_nodes[@]}"; do args+=(-b "/dev/$node"); done
    if [[ -e $dev/boot_para ]]; then args+=(-b "$dev/boot_para:/dev/block/by-name/boot_para"); fi
    # proot knows /proc/self only where the host has it, so the device's part is laid over the host's.
    if [[ $procfs == 1 ]]; then args+=(-b /proc); fi
    for node in device-tree chip; do
        if [[ -e $dev/proc/$node ]]; then args+=(-b "$dev/proc/$node:/proc/$node"); fi
    done
    # Leaks cannot be looked for in a process that is traced.
    variables+=("ASAN_OPTIONS=${ASAN_OPTIONS-}:detect_leaks=0")
    # proot itself ends with the status of the last process, which can be one that the command left behind.
    kept=/tmp/status.$$
    env -i "${variables[@]}" proot "${args[@]}" sh -c '"$@"; echo $? >"$0"' "$kept" "$@" || status=$?
    if [[ -e $dev/.root$kept ]]; then
        read -r status <"$dev/.root$kept"
        rm -- "$dev/.root$kept"
    fi
    exit "$status"
}
