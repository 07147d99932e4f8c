#!/usr/bin/env bash
# Installs what is missing, builds and tests everything: in Release with g++, and with clang under AddressSanitizer and
# UndefinedBehaviorSanitizer. Builds stay in build/.
set -euo pipefail
# shellcheck source=scripts/lib.sh
. "$(dirname "$0")/lib.sh"

# run_tests FOLDER: passed tests are counted, not listed; CTest's own summary is the last word.
run_tests() {
  ctest --test-dir "$builds/$1" --parallel "$jobs" --output-on-failure --no-tests=error --timeout 300 |
    grep -Ev '^ +Start |  Passed +[0-9.]+ sec$'
}

"$root/scripts/install_deps.sh" build test

say "Release: build, and each public header by itself"
configure release -DCMAKE_BUILD_TYPE=Release -DTVO_BUILD_TESTS=ON
build release
build release header_check

say "Release: tests"
run_tests release

say "AddressSanitizer and UndefinedBehaviorSanitizer: build"
configure_sanitized sanitize "$sanitizers" -DTVO_BUILD_TESTS=ON
build sanitize

say "AddressSanitizer and UndefinedBehaviorSanitizer: tests"
export ASAN_OPTIONS=detect_leaks=1:strict_string_checks=1:detect_stack_use_after_return=1
export UBSAN_OPTIONS=print_stacktrace=1
run_tests sanitize
