# What ./run and ./test share; to be sourced by Bash, in the root of the checkout.

say() { printf '== %s\n' "$*"; }

# install_missing PART...: installs the Debian packages of these parts that are not there yet.
#   native    compiler, CMake, Ninja, ccache and GoogleTest's sources
#   windows   the cross compilers, the type library compiler and its headers, Wine with its fonts, a virtual display, ImageMagick
#   packaging the installer's compiler, zip, and what makes web pages of the guides
#   checks    clang-format
#   fuzz      clang with its libFuzzer and sanitizers
#   coverage  what reads the compiler's counts
#   bench     Google Benchmark, and the counter of instructions
install_missing() {
  local part package
  local -a wanted=(cmake ninja-build ccache) missing=()
  for part in "$@"; do
    case $part in
      native) wanted+=(g++ googletest) ;;
      windows)
        wanted+=(g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix mingw-w64-tools libwine-dev
          googletest wine64 fonts-wine xvfb imagemagick util-linux locales)
        ;;
      packaging) wanted+=(nsis zip git cmark-gfm) ;;
      fuzz) wanted+=(clang libclang-rt-14-dev) ;;
      checks) wanted+=(clang-format git) ;;
      coverage) wanted+=(python3) ;;
      bench) wanted+=(libbenchmark-dev valgrind) ;;
    esac
  done
  for package in "${wanted[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' ||
      missing+=("$package")
  done
  ((${#missing[@]} == 0)) && return
  say "Installing the Debian packages that are missing: ${missing[*]}"
  local -a as_root=()
  if ((EUID != 0)); then
    as_root=(sudo)
    command -v sudo >/dev/null || { say "FAILED: neither root nor sudo to install them with"; exit 1; }
  fi
  "${as_root[@]}" apt-get -qq update
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq install -y \
    --no-install-recommends "${missing[@]}" >/dev/null
}

# build_preset PRESET [TARGET...]
build_preset() {
  local preset=$1
  shift
  cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset" ${1:+--target "$@"}
}
