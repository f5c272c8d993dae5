# What the host checks share; sourced. Leaves $bundle and $home behind, both absolute.

name=${0##*/}
ardour=/usr/lib/ardour7
qtractor_scan=/usr/lib/x86_64-linux-gnu/qtractor/qtractor_plugin_scan

# status, words: the last line of the check
finish() { echo "$name: $2" >&2; exit "$1"; }

# program, package: ends the check with status 2 where the package is missing
need() { [ -x "$(command -v "$1")" ] || finish 2 "$1 is missing; install it: apt-get install $2"; }

# Runs a program with a home of its own and no display, so that it neither reads nor changes what the user has set up.
# The flags leave AVX-512 out: with it Ardour 7.3 writes behind its own mixing buffers, and now and then an export dies.
alone() {
    env -i PATH="$PATH" HOME="$home" LD_LIBRARY_PATH=$ardour ARDOUR_FPU_FLAGS=31 LXVST_PATH="$bundle" timeout 120 "$@"
}

bundle=$(realpath -m "${1:-$(dirname "$0")/../../build/Korvane}")
[ -r "$bundle/korvane.so" ] || finish 1 "no korvane.so in $bundle; build it, or name a bundle folder"
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
