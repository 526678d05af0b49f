# The boot side of a virtual device: reads the partition as a bootloader does, merges its
# overlay into the device's tree and lays the result out under /proc. Sourced by device.
# shellcheck shell=bash

# Where things are in the partition.
section_magic=$((0x58881688))
setting_at=$((0x200))
platform_at=$((0x220))
plenv_at=$((0x400))
overlay_section_at=$((0x800))
overlay_at=$((0xA00))
overlay_limit=$((0x20000))
status_at=$((0x20C00))

boot_failed() {
    printf 'boot: %s\n' "$1"
    exit 1
}

# REPLY: the little-endian word at an offset of the partition.
word_at() {
    REPLY=$((part[$1] | part[$1 + 1] << 8 | part[$1 + 2] << 16 | part[$1 + 3] << 24))
}

# REPLY: the NUL-padded text in a field (offset, length) of the partition. Fails when it does not end within the field.
text_at() {
    local i text=''
    for ((i = $1; i < $1 + $2 && part[i]; i++)); do
        printf -v text '%s\\x%x' "$text" "${part[i]}"
    done
    printf -v REPLY '%b' "$text"
    ((i < $1 + $2))
}

is_section() {
    word_at "$1"
    ((REPLY == section_magic)) && text_at $(($1 + 8)) 32 && [[ $REPLY == "$2" ]]
}

plenv_is_sound() {
    local at word i sum=0
    for at in 0 1012; do
        word_at $((plenv_at + at))
        word=$REPLY
        word_at $((plenv_at + at + 4))
        # "ENV_", "v1\0\0"
        ((word == 0x5F564E45 && REPLY == 0x00003176)) || return 1
    done
    for ((i = plenv_at + 8; i < plenv_at + 1012; i++)); do sum=$((sum + part[i])); done
    word_at $((plenv_at + 1020))
    ((sum == REPLY))
}

# The section of an overlay of that size, also where there is none: zeros are what a power cut leaves behind the plenv block.
# The blob has to be a tree of just that size.
overlay_is_sound() {
    local i total='' size=$1
    is_section "$overlay_section_at" hwknobs-dt && ((size <= overlay_limit)) || return 1
    ((size)) || return 0
    ((${#part[@]} == overlay_at + 8)) || return 1
    for ((i = overlay_at; i < overlay_at + 8; i++)); do printf -v total '%s%02X' "$total" "${part[i]}"; done
    printf -v size 'D00DFEED%08X' "$size"
    [[ $total == "$size" ]]
}

# Copies a range (offset, length) of the partition to standard output.
cut_out() {
    dd if="$dev/boot_para" bs=64K iflag=skip_bytes,count_bytes \
        skip="$1" count="$2" status=none
}

write_status() {
    le32_escaped "$1"
    [[ -e $dev/boot_para ]] || die '--status: the device has no partition'
    (($(stat -L -c %s -- "$dev/boot_para") >= status_at + 4)) ||
        die '--status: the partition is too small'
    printf '%b' "$REPLY" |
        dd of="$dev/boot_para" bs=4 seek=$((status_at / 4)) conv=notrunc status=none
}

# A loader's security code is a property of chosen; without one there is no file.
set_code() {
    local file=$dev/proc/device-tree/chosen/$1
    if [[ -n $2 ]]; then printf '%s\0' "$2" >"$file"; else rm -f -- "$file"; fi
}

apply_plenv() {
    local entry
    while IFS= read -r -d '' entry || [[ -n $entry ]]; do
        [[ -n $entry ]] || break
        printf '%s\n' "$entry"
        entries=$((entries + 1))
    done < <(cut_out $((plenv_at + 8)) 1004) >"$dev/plenv"
}

# A base tree that has what the overlay refers to by label: an empty one, or
# DIR/tree.dts, which has no labels. A blob that cannot be read is left for
# fdtoverlay to refuse.
make_base() {
    local label labels='' nodes
    nodes=$(fdtget -l "$work/overlay.dtbo" / 2>&1) || nodes=
    if [[ $'\n'$nodes$'\n' == *$'\n__fixups__\n'* ]]; then
        labels=$(fdtget -p "$work/overlay.dtbo" /__fixups__) || return
    fi
    {
        if [[ -e $dev/tree.dts ]]; then cat -- "$dev/tree.dts"; else echo '/dts-v1/;'; fi
        printf '/ {\n\tchosen: chosen { };\n'
        while IFS= read -r label; do
            [[ -n $label && $label != chosen ]] || continue
            if [[ ! $label =~ ^[A-Za-z_][A-Za-z0-9_]*$ ]]; then
                printf 'not a label: %s\n' "$label" >&2
                return 1
            fi
            printf '\t%s: %s { };\n' "$label" "$label"
        done <<<"$labels"
        printf '};\n'
    } >"$work/base.dts"
    dtc -@ -q -I dts -O dtb -o "$work/base.dtb" "$work/base.dts"
}

merge() {
    make_base || return
    # From within the folder, so that messages name plain files.
    (cd -- "$work" && fdtoverlay -i base.dtb -o merged.dtb overlay.dtbo)
}

# Lays out a node of the merged tree as the kernel shows it. All values come
# from one call, as bytes in hex: a fork for each property would take seconds.
lay_out() {
    local node=$1 folder=$2 tree=$work/merged.dtb
    local names nodes name bytes text i=0 pairs=()
    fdtget -p "$tree" "$node" >"$work/names" || boot_failed "cannot read $node"
    fdtget -l "$tree" "$node" >"$work/nodes" || boot_failed "cannot read $node"
    mapfile -t names <"$work/names"
    mapfile -t nodes <"$work/nodes"
    mkdir -- "$folder"
    text=${node##*/}
    printf '%s\0' "${text%%@*}" >"$folder/name"
    for name in "${names[@]}"; do
        case $name in
            '' | . | .. | */*) boot_failed "no property file can be named '$name'" ;;
        esac
        pairs+=("$node" "$name")
    done
    if ((${#pairs[@]})); then
        fdtget -t bx -- "$tree" "${pairs[@]}" >"$work/values" || boot_failed "cannot read $node"
        while read -r -a bytes; do
            text=
            if ((${#bytes[@]})); then printf -v text '\\x%s' "${bytes[@]}"; fi
            printf '%b' "$text" >"$folder/${names[i]}"
            i=$((i + 1))
        done <"$work/values"
    fi
    ((i == ${#names[@]})) || boot_failed "cannot read all properties of $node"
    properties=$((properties + i))
    for name in "${nodes[@]}"; do lay_out "$node/$name" "$folder/$name"; done
}

apply_overlay() {
    local size=$1 message nodes
    work=$(mktemp -d -- "$dev/.boot.XXXXXX")
    trap 'rm -rf -- "$work"' EXIT
    cut_out "$overlay_at" "$size" >"$work/overlay.dtbo"
    if ! message=$(merge 2>&1); then
        boot_failed "overlay does not merge: ${message#$'\n'}"
    fi
    nodes=$(fdtget -l "$work/merged.dtb" /chosen) || boot_failed 'cannot read /chosen'
    if [[ $'\n'$nodes$'\n' == *$'\nhwknobs\n'* ]]; then
        lay_out /chosen/hwknobs "$work/hwknobs"
        mv -- "$work/hwknobs" "$dev/proc/device-tree/chosen/hwknobs"
    fi
    mv -- "$work/merged.dtb" "$dev/merged.dtb"
}

# REPLY: a number with its noun (number, singular, plural).
counted() {
    if (($1 == 1)); then REPLY="$1 $2"; else REPLY="$1 $3"; fi
}

boot() {
    local part=() setting platform overlay_size entries=0 properties=0 tree='no overlay'
    rm -rf -- "$dev/proc/device-tree/chosen/hwknobs" "$dev/merged.dtb" "$dev/plenv"
    if [[ -e $dev/boot_para ]]; then
        mapfile -t part < <(od -An -v -w1 -tu1 -N $((overlay_at + 8)) -- "$dev/boot_para")
    fi
    if ((${#part[@]} < overlay_at)) || ! is_section 0 hwknobs; then
        echo 'boot: no setting'
        return
    fi
    text_at "$setting_at" 32 || boot_failed 'info damaged'
    setting=$REPLY
    text_at "$platform_at" 12 || boot_failed 'info damaged'
    platform=$REPLY
    plenv_is_sound || boot_failed 'plenv block damaged'
    word_at $((overlay_section_at + 4))
    overlay_size=$REPLY
    overlay_is_sound "$overlay_size" || boot_failed 'overlay section damaged'
    # The pairs last: a setting whose overlay is refused is not used in part.
    if ((overlay_size)); then
        apply_overlay "$overlay_size"
        counted "$properties" property properties
        tree="$REPLY under /chosen/hwknobs"
    fi
    apply_plenv
    counted "$entries" 'plenv entry' 'plenv entries'
    printf "boot: setting '%s' for %s applied, %s, %s\n" "$setting" "$platform" "$tree" "$REPLY"
}

reboot() {
    (($#)) || die 'reboot needs a DIR'
    # Not local: the trap that removes the work folder runs outside of functions.
    dev=$1 work=
    local status='' pl='' lk=''
    shift
    while (($#)); do
        case $1 in
            --status)
                need_value "$@"
                status=$2
                shift 2
                ;;
            --pl)
                need_value "$@"
                pl=$2
                shift 2
                ;;
            --lk)
                need_value "$@"
                lk=$2
                shift 2
                ;;
            *) die "reboot: unknown option: $1" ;;
        esac
    done
    need_device "$dev"
    export LC_ALL=C # texts in the partition are bytes
    if [[ -n $status ]]; then write_status "$status"; fi
    set_code atag,pl-sec "$pl"
    set_code atag,lk-sec "$lk"
    boot
}
