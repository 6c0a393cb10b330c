#!/usr/bin/env bash
# Installs the Debian 12 packages that building and testing tvpolicy need.
# Idempotent; prints nothing when everything is already present.
set -euo pipefail

packages=(
  build-essential cmake ninja-build pkg-config git
  libxerces-c-dev libcurl4-openssl-dev libboost-dev libsystemd-dev
  libcli11-dev nlohmann-json3-dev
  libgtest-dev libgmock-dev libbenchmark-dev libcpp-httplib-dev libssl-dev
  dnsmasq-base iproute2 procps findutils python3 python3-dbusmock dbus
  clang libclang-rt-dev llvm
)

missing=()
for package in "${packages[@]}"; do
  status=$(dpkg-query -W -f='${Status}' "$package" 2>/dev/null || true)
  [[ $status == "install ok installed" ]] || missing+=("$package")
done
[[ ${#missing[@]} -eq 0 ]] && exit 0

if [[ $(id -u) -ne 0 ]]; then
  sudo=sudo
else
  sudo=
fi
echo "setup: installing ${missing[*]}" >&2
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq >/dev/null
$sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
