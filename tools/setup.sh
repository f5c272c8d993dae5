# shellcheck shell=bash
# Sourced by play, test, fuzz and bench: the packages of a fresh Debian 12, and the build of a preset.
root=$(dirname "$(dirname "$(realpath "${BASH_SOURCE[0]}")")")
log=$root/build/$(basename "$0").log
packages=(g++ cmake make pkg-config libsndfile1-dev libcairo2-dev libxcb1-dev libxcb-shm0-dev libxcb-xkb-dev
  fonts-roboto-unhinted)
trap 'exit 130' INT # Ctrl-C is no failure to report

fail() {
  echo "korvane: $*" >&2
  exit 1
}

# Runs a command with all its output in the log; if it fails, shows what it said of the reason.
reasons='error: |CMake Error|undefined reference|Package .* not found|command not found|No space left|^E: |^sudo: '
logged() {
  local before
  before=$(wc -l <"$log")
  LC_ALL=C "$@" >>"$log" 2>&1 && return # in English, so that the reason is found
  {
    grep -m 4 -A 3 -E "$reasons" <(tail -n "+$((before + 1))" "$log") || tail -n 10 "$log"
    echo "korvane: that failed; its whole output is in $log"
  } >&2
  return 1
}

# A tool has the name of its package, and need not come from it.
is_installed() {
  command -v "$1" >/dev/null || [[ $(dpkg-query -W -f='${Status}' "$1" 2>/dev/null) == *"ok installed"* ]]
}

# One call, so that sudo asks for one password. An archive that cannot be updated need not be the one that is needed.
# shellcheck disable=SC2016 # "$@" belongs to the inner shell
install_packages() {
  "${as_root[@]}" sh -c 'export DEBIAN_FRONTEND=noninteractive; apt-get update
    apt-get install -y --no-install-recommends "$@"' sh "$@" </dev/null
}

# Installs what is missing, or says in one line how somebody else can.
prepare() {
  local package advice missing=() as_root=()
  if command -v apt-get >/dev/null; then # without it, the build itself says what it lacks
    for package in "${packages[@]}"; do
      is_installed "$package" || missing+=("$package")
    done
  fi
  advice="packages are missing; as root: apt-get update && apt-get install ${missing[*]}"
  if [ ${#missing[@]} -gt 0 ] && [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || fail "$advice"
    as_root=(sudo)
  fi
  { mkdir -p "$root/build" && : >"$log"; } 2>/dev/null || fail "cannot write to $log; did somebody else build here?"
  if [ ${#missing[@]} -gt 0 ]; then
    echo "Installing ${missing[*]}${as_root[*]:+ with ${as_root[*]}}"
    logged install_packages "${missing[@]}" || fail "$advice"
  fi
}

# Where a preset is built.
folder() {
  case $1 in release) echo "$root/build" ;; *) echo "$root/build-$1" ;; esac
}

# Configures the preset that is named; further words go to cmake.
configure() {
  cmake -S "$root" --preset "$@" ${KORVANE_WERROR:+-DKORVANE_WERROR="$KORVANE_WERROR"}
}

# Builds of a preset the targets that are named.
build() {
  cmake --build "$(folder "$1")" -j "$(nproc)" --target "${@:2}"
}
