#!/usr/bin/env bash
# install_deps.sh PURPOSE ...: installs what Debian 12 lacks for build, test or bench; asks the network only then.
set -euo pipefail

packages=()
for purpose in "$@"; do
  case $purpose in
    build) packages+=(g++ cmake ninja-build) ;;
    test) packages+=(libgtest-dev pkg-config clang libclang-rt-14-dev llvm) ;;
    tidy) packages+=(clang-tidy) ;;
    bench) packages+=(libbenchmark-dev libsqlite3-dev libboost-serialization-dev python3) ;;
    *)
      echo "install_deps.sh: no purpose '$purpose'; there are build, test, tidy, bench" >&2
      exit 2
      ;;
  esac
done

if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
  echo "This system does not install by apt. Taken as given: ${packages[*]} (names as in Debian 12)." >&2
  exit 0
fi

missing=()
for package in "${packages[@]}"; do
  status=$(dpkg-query -W -f='${db:Status-Status} ' "$package" 2>/dev/null || true)
  [[ $status == *"installed "* && $status != *not-installed* ]] || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
  if ! command -v sudo >/dev/null; then
    echo "Missing packages: ${missing[*]}" >&2
    echo "Neither root nor sudo is at hand; as root: apt-get install ${missing[*]}" >&2
    exit 1
  fi
  as_root=(sudo)
fi

echo "Installing ${missing[*]}"
log=$(mktemp)
trap 'rm -f "$log"' EXIT
apt() { "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq "$@" >"$log" 2>&1; }
if ! { apt update && apt install -y --no-install-recommends "${missing[@]}"; }; then
  cat "$log" >&2
  echo "Installing failed; what is needed: ${missing[*]}" >&2
  exit 1
fi
