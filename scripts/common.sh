# What ./run and ./test share. Sourced by them; not run by itself.

set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

say() { printf '\n== %s\n' "$*"; }
die() { printf '%s\n' "$*" >&2; exit 1; }

# What building and running needs.
packages_build=(
  g++ cmake ninja-build pkg-config librsvg2-bin
  qtbase5-dev qtbase5-dev-tools qt5-style-plugins
  fonts-dejavu-core fonts-droid-fallback
  libhunspell-dev hunspell-en-us hunspell-de-de
)
# What the tests need beyond that.
packages_test=(
  xvfb openbox xdotool x11-utils x11-xserver-utils
  xserver-xorg-core xserver-xorg-video-dummy
  dbus-daemon doxygen
  qttools5-dev qttools5-dev-tools # translations, the Designer plug-in and Designer itself
  speedcrunch qt5-assistant qhelpgenerator-qt5 # foreign programs for the style plug-in
)
packages_qt6=(qt6-base-dev qt6-base-dev-tools qt6-5compat-dev qt6-tools-dev qt6-l10n-tools)
packages_clang=(clang)
packages_package=(dpkg-dev file qttools5-dev qttools5-dev-tools)
packages_fuzz=(clang libclang-rt-dev)
packages_windows=(g++-mingw-w64-x86-64-posix wine wine64 xvfb x11-utils xz-utils)
packages_benchmark=(libbenchmark-dev hunspell-fr)

# install_packages PACKAGE...: installs what is missing, with apt-get.
install_packages() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q '^install ok installed$' \
      || missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0
  command -v apt-get >/dev/null || die "Please install: ${missing[*]}"

  local as_root=()
  [ "$(id -u)" -eq 0 ] || as_root=(sudo)
  say "Installing ${missing[*]}"
  "${as_root[@]}" apt-get update -qq
  DEBIAN_FRONTEND=noninteractive "${as_root[@]}" apt-get install -y -qq --no-install-recommends \
    "${missing[@]}" >/dev/null
}

# build_preset PRESET [BUILD-ARGUMENT...]: configures and builds one of the presets.
build_preset() {
  say "Building ($1)"
  cmake --preset "$1" >/dev/null
  cmake --build --preset "$@"
}
