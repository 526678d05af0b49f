#!/usr/bin/env bats
# What "cmake --install" puts in place.
load device

setup_file() {
    export PREFIX=$BATS_FILE_TMPDIR/prefix
    cmake --install "$HWKNOBS_BUILD" --prefix "$PREFIX" >/dev/null
}

@test "the tool runs from where it is installed" {
    run -0 "$PREFIX/bin/hwknobs" plat-list
    [[ ${lines[0]} == "Support platform" ]]
}

@test "the manual page: no warnings, and all commands and options of the usage text" {
    local page=$PREFIX/share/man/man1/hwknobs.1 usage=$BATS_TEST_DIRNAME/data/usage.txt text word
    run -0 mandoc -T lint -W warning "$page"
    run -0 env LC_ALL=C.UTF-8 MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$page"
    [[ $output != *warning* ]]
    text=$(mandoc -T ascii -O width=200 "$page" | sed 's/.\x08//g')
    while read -r word; do
        [[ $text =~ (^|[^a-z-])"$word"($|[^a-z-]) ]] || fail "not in the manual: $word"
    done < <(
        sed -nE 's/^usage hwknobs( \[[^]]*\])* ([a-z-]+).*/\2/p' "$usage"
        grep -oE '(^|[[[:space:]])--?[a-z][a-z-]*' "$usage" | tr -d '[ \t' | grep -vx -e --option
    )
}

@test "the examples: as the tool makes them, and they boot" {
    local examples=$PREFIX/share/doc/hwknobs/examples example
    device run sh -c "$(sed -n '/^They were made/,$s/^    //p' "$examples/README.md")"
    for example in "$examples"/*.xml; do
        diff "$example" "$DEV/data/${example##*/}"
        ends_in 0 "config generate ok" hwknobs xmlconfig-set "${example##*/}"
        device reboot
    done
}

@test "the links of the documents lead to what is installed" {
    local file link count=0
    while IFS=: read -r file link; do
        [[ -e ${file%/*}/$link ]] || fail "$file: $link"
        count=$((count + 1))
    done < <(grep -roP --include='*.md' '\]\((?!http)\K[^)#]+' "$PREFIX/share/doc")
    ((count > 10))
}

@test "the executable has what compiler and linker offer against mistakes" {
    if grep -q '^HWKNOBS_SANITIZE:STRING=.' "$HWKNOBS_BUILD/CMakeCache.txt"; then skip "sanitizers find more"; fi
    run -0 readelf -Wld --dyn-syms "$PREFIX/bin/hwknobs"
    for sign in GNU_RELRO BIND_NOW __stack_chk_fail@ __read_chk@; do
        [[ $output == *"$sign"* ]] || fail "not seen: $sign"
    done
}
