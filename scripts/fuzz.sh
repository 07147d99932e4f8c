#!/usr/bin/env bash
# fuzz.sh SECONDS [RUNS]: installs what is missing, builds the fuzz targets with clang under AddressSanitizer and
# UndefinedBehaviorSanitizer, and runs each from its corpus in fuzz/corpus for that time, or until RUNS inputs have run.
# What it finds new stays in build/fuzz_corpus, an input that fails in build/fuzz_finds.
# FUZZ_SANITIZE=fuzzer-no-link fuzz.sh ... runs without the other two, some times faster.
set -euo pipefail
# shellcheck source=scripts/lib.sh
. "$(dirname "$0")/lib.sh"

seconds=${1:?"fuzz.sh SECONDS [RUNS]"}
runs=${2:--1}
"$root/scripts/install_deps.sh" build test

say "Building the fuzz targets"
if [ -n "${FUZZ_SANITIZE:-}" ]; then
  folder=fuzz_${FUZZ_SANITIZE//,/_}
  configure_sanitized "$folder" "$FUZZ_SANITIZE" -DTVO_BUILD_TESTS=OFF
else
  folder=sanitize
  configure_sanitized "$folder" "$sanitizers"
fi
build "$folder" open_file_fuzz edit_model_fuzz

mkdir -p "$builds/fuzz_finds"
for target in open_file edit_model; do
  say "$target"
  mkdir -p "$builds/fuzz_corpus/$target"
  "$builds/$folder/fuzz/${target}_fuzz" -max_total_time="$seconds" -runs="$runs" -timeout=20 -rss_limit_mb=4096 -max_len=8192 \
    -entropic=0 -print_final_stats=1 -artifact_prefix="$builds/fuzz_finds/$target-" \
    "$builds/fuzz_corpus/$target" "$root/fuzz/corpus/$target" 2>&1 |
    grep -Ev '^(#|INFO: -max_len|INFO: A corpus)' || { [ "${PIPESTATUS[0]}" -eq 0 ] || exit 1; }
done
