# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034
# Shared by ./run and ./test: brings a Debian 12 machine to where Scopix builds, and builds it.
# Sourced, never run. Works from any folder; all messages are written to standard error.

scopix_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# Each package with its reason, as "name|why".
scopix_build_packages=(
  "g++|compiles Scopix"
  "cmake|configures the build"
  "ninja-build|runs the build"
  "ccache|makes every later build short"
  "qtbase5-dev|windows, widgets, XML files"
  "libqt5svg5-dev|icons, sharp at every pixel density"
  "libqwt-qt5-dev|plots of the performance counters"
  "libepoxy-dev|calls OpenGL"
  "qttools5-dev|finds what compiles translations"
  "qttools5-dev-tools|compiles translations"
  "libassimp-dev|reads model files"
  "zlib1g-dev|unpacks model files, beside libassimp-dev"
  "libeigen3-dev|linear algebra of the scene-graph library"
  "libgl1|OpenGL in a window"
  "libegl1|OpenGL without a window"
  "libgl1-mesa-dri|OpenGL drivers, with a software one for machines without a graphics card"
)
scopix_test_packages=(
  "libgtest-dev|the test framework"
  "python3|finds texts that are not translated"
  "xvfb|a private display for tests with real windows"
  "xauth|keeps that display private"
  "assimp-testmodels|models of many kinds, which have to open"
  "locales|a locale with a decimal comma, under which the tests run again"
  "libopenscenegraph-dev|builds what inspects programs on OpenSceneGraph; without it, that is left out"
  "openscenegraph|osgviewer, a program that has to be inspectable as it is"
)
# For ./test --asan alone.
scopix_fuzz_packages=(
  "clang|compiles the fuzzers, which GCC has no counterpart for"
  "libclang-rt-14-dev|the fuzzing engine and clang's sanitizers"
)
# For tools/check.
scopix_check_packages=(
  "git|names the files of the tree and their changes"
  "clang-format|compares the tree with .clang-format"
  "clang-tidy|finds mistakes that compilers let pass"
)
# For tools/package.
scopix_package_packages=(
  "git|hands over what is committed"
  "dpkg-dev|builds Debian packages"
  "debhelper|the steps of such a build"
  "doxygen|the reference of the public headers"
  "libopenscenegraph-dev|builds what inspects programs on OpenSceneGraph"
  "lintian|checks the packages"
)
# For tools/package --test.
scopix_package_test_packages=(
  "mmdebstrap|makes a bare Debian in a folder"
)
scopix_bench_packages=(
  "libbenchmark-dev|the benchmark framework"
)

scopix_say() { printf '%s\n' "$*" >&2; }

scopix_fail() {
  scopix_say "$*"
  exit 1
}

# Prints those of the given "name|why" that are not installed.
scopix_missing() {
  local installed entry
  installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "${@%%|*}" 2>/dev/null || true)
  for entry in "$@"; do
    grep -qxF "installed ${entry%%|*}" <<<"$installed" || printf '%s\n' "$entry"
  done
}

# Installs those of the given "name|why" that are missing; silent where all are there.
scopix_install() {
  if ! { command -v dpkg-query && command -v apt-get; } >/dev/null; then
    scopix_say "This is no Debian system; if the build misses something, tools/setup.sh lists what it needs."
    return 0
  fi
  local missing names as_root=()
  mapfile -t missing <<<"$(scopix_missing "$@")"
  [ -n "${missing[0]}" ] || return 0
  names=("${missing[@]%%|*}")

  scopix_say "Scopix needs these Debian packages, which are not installed yet:"
  local entry
  for entry in "${missing[@]}"; do
    printf '  %-18s %s\n' "${entry%%|*}" "${entry#*|}" >&2
  done

  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || scopix_fail \
      "Installing them takes root, and there is no sudo here. As root, run: apt-get install --no-install-recommends ${names[*]}"
    as_root=(sudo)
  fi
  scopix_say "Installing them with ${as_root[*]:+sudo }apt-get."
  local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -o Dpkg::Use-Pty=0 -o DPkg::Lock::Timeout=300)
  "${apt[@]}" update >&2 || scopix_say "The package lists could not be refreshed; trying with those at hand."
  "${apt[@]}" install -y --no-install-recommends "${names[@]}" >&2 \
    || scopix_fail "apt-get could not install ${names[*]}; its message stands above."
}

# One compile job per processor, and no more than memory allows (about 1 GB each).
scopix_jobs() {
  local processors memory
  processors=$(nproc)
  memory=$(awk '/^MemAvailable:/ { print int($2 / 1000000) }' /proc/meminfo 2>/dev/null || true)
  memory=${memory:-$processors}
  [ "$memory" -ge 1 ] || memory=1
  echo $((processors < memory ? processors : memory))
}

# scopix_build PRESET [TARGET...]: configures where needed and builds, with ninja's progress.
scopix_build() {
  local preset=$1 folder="$scopix_root/build/$1" log
  shift
  if [ ! -f "$folder/build.ninja" ] || [ "$scopix_root/CMakePresets.json" -nt "$folder/build.ninja" ]; then
    scopix_say "Configuring build/$preset."
    log=$(cd "$scopix_root" && cmake --preset "$preset" 2>&1) || {
      scopix_say "$log"
      scopix_fail "Configuring build/$preset failed; the reason stands above."
    }
  fi
  cmake --build "$folder" --parallel "$(scopix_jobs)" ${@:+--target "$@"} >&2 \
    || scopix_fail "Building build/$preset failed; the reason stands above."
}
