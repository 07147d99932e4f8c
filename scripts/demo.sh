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
../release/examples/edit_model --keep-going --html bracket.html "$root/examples/bracket.edits"
