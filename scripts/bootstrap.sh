#!/usr/bin/env bash
# Installs what the build and the tests need from Debian's packages.
# Run as root on Debian 12. Safe to run again: installed packages are kept,
# and libexpat1 is brought to the current security update.
set -euo pipefail

packages=(
  g++ cmake make pkg-config dpkg-dev groff-base man-db gzip
  libpoco-dev libexpat1
  libgtest-dev libbenchmark-dev python3
  clang libclang-rt-dev
  valgrind
)

if [[ $(id -u) -ne 0 ]]; then
  echo "bootstrap.sh: run as root (it installs Debian packages)" >&2
  exit 1
fi

export DEBIAN_FRONTEND=noninteractive
apt-get update -qq
apt-get install -y -qq --no-install-recommends "${packages[@]}" > /dev/null
