# Sourced by run and test: installs the Debian packages that are missing, and says so.
# install_packages NAME...

install_packages() {
  local missing=() name
  for name in "$@"; do
    dpkg-query -W -f='${Status}' "$name" 2>/dev/null | grep -q 'install ok installed' || missing+=("$name")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  if ! command -v apt-get >/dev/null; then
    echo "zelko: these packages are missing and there is no apt-get to install them: ${missing[*]}" >&2
    return 1
  fi
  echo "zelko: installing ${missing[*]}"
  local root=()
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      echo "zelko: installing needs root or sudo" >&2
      return 1
    fi
    root=(sudo)
  fi
  local log
  log=$(mktemp)
  if ! { "${root[@]}" apt-get update &&
         "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}"; } \
       >"$log" 2>&1; then
    cat "$log" >&2
    rm -f "$log"
    return 1
  fi
  rm -f "$log"
}

build_packages=(g++ cmake ninja-build ccache pkg-config qt6-base-dev libmecab-dev mecab-ipadic-utf8 kanjidic edict
                unicode-data python3 speech-dispatcher speech-dispatcher-espeak-ng espeak-ng fonts-ipafont)
test_packages=(doctest-dev clang-format)
package_packages=(dpkg-dev file lowdown lintian desktop-file-utils appstream debootstrap)

# configure_and_build FOLDER CMAKE-OPTIONS... -- TARGETS...
configure_and_build() {
  local folder=$1 options=() targets=()
  shift
  while [ $# -gt 0 ] && [ "$1" != -- ]; do options+=("$1"); shift; done
  [ $# -gt 0 ] && shift
  targets=("$@")
  cmake -S "$root" -B "$folder" -G Ninja "${options[@]}" >"$folder.log" 2>&1 || { cat "$folder.log" >&2; return 1; }
  rm -f "$folder.log"
  # A precompiled header is cached too, as long as nothing asks for the time of compiling.
  export CCACHE_SLOPPINESS=${CCACHE_SLOPPINESS:-pch_defines,time_macros} NINJA_STATUS="zelko: %f of %t "
  cmake --build "$folder" ${targets[0]:+--target "${targets[@]}"}
}
