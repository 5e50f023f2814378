#!/usr/bin/env bash
# Installs what is missing, builds, and runs the bundled demo analysis on
# the sample well from a keyboard script. Output files land in demo/.
set -euo pipefail
cd "$(dirname "$0")/.."
bash tools/install_deps.sh
cmake -S . -B build -G Ninja -DTARNOLIX_TESTS=OFF
cmake --build build -j "$(nproc)"
mkdir -p demo
cp data/well*.txt demo/
cd demo
../build/tarnolix < ../data/main_job.keys
echo
echo "demo output is in $(pwd)"
