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

# configure_sanitized FOLDER SANITIZERS [CMAKE OPTION ...]: with clang, optimized enough to be quick and with lines in reports.
configure_sanitized() {
  local folder=$1 sanitizers=$2
  shift 2
  configure "$folder" -DTVO_UNITY=ON -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=Debug \
    "-DCMAKE_CXX_FLAGS_DEBUG=-O1 -gline-tables-only" "-DTVO_SANITIZE=$sanitizers" -DTVO_BUILD_FUZZ=ON "$@"
}

# The tests' and the fuzz targets' sanitizers are the same, so that one build serves both.
sanitizers=fuzzer-no-link,address,undefined
