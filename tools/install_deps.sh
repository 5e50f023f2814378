#!/usr/bin/env bash
# Installs the Debian packages the build, tests and demo need, if missing.
set -euo pipefail
pkgs=(g++ cmake ninja-build libgtest-dev libbenchmark-dev ghostscript gfortran python3
      qtbase5-dev fonts-dejavu-core "$@")
missing=()
for p in "${pkgs[@]}"; do
  dpkg -s "$p" >/dev/null 2>&1 || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "installing: ${missing[*]}"
  as_root=""
  [ "$(id -u)" -ne 0 ] && as_root="sudo"
  $as_root apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $as_root apt-get install -y -qq "${missing[@]}"
fi
