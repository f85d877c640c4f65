#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# run_script.sh RUN: tests the entry script with everything that it would download or enter replaced by fakes.
set -euo pipefail

script=$1
# A space in every path.
place=$(mktemp -d "${TMPDIR:-/tmp}/run script.XXXXXX")
trap 'rm -rf "$place"' EXIT
trap 'echo "failed: line $LINENO" >&2 && cat "$place/err" >&2' ERR
mkdir -p "$place/checkout" "$place/bin"
cp "$script" "$place/checkout/run"

# No Qt beside these programs, and nothing that knows of packages but the fakes.
for tool in bash cat cut dirname env flock grep head mkdir mktemp mv readlink rm sed sha256sum sleep sort tail \
    tar touch tr; do
    ln -s "$(command -v $tool)" "$place/bin/$tool"
done
fake() { # NAME, and its text on the standard input
    { echo '#!/usr/bin/env bash' && cat; } >"$place/bin/$1"
    chmod +x "$place/bin/$1"
}
# Everything is installed, but no Qt is to be had.
fake dpkg-query <<'FAKE'
[ -n "${FAKE_MISSING:-}" ] || echo "ii "
FAKE
fake apt-cache <<'FAKE'
echo "  Candidate: ${FAKE_CANDIDATE:-6.4.2+dfsg-1}"
FAKE
fake apt-get <<<'exit 1'
# Alike for every user.
fake id <<<'echo 0'
fake unshare <<'FAKE'
exec "${@:2}"
FAKE
fake bwrap <<'FAKE'
printf '%s\n' "$@"
FAKE
fake mmdebstrap <<'FAKE'
echo made >>"$FAKE_LOG"
sleep "${FAKE_SECONDS:-0}"
mkdir -p "$XDG_CACHE_HOME/fake/usr/bin" "$XDG_CACHE_HOME/fake/etc"
tar -c -C "$XDG_CACHE_HOME/fake" .
FAKE

export FAKE_LOG=$place/log XDG_CACHE_HOME=$place/cache
run() {
    env -u KELUI_ROOT -u CMAKE_PREFIX_PATH -u Qt6_DIR -u Qt6_ROOT PATH="$place/bin" \
        "$@" "$place/checkout/run" "${arguments[@]}" >"$place/out" 2>"$place/err"
}
failures=0
expect() { # WHAT CONDITION…
    local what=$1
    shift
    "$@" && return
    echo "failed: $what" >&2
    sed 's/^/    /' "$place/out" "$place/err" >&2
    failures=$((failures + 1))
}
fails() { # WITH-THIS-LINE ARGUMENT…
    local line=$1
    arguments=("${@:2}")
    ! run || return 1
    [ "$(cat "$place/err")" = "run: $line" ] && [ ! -s "$place/out" ]
}
prints_usage() {
    arguments=("$@")
    run && grep -q '^Usage: ./run VERB' "$place/out" && [ ! -s "$place/err" ]
}
roots() {
    echo "$XDG_CACHE_HOME"/kelui/root-*
}

expect "no verb lists the verbs" prints_usage
expect "--help lists the verbs" prints_usage --help
expect "so does --help of a verb" prints_usage gallery --help
for verb in gallery test bench build lint format shell clean; do
    expect "the usage names $verb" grep -q "^  $verb " "$place/out"
done
expect "an unknown verb" fails "'dance' is not a verb; ./run --help lists them" dance
for verb in gallery test bench build lint format clean; do
    expect "an unknown option of $verb" \
        fails "'--loud' is not an option of this verb; ./run --help lists them" "$verb" --loud
done
expect "--shots without a folder" fails "--shots needs a folder" gallery --shots
expect "--shots without a folder, before --" fails "--shots needs a folder" gallery --shots --
expect "--page without a name" fails "--page needs a name" gallery --page
expect "nothing of this provisions" [ ! -e "$FAKE_LOG" ]

# If CMake finds a Qt in /usr whatever PATH says, the rest cannot be tried.
shopt -s nullglob
system_qt=(/usr/lib*/{,*/}cmake/Qt6Quick /usr/local/lib*/{,*/}cmake/Qt6Quick)
if [ ${#system_qt[@]} -gt 0 ]; then
    sed -i 's|/usr/local /usr;|;|' "$place/checkout/run"
fi
shopt -u nullglob

arguments=(shell command)
missing() { # CANDIDATE PACKAGE…
    ! run FAKE_MISSING=1 FAKE_CANDIDATE="$1" || return 1
    grep -q "^run: could not install what it needs; type, as root:  apt-get install ${*:2}" "$place/err"
}
expect "what makes a root is named where it cannot be installed" missing 6.4.2 mmdebstrap bubblewrap
expect "a system that has Qt gets no root" missing 6.8.2 clang-format clang-tidy
FAKE_SECONDS=1 run env &
FAKE_SECONDS=1 run env
wait
expect "two at once make one root" [ "$(grep -c made "$FAKE_LOG")" = 1 ]
first=$(roots)
expect "the root is whole" [ -d "$first/usr/bin" ]
expect "the command runs without a network" grep -qx -e --unshare-net "$place/out"
expect "the command comes last" [ "$(tail -n 1 "$place/out")" = command ]
run env
expect "a root is made once" [ "$(grep -c made "$FAKE_LOG")" = 1 ]

rm -rf "$first"
# Killed in the middle.
FAKE_SECONDS=2 run env &
sleep 1
kill -KILL $!
wait $! 2>/dev/null || true
expect "nothing half made is used" [ ! -e "$first" ]
expect "the next run makes it" run env
expect "the next run makes it whole" [ -d "$first/usr/bin" ]
expect "no remains" [ "$(echo "$XDG_CACHE_HOME"/kelui/making.*)" = "$XDG_CACHE_HOME/kelui/making.*" ]

sed -i 's/^    clang-format /    another-package &/' "$place/checkout/run"
run env
expect "other packages, another root" [ "$(roots | wc -w)" -gt "$(wc -w <<<"$first")" ]

# Tests need more than a build, and leave the rest in use.
made() { grep -c made "$FAKE_LOG"; }
count=$(made)
arguments=(gallery --web 6081 -- --page Text)
expect "the gallery in a browser" run env
expect "the gallery in a browser needs no other root" [ "$(made)" = "$count" ]
expect "it can be reached from outside" grep -qx -e --share-net "$place/out"
expect "it is given its port and its arguments" [ "$(tail -n 5 "$place/out" | tr '\n' ' ')" = \
    "gallery/web/serve 6081 build/release/bin/kelui-gallery --page Text " ]
arguments=(gallery --web)
expect "a port is not needed" run env
expect "no port is an empty argument" [ -z "$(tail -n 2 "$place/out" | head -n 1)" ]
arguments=(test)
expect "tests" run env
expect "tests have a root of their own" [ "$(made)" = $((count + 1)) ]
tests=$(echo "$XDG_CACHE_HOME"/kelui/root-*-tests)
expect "it is whole" [ -d "$tests/usr/bin" ]
arguments=(shell env)
run env
expect "what is made for tests serves for everything" grep -qxF "$tests/usr/bin" "$place/out"
rm -rf "$place/checkout/build"

for version in 6.4.2 6.9.1; do
    folder="$place/qt $version/lib/cmake/Qt6Quick"
    mkdir -p "$folder" "$folder/../Qt6"
    echo "set(PACKAGE_VERSION \"$version\")" >"$folder/Qt6QuickConfigVersionImpl.cmake"
done
run CMAKE_PREFIX_PATH="$place/qt 6.4.2"
expect "a Qt that is too old is not used" grep -qx -e --unshare-net "$place/out"
run CMAKE_PREFIX_PATH="$place/qt 6.4.2:$place/qt 6.9.1"
expect "a Qt that is new enough is used as it is" grep -q '^FAKE_LOG=' "$place/out"
run Qt6_DIR="$place/qt 6.9.1/lib/cmake/Qt6"
expect "so is one named by its own variable" grep -q '^FAKE_LOG=' "$place/out"

# The fake root builds nothing, but the script tells it to.
arguments=(build)
release=$place/checkout/build/release
# Both cmake --preset and cmake --build, rather than the second alone.
configures() {
    [ "$(grep -cx cmake "$place/err")" = 2 ]
}
mkdir -p "$release"
touch "$release/build.ninja" "$release/old"
run env
expect "a build of unknown origin is made anew in a private root" configures
expect "nothing of it stays" [ ! -e "$release/old" ]
touch "$release/build.ninja" "$release/old"
run env
expect "a build of the same root is kept" [ -e "$release/old" ]
expect "and not configured again" [ "$(grep -cx cmake "$place/err")" = 1 ]
sed -i 's/another-package/yet-another-package/' "$place/checkout/run"
run env
expect "a build of another root is made anew" configures
touch "$release/build.ninja" "$release/by-hand"
rm "$release/made-with"
run CMAKE_PREFIX_PATH="$place/qt 6.9.1" || true
expect "a build made by hand with a Qt of the system is kept" [ -e "$release/by-hand" ]

arguments=(clean --all)
expect "clean --all" run env
expect "no build is left" [ ! -e "$place/checkout/build" ]
expect "no root is left" [ ! -e "$XDG_CACHE_HOME/kelui" ]

[ $failures = 0 ]
