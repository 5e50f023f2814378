#!/usr/bin/env bash
# Installs what is missing, builds, and runs the whole analysis of the
# sample well from its command file. Everything lands in demo/, made anew
# each run: the extracted and full tables open as new files, and an old one
# would make the program ask for another name.
set -euo pipefail
cd "$(dirname "$0")/.."
bash tools/install_deps.sh
qt=OFF
dpkg -s qtbase5-dev >/dev/null 2>&1 && qt=ON
cmake -S . -B build -G Ninja -DTARNOLIX_TESTS=OFF -DTARNOLIX_QT=$qt
cmake --build build -j "$(nproc)"
rm -rf demo
mkdir -p demo
cp data/well210.txt data/well210_BO.txt data/well210_POW.txt data/analysis_job.cmd demo/
cd demo

# The keyboard answers the start banner and opens the command file; the
# file does the rest and ends the run.
start=$(date +%s%N)
printf '\n5000\n5001\nanalysis_job.cmd\n' | ../build/tarnolix > console.log
end=$(date +%s%N)
rm -f quarp9_ini.txt

for f in *.ps; do
  ps2pdf "$f" "${f%.ps}.pdf"
done

describe() {
  case "$1" in
    log.ps|log.pdf) echo "log pages: data, rotation, shape tests, classes, picks" ;;
    statplot.1.ps|statplot.1.pdf) echo "histograms and roses of the statistics menu" ;;
    wellpers.ps|wellpers.pdf) echo "perspective view of the hole wall, 2085-2100 m" ;;
    *_extr_ase.txt) echo "depths kept by the ASE test (breakout-like)" ;;
    *_extr_ade.txt) echo "depths kept by the ADE test (washouts)" ;;
    *.all.out.txt) echo "the whole well table after the computations" ;;
    console.log) echo "the whole console dialogue" ;;
    well210.txt) echo "the sample well (input)" ;;
    well210_BO.txt|well210_POW.txt) echo "picked breakout / washout intervals (input)" ;;
    analysis_job.cmd) echo "the command file of this analysis (input)" ;;
    *) echo "" ;;
  esac
}

echo
echo "demo files in $(pwd) (analysis took $(( (end - start) / 1000000 )) ms):"
for f in *; do
  printf '  %-28s %-52s %9s bytes\n' "$f" "$(describe "$f")" "$(stat -c %s "$f")"
done
if [ -x ../build/tarnolix_window ]; then
  echo
  echo "the same program in a text window: cd demo && ../build/tarnolix_window"
fi
