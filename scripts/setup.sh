#!/usr/bin/env bash
# Installs what the build and the tests need on Debian 12, when it is missing.
set -euo pipefail

packages=(
  cmake ninja-build g++ pkg-config
  libgtest-dev libgmock-dev
  nlohmann-json3-dev
  libbenchmark-dev
  # benchmark-only: the peer the spreadsheet engine is measured against
  libxlsxwriter-dev
  # wall time and peak memory of the end-to-end benchmark
  time
  # the spreadsheet engine, and the independent readers its tests use
  libgsf-1-dev libpugixml-dev
  python3-xlrd python3-openpyxl libreoffice-calc-nogui fonts-wqy-zenhei
  # the dialogs and the workbench's window, Qt's own texts in Chinese
  qt6-base-dev qt6-translations-l10n
  # STEP and IGES files out of the simulated host
  libocct-data-exchange-dev libocct-ocaf-dev libocct-modeling-algorithms-dev
  # which Open CASCADE's CMake targets link without depending on it
  libtbb-dev
  # a locale with a decimal comma for the tests of number texts
  locales
)

missing=()
for package in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed"; then
    missing+=("$package")
  fi
done

sudo=""
[ "$(id -u)" -eq 0 ] || sudo="sudo"

if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  $sudo apt-get update -q
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -q --no-install-recommends "${missing[@]}"
fi

if ! locale -a | grep -qx 'de_DE.utf8'; then
  $sudo localedef -i de_DE -f UTF-8 de_DE.UTF-8
fi
