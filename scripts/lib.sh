# Shared by the scripts of this folder: sourced, not run.
# shellcheck shell=bash

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
builds=$root/build
jobs=${JOBS:-$(nproc)}

say() { printf '\n== %s\n' "$*"; }

# configure FOLDER [CMAKE OPTION ...]
configure() {
  local folder=$1
  shift
  cmake -S "$root" -B "$builds/$folder" -G Ninja --log-level=WARNING "$@" >/dev/null
}

# configure_if_new FOLDER [CMAKE OPTION ...]: leaves a build that is there with the options it has.
configure_if_new() {
  [ -f "$builds/$1/build.ninja" ] || configure "$@"
}

# build FOLDER [TARGET ...]
build() {
  local folder=$1
  shift
  cmake --build "$builds/$folder" --parallel "$jobs" ${1:+--target "$@"}
}
