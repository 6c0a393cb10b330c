#!/usr/bin/env bash
# Installs the Debian 12 packages that building and testing tvpolicy need; with
# TVPOLICY_SETUP_TESTS=1 also those that only the tests use (a browser that renders the HTML
# report), and with TVPOLICY_SETUP_PACKAGING=1 those that build and check the Debian packages and
# the library's ABI. Idempotent; prints nothing when everything is already present.
set -euo pipefail

packages=(
  build-essential cmake ninja-build pkg-config git scdoc
  libxerces-c-dev libicu-dev libcurl4-gnutls-dev libboost-dev libsystemd-dev
  libcli11-dev nlohmann-json3-dev nettle-dev libpcre2-dev libnftables-dev
  libgtest-dev libgmock-dev libbenchmark-dev libcpp-httplib-dev libssl-dev
  clang libc++-dev libc++abi-dev libclang-rt-dev llvm clang-format clang-tidy
  dnsmasq-base bind9-dnsutils curl iproute2 procps findutils python3 python3-dbusmock dbus util-linux sudo
  nftables  # the packet-filter tests load rulesets in namespaces of their own
  systemd  # busctl, which the D-Bus peer tests drive their mocks with
)
if [[ ${TVPOLICY_SETUP_TESTS:-0} == 1 ]]; then
  packages+=(chromium zsh)
fi
if [[ ${TVPOLICY_SETUP_PACKAGING:-0} == 1 ]]; then
  packages+=(debhelper fakeroot lintian debootstrap abigail-tools)
fi

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
