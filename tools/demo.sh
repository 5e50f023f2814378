#!/usr/bin/env bash
# Installs what is missing, builds, and runs the bundled demo analysis on
# the sample well from a keyboard script. Output files land in demo/.
set -euo pipefail
cd "$(dirname "$0")/.."
bash tools/install_deps.sh
qt=OFF
dpkg -s qtbase5-dev >/dev/null 2>&1 && qt=ON
cmake -S . -B build -G Ninja -DTARNOLIX_TESTS=OFF -DTARNOLIX_QT=$qt
cmake --build build -j "$(nproc)"
rm -rf demo
mkdir -p demo
cp data/well210.txt demo/
cd demo
../build/tarnolix < ../data/log_job.keys | tee console.log
if command -v ps2pdf >/dev/null 2>&1; then
  ps2pdf log.ps log.pdf
fi
echo
echo "demo files in $(pwd):"
echo "  log.ps       the three log pages (PostScript)"
[ -f log.pdf ] && echo "  log.pdf      the same pages as PDF"
echo "  console.log  the whole console dialogue"
if [ -x ../build/tarnolix_window ]; then
  echo
  echo "the same program in a text window: cd demo && ../build/tarnolix_window"
fi
