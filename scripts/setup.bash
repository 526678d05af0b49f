# What the scripts of this repository need from Debian 12. Sourced.
# shellcheck shell=bash disable=SC2034 # used by those who source this

build_packages=(g++ cmake ninja-build libxml2-dev libfmt-dev nlohmann-json3-dev)
device_packages=(bubblewrap device-tree-compiler proot)
test_packages=(bats libgtest-dev libgmock-dev parallel strace shellcheck shfmt clang clang-format clang-tidy man-db mandoc
    pycodestyle pyflakes3 zsh fish)
fuzz_packages=(clang libclang-rt-dev llvm)
package_packages=(debootstrap dpkg-dev file lintian)
page_test_packages=(chromium chromium-driver python3-selenium)
bench_packages=(binutils gnuplot-nox hyperfine libubootenv-tool python3 strace valgrind)

# Installs those of the packages that the machine lacks, and says so.
need_packages() {
    local name missing=() as_root=()
    for name; do
        if [[ $(dpkg-query -W -f '${db:Status-Status}' -- "$name" 2>&1) != installed ]]; then missing+=("$name"); fi
    done
    ((${#missing[@]})) || return 0
    echo "Installing ${missing[*]}"
    if ((EUID)); then as_root=(sudo); fi
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" </dev/null >/dev/null
}

# build_preset PRESET TESTS [TARGET...]: configures and builds in build/PRESET, with the tests (ON) or without (OFF); quietly
# unless it fails.
build_preset() {
    local log=build/$1.log
    mkdir -p build
    if ! { cmake --preset "$1" -DHWKNOBS_TESTS="$2" && cmake --build "build/$1" ${3:+--target "${@:3}"}; } >"$log" 2>&1; then
        cat "$log" >&2
        return 1
    fi
}
