#!/usr/bin/env bash
# Installs what is missing, builds, and runs all tests: once normally, once
# under AddressSanitizer and UndefinedBehaviorSanitizer.
set -euo pipefail
cd "$(dirname "$0")/.."
bash tools/install_deps.sh
jobs=$(nproc)

cmake -S . -B build -G Ninja -DTARNOLIX_TESTS=ON -DTARNOLIX_BENCH=ON
cmake --build build -j "$jobs"
ctest --test-dir build --output-on-failure -j "$jobs"

cmake -S . -B build-asan -G Ninja -DCMAKE_BUILD_TYPE=Debug -DTARNOLIX_SANITIZE=ON
cmake --build build-asan -j "$jobs"
ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 \
  ctest --test-dir build-asan --output-on-failure -j "$jobs"
