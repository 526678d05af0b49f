# What build-static and boot-test share: their places, and what they take from Debian. Sourced.
# shellcheck shell=bash

top=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)
# All that is downloaded, and what takes long to build; remove it to begin anew.
# shellcheck disable=SC2034 # used by those who source this
cache=$top/.cache/device

# shellcheck source=../scripts/setup.bash
. "$top/scripts/setup.bash"

fail() {
    printf '%s: %s\n' "${0##*/}" "$1" >&2
    exit 1
}

# Makes run_apt fetch sources (TYPE deb-src) or packages of another architecture (TYPE
# deb), with settings and lists of its own in FOLDER: the machine's are left as they are,
# but where packages come from is taken from them.
set_up_apt() {
    local folder=$1 type=$2 arch=$3
    mkdir -p -- "$folder"/{sources,lists/partial,archives/partial}
    : >"$folder/status"
    write_sources "$type" "$arch" >"$folder/sources/debian.list"
    apt_options=(
        -qq -o APT::Architecture="$arch" -o APT::Architectures::="$arch"
        -o APT::Sandbox::User=root -o APT::Update::Error-Mode=any
        -o Dir::Etc::SourceList=/dev/null -o Dir::Etc::SourceParts="$folder/sources"
        -o Dir::State="$folder" -o Dir::State::Lists="$folder/lists"
        -o Dir::State::Status="$folder/status" -o Dir::Cache="$folder"
    )
    run_apt apt-get update
}

run_apt() {
    local program=$1
    shift
    "$program" "${apt_options[@]}" "$@"
}

# The archives of this Debian that the machine is set up for. Their origin is not known
# where the machine's own lists were never fetched.
write_sources() {
    local codename uri release component origin
    # shellcheck source=/dev/null
    codename=$(. /etc/os-release && printf %s "${VERSION_CODENAME-}")
    [[ -n $codename ]] || fail 'cannot tell the release of Debian'
    # shellcheck disable=SC2016 # apt's variables
    apt-get indextargets --format '$(REPO_URI) $(RELEASE) $(COMPONENT) $(ORIGIN)' \
        'Created-By: Packages' | sort -u |
        while read -r uri release component origin; do
            case $release:$origin in
                "$codename"*:Debian | "$codename"*:'$(ORIGIN)')
                    printf '%s [arch=%s signed-by=%s] %s %s %s\n' "$1" "$2" \
                        /usr/share/keyrings/debian-archive-keyring.gpg "$uri" "$release" "$component"
                    ;;
            esac
        done
}
