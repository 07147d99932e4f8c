#!/usr/bin/env bash
# tidy.sh [FILE EXPRESSION]: runs clang-tidy with the checks of .clang-tidy over all code, as bundled sources, so that each
# header is read a few times instead of hundreds; or over the files that match the regular expression.
set -euo pipefail
# shellcheck source=scripts/lib.sh
. "$(dirname "$0")/lib.sh"

"$root/scripts/install_deps.sh" build test bench tidy

configure tidy -DTVO_UNITY=ON -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=Debug -DTVO_BUILD_TESTS=ON \
  -DTVO_BUILD_BENCH=ON -DTVO_BUILD_FUZZ=ON
cd "$builds/tidy"
run-clang-tidy -quiet -p . -j "$jobs" "${1:-^(?!.*/header_check/)}"
