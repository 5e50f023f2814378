#!/usr/bin/env bash
# Installs what is missing, builds, and runs all tests: once normally, once
# under AddressSanitizer and UndefinedBehaviorSanitizer.
set -euo pipefail
cd "$(dirname "$0")/.."
bash tools/install_deps.sh
jobs=$(nproc)
# The text window host and its tests come with Qt; they run on Qt's
# offscreen platform, so no display is needed.
qt=OFF
dpkg -s qtbase5-dev >/dev/null 2>&1 && qt=ON

cmake -S . -B build -G Ninja -DTARNOLIX_TESTS=ON -DTARNOLIX_BENCH=ON -DTARNOLIX_QT=$qt
cmake --build build -j "$jobs"
ctest --test-dir build --output-on-failure -j "$jobs"

# Qt's own libraries are not instrumented, so the sanitizer build leaves the
# window host out.
cmake -S . -B build-asan -G Ninja -DCMAKE_BUILD_TYPE=Debug -DTARNOLIX_SANITIZE=ON -DTARNOLIX_QT=OFF
cmake --build build-asan -j "$jobs"
ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 \
  ctest --test-dir build-asan --output-on-failure -j "$jobs"
