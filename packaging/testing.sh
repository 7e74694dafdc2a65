# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
# Counts checks and runs the tests of a preset. Sourced by the scripts that run tests; whatever ends
# such a script, its last line counts what passed and what failed.

passed=0
failed=0
# Whether to run what failed a second time.
again=${again:-no}
# A command that the tests are run by, and what to build for them instead of everything.
test_wrapper=()
build_targets=()

# count NAME COMMAND...: one check that is not a test program.
count() {
    local name=$1
    shift
    if "$@"; then
        passed=$((passed + 1))
    else
        failed=$((failed + 1))
        echo "FAILED: $name"
    fi
}

# attribute NAME FILE: a number from the head of ctest's result file.
attribute() {
    sed -n "s/.*[[:space:]]$1=\"\([0-9]*\)\".*/\1/p" "$2" | head -n 1
}

# run_again FOLDER: once more what failed in this build, alone. What passes then counts as passed, but
# is named: it is still worth a look.
run_again() {
    local name
    cp "$1/Testing/Temporary/LastTestsFailed.log" "$1/failed.txt"
    while IFS=: read -r _ name; do
        if (
            cd "$1" &&
                "${test_wrapper[@]}" ctest -R "^$name\$" </dev/null >run-again.log 2>&1
        ); then
            echo "Failed, but passed when run again alone: $name"
            bad=$((bad - 1))
        else
            echo "Failed again alone: $name"
        fi
    done <"$1/failed.txt"
}

# run_tests PRESET REGEX: builds a preset and adds its tests to the counts.
run_tests() {
    local results total bad idle status=0
    results=$PWD/build/$1/results.xml
    echo "== Tests, preset $1"
    cmake --preset "$1" >"build/$1.configure.log" || {
        cat "build/$1.configure.log"
        return 1
    }
    cmake --build --preset "$1" "${build_targets[@]}"
    rm -f "$results"
    (
        cd "build/$1"
        "${test_wrapper[@]}" ctest -j2 -R "$2" --output-junit "$results" \
            --test-output-size-failed 10000000
    ) || status=$?
    [ -f "$results" ] || return 1
    packaging/show_failures.py "$results" || tail -n 200 "build/$1/Testing/Temporary/LastTest.log"
    # A check that is left out should be known to whoever reads the figures.
    sed -n 's/^-- \(Left out: \)/\1/p' "build/$1.configure.log"
    sed -n 's/^SKIP *: /Left out: /p; s/^ok [0-9]* - \(.*\) # SKIP/Left out: \1/p' \
        "build/$1/Testing/Temporary/LastTest.log"
    total=$(attribute tests "$results")
    bad=$(attribute failures "$results")
    idle=$(($(attribute disabled "$results") + $(attribute skipped "$results")))
    # A test that could not be started is no failure to ctest's file, but it is to its exit code.
    if [ "$status" -ne 0 ] && [ "$bad" -eq 0 ]; then
        bad=$((idle > 0 ? idle : 1))
        total=$((total > bad ? total : bad))
        idle=0
    fi
    # A busy machine makes a few fail, not many. What a sanitizer reports is never due to that.
    if [ "$again" = yes ] && ((bad >= 1 && bad <= 3)) && [[ $1 =~ ^(ci|windows)$ ]]; then
        run_again "build/$1"
    fi
    passed=$((passed + total - bad - idle))
    failed=$((failed + bad))
}

# run_windows_tests SDK REGEX [TEST...]: the same for Windows, with the tests under Wine. SDK is the
# archive velmora-windows-sdk.tar.xz or a folder with its content; with names, only these tests and
# the programs are built.
run_windows_tests() {
    local regex=$2 names=()
    if [ $# -gt 2 ]; then
        mapfile -t names < <(printf '%s\n' "${@:3}" | grep -E "$2")
        [ "${#names[@]}" -gt 0 ] || return 0
        regex="^($(IFS='|' && echo "${names[*]}"))\$"
        build_targets=(--target velmora velmoratool transcoder "${names[@]}")
    fi
    # shellcheck source=packaging/windows/dependencies.sh
    source packaging/windows/dependencies.sh
    install_packages "${wine_packages[@]}"
    VELMORA_WINDOWS_SDK=$(packaging/windows/prepare-sdk.sh "$1")
    export VELMORA_WINDOWS_SDK
    export WINEPREFIX=$PWD/build/windows/wine
    test_wrapper=("$PWD/packaging/windows/wine-session.sh")
    run_tests windows "$regex"
    test_wrapper=()
    build_targets=()
}

# A build that fails ends the script here too, and then the last line must still be true.
trap 'echo "$passed passed, $failed failed"' EXIT
broken() { failed=$((failed + 1)); }
trap broken ERR
