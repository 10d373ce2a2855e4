# What the scripts here share; they source it after `set -euo pipefail`.

top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$top"

# What the release preset needs, as Debian packages.
BUILD_PACKAGES=(g++ cmake ninja-build pkg-config libgtest-dev libbenchmark-dev libpcap-dev libcli11-dev nlohmann-json3-dev
  zlib1g-dev libasio-dev libsqlite3-dev)

if [ -t 1 ] && [ -z "${NO_COLOR:-}" ] && [ "${TERM:-dumb}" != dumb ]; then
  BOLD=$'\e[1m' DIM=$'\e[2m' GREEN=$'\e[32m' CYAN=$'\e[36m' YELLOW=$'\e[33m' PLAIN=$'\e[0m'
else
  BOLD='' DIM='' GREEN='' CYAN='' YELLOW='' PLAIN=''
fi

say() { printf '%s%s%s\n' "$BOLD" "$*" "$PLAIN"; }
fail() {
  printf 'error: %s\n' "$*" >&2
  exit 1
}

takes_no_arguments() { [ $# = 0 ] || fail "usage: scripts/$(basename "$0")"; }

# Installs those of the named Debian packages that are missing.
need_packages() {
  local missing=() package
  command -v dpkg-query >/dev/null || {
    echo "This is no Debian machine: taking these as installed: $*" >&2
    return 0
  }
  for package; do
    case $(dpkg-query -W -f='${db:Status-Abbrev}' "$package" 2>/dev/null) in
      ?i*) ;;
      *) missing+=("$package") ;;
    esac
  done
  [ ${#missing[@]} -gt 0 ] || return 0

  local as_root=()
  if [ "$(id -u)" != 0 ]; then
    command -v sudo >/dev/null || fail "missing packages: ${missing[*]} (install them as root, or install sudo)"
    as_root=(sudo)
  fi
  say "Installing ${missing[*]}"
  local log status=0
  log=$(mktemp)
  {
    "${as_root[@]}" apt-get -o DPkg::Lock::Timeout=300 -qq update &&
      "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=300 -qq -y \
        --no-install-recommends install "${missing[@]}"
  } </dev/null >"$log" 2>&1 || status=$?
  if [ $status != 0 ]; then
    tail -n 20 "$log" >&2
    rm -f "$log"
    fail "could not install: ${missing[*]}"
  fi
  rm -f "$log"
}

# configure PRESET: quiet unless it fails.
configure() {
  local said
  said=$(cmake --preset "$1" 2>&1) || {
    printf '%s\n' "$said" >&2
    fail "cmake could not configure the $1 preset"
  }
}

# cmake_consumer FOLDER [OPTION...]: builds the small project that uses Herald; quiet unless it fails.
cmake_consumer() {
  local folder=$1 said
  shift
  said=$({ cmake -S tests/consumer -B "$folder" -G Ninja -DCMAKE_BUILD_TYPE=Release "$@" &&
    cmake --build "$folder"; } 2>&1) || {
    printf '%s\n' "$said" >&2
    fail "the consumer could not be built in $folder"
  }
}

# build PRESET [TARGET...]: configures and builds; prints what the compiler says, and on a terminal the progress.
build() {
  local preset=$1 target_options=() ninja_options=()
  shift
  [ $# = 0 ] || target_options=(--target "$@")
  [ -t 1 ] || ninja_options=(-- --quiet)
  say "Building Herald ($preset preset)"
  configure "$preset"
  cmake --build --preset "$preset" "${target_options[@]}" "${ninja_options[@]}"
}
