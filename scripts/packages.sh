# Installing Debian packages, for ./run and ./check. Sourced, not run.

# Packages to build and run; packages that the checks need besides.
build_packages="g++ cmake ninja-build pkg-config libglib2.0-dev libcli11-dev nlohmann-json3-dev"
check_packages="libgtest-dev libbenchmark-dev clang-14 clang-format-14 clang-tidy-14 libclang-rt-14-dev git ccache"

say() { printf '%s\n' "==> $*"; }

fail() {
  printf '%s\n' "$0: $*" >&2
  exit 1
}

# install_packages NAME...: installs those that are missing, with sudo where that is needed.
install_packages() {
  command -v apt-get >/dev/null || fail "this needs Debian's apt-get; install by hand: $*"
  missing=""
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' ||
      missing="$missing $package"
  done
  [ -n "$missing" ] || return 0
  as_root=""
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || fail "not root and no sudo: cannot install$missing"
    as_root="sudo"
  fi
  say "installing packages:$missing"
  log=$(mktemp)
  # shellcheck disable=SC2086  # a list of names
  if ! { $as_root apt-get update -q &&
    $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends \
      $missing; } >"$log" 2>&1; then
    tail -n 20 "$log" >&2
    rm -f "$log"
    fail "apt-get could not install$missing"
  fi
  rm -f "$log"
}

# quietly NAME COMMAND...: runs a command, showing its output only when it fails.
quietly() {
  what=$1
  shift
  log=$(mktemp)
  if ! "$@" >"$log" 2>&1; then
    cat "$log" >&2
    rm -f "$log"
    fail "$what failed"
  fi
  rm -f "$log"
}
