# SPDX-License-Identifier: BSD-3-Clause
# Sourced by ./run and ./test: installs the Debian packages that are missing, and builds a preset.

BUILD_PACKAGES="g++ cmake ninja-build pkg-config nlohmann-json3-dev libboost-dev libroaring-dev
  qtbase5-dev libqt5svg5-dev qttools5-dev qttools5-dev-tools libvtk9-dev libvtk9-qt-dev libhdf5-dev
  libqcustomplot-dev libgsl-dev"
RUN_PACKAGES="libgl1-mesa-dri libqt5svg5 qttranslations5-l10n xvfb xauth"
TEST_PACKAGES="clang-format libasan8 libubsan1"
BENCH_PACKAGES="libbenchmark-dev"

say() { printf '\n== %s\n' "$*"; }

as_root() {
  if [ "$(id -u)" -eq 0 ]; then
    "$@"
  elif command -v sudo > /dev/null; then
    sudo "$@"
  else
    echo "There is no sudo here; run this as root: $*" >&2
    return 1
  fi
}

# require_packages PACKAGE...: installs those that are missing.
require_packages() {
  local missing=() package present
  present=" $(dpkg-query -W -f='${Package}:${db:Status-Status} ' "$@" 2> /dev/null || true)"
  for package in "$@"; do
    [[ $present == *" $package:installed "* ]] || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  say "Installing: ${missing[*]}"
  as_root apt-get update -qq
  as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
    "${missing[@]}"
}

# build_preset PRESET [TARGET...]: configures when needed and builds.
build_preset() {
  local preset=$1 log=build/$1/configure.log
  shift
  if [ ! -f "build/$preset/build.ninja" ]; then
    say "Configuring build/$preset"
    mkdir -p "build/$preset"
    cmake --preset "$preset" > "$log" 2>&1 || { cat "$log" >&2; return 1; }
  fi
  say "Building build/$preset"
  cmake --build --preset "$preset" ${1:+--target "$@"}
}
