# Sourced by play and test: the packages of a fresh Debian 12, and the build.
packages=(g++ cmake make pkg-config libgtest-dev libbenchmark-dev libsndfile1-dev)
missing=()
for package in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  as_root=()
  [ "$(id -u)" -eq 0 ] || as_root=(sudo)
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi

build() {
  cmake -S . -B build -DCMAKE_BUILD_TYPE=Release "$@"
  cmake --build build -j "$(nproc)"
}
