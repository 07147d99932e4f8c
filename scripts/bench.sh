#!/usr/bin/env bash
# bench.sh [GOOGLE BENCHMARK OPTION ...]: installs what is missing, builds the benchmarks in Release, runs them all and
# prints each goal beside what was measured. Results stay in build/bench_results/.
set -euo pipefail
# shellcheck source=scripts/lib.sh
. "$(dirname "$0")/lib.sh"

"$root/scripts/install_deps.sh" build bench

say "Building the benchmarks"
configure_if_new release -DCMAKE_BUILD_TYPE=Release -DTVO_BUILD_TESTS=OFF
configure release -DTVO_BUILD_BENCH=ON
build release bench/all

results=$builds/bench_results
rm -rf "$results"
mkdir -p "$results"
cd "$results"
for program in "$builds"/release/bench/*_bench; do
  name=$(basename "$program")
  say "$name"
  "$program" --benchmark_enable_random_interleaving=true --benchmark_repetitions=3 --benchmark_min_time=0.2 \
    --benchmark_out="$name.json" --benchmark_out_format=json "$@"
done

say "Goals"
python3 "$root/scripts/bench_table.py" "$results"/*.json
