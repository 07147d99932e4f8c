#!/usr/bin/env bash
# Installs what is missing, builds the example in Release and lets a model live over its steps: examples/bracket.edits.
set -euo pipefail
# shellcheck source=scripts/lib.sh
. "$(dirname "$0")/lib.sh"

"$root/scripts/install_deps.sh" build

say "Building the example"
configure_if_new release -DCMAKE_BUILD_TYPE=Release -DTVO_BUILD_TESTS=OFF
build release edit_model

say "examples/bracket.edits"
mkdir -p "$builds/demo"
cd "$builds/demo"
../release/examples/edit_model --keep-going --html bracket.html "$root/examples/bracket.edits" | tee output.txt

say "What it showed"
# Refusals do not end the run, so their number is checked here; the last two histories stand around save and open.
refusals=$(grep -c '^line [0-9]*: refused: ' output.txt || true)
awk '/^name / { ++table } { text[table] = text[table] $0 "\n" }
     END { exit !(table > 1 && text[table] == text[table - 1]) }' output.txt ||
  { echo "The model that was opened differs from the one that was saved." >&2; exit 1; }
[ "$refusals" -eq 1 ] || { echo "$refusals edits were refused, not the one that was meant." >&2; exit 1; }
echo "One edit was refused; the history after opening equals the one before saving."
echo "The same model as a page: build/demo/bracket.html"
