#!/usr/bin/env bash
# Builds the Debian packages (scripts/package.sh), installs them with apt into a clean Debian 12
# root, uses them there as an administrator and a library user would, purges them and checks
# that nothing of theirs is left. Needs root (debootstrap, chroot, mounts) and Debian's mirror.
#
# The root is made once with debootstrap (minbase, plus the tools the checks use: a compiler,
# CMake, pkg-config, man-db, systemd) and kept as build/package-test/root.tar; every run unpacks a
# fresh copy of it. Packages apt downloads are kept in build/package-test/apt-cache.
set -euo pipefail
cd "$(dirname "$0")/.."
top=$PWD
work=$(realpath -m "${PACKAGE_TEST_DIR:-build/package-test}")
mirror=${DEBIAN_MIRROR:-$(sed -n 's/^URIs: *//p' /etc/apt/sources.list.d/debian.sources 2>/dev/null | head -n 1)}
mirror=${mirror:-http://deb.debian.org/debian}
tools=(g++ make cmake pkg-config man-db systemd)
started=$SECONDS

step() { printf '== %s (%d s)\n' "$*" $((SECONDS - started)); }

step "packages"
DEB_DIR="$top/build/deb" bash scripts/package.sh >/dev/null
debs=("$top"/build/deb/libtvpolicy0_*.deb "$top"/build/deb/libtvpolicy-dev_*.deb "$top"/build/deb/tvpolicy_*.deb)

mkdir -p "$work/apt-cache"
if [[ ! -s $work/root.tar ]]; then
  step "debootstrap bookworm (minbase) from $mirror"
  rm -rf "$work/bootstrap"
  debootstrap --variant=minbase --include="$(IFS=,; echo "${tools[*]}")" bookworm "$work/bootstrap" "$mirror" \
    >"$work/debootstrap.log" 2>&1 || { tail -n 20 "$work/debootstrap.log" >&2; exit 1; }
  # The same suites as this machine (security updates included), so the packages' dependencies
  # resolve to what they were built against.
  sed "s|^URIs: .*/debian\$|URIs: $mirror|" /etc/apt/sources.list.d/debian.sources \
    >"$work/bootstrap/etc/apt/sources.list.d/debian.sources"
  rm -f "$work/bootstrap/etc/apt/sources.list"
  tar -C "$work/bootstrap" -cf "$work/root.tar.part" . && mv "$work/root.tar.part" "$work/root.tar"
  rm -rf "$work/bootstrap"
fi

step "fresh root"
root="$work/root"
rm -rf "$root"
mkdir -p "$root"
tar -C "$root" -xf "$work/root.tar"
cp "${debs[@]}" "$root/tmp/"
cp "$work"/apt-cache/*.deb "$root/var/cache/apt/archives/" 2>/dev/null || true
cp -r tests/consumer "$root/tmp/consumer"

# Inside the root, in a mount namespace of its own (the mounts go away with it).
cat >"$root/tmp/inside.sh" <<'INSIDE'
set -euo pipefail
export DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 PATH=/usr/sbin:/usr/bin:/sbin:/bin
cd /tmp
listing() {
  find / -xdev \( -path /proc -o -path /sys -o -path /dev -o -path /tmp -o -path /run -o -path /var/log \
    -o -path /var/cache -o -path /var/lib/apt -o -path /var/lib/dpkg -o -path /root \) -prune -o -print |
    grep -v -x -e /etc/ld.so.cache | sort
}
listing >/tmp/before

echo "-- apt-get install"
apt-get update -qq
apt-get install -y -qq --no-install-recommends ./libtvpolicy0_*.deb ./libtvpolicy-dev_*.deb ./tvpolicy_*.deb \
  >/tmp/install.log || { cat /tmp/install.log; exit 1; }

echo "-- tvpolicy --version"
tvpolicy --version
echo "-- tvpolicy run (installed example)"
tvpolicy run -q /usr/share/doc/tvpolicy/examples/compliant.xml | tail -n 1
echo "-- man pages"
for page in tvpolicy tvpolicy-policy tvpolicy-agent.toml; do man -w "$page"; done
man tvpolicy 2>/dev/null | grep -q '^SUBCOMMANDS' || { echo "man tvpolicy shows no SUBCOMMANDS section"; exit 1; }

echo "-- bash completion"
bash -c '
  source /usr/share/bash-completion/completions/tvpolicy
  complete_words() { COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); COMP_LINE="$*"; COMP_POINT=${#COMP_LINE}
                     COMPREPLY=(); _tvpolicy tvpolicy "${!#}" "${COMP_WORDS[COMP_CWORD-1]}"; echo "${COMPREPLY[*]}"; }
  [[ $(complete_words tvpolicy ru) == run ]] || { echo "tvpolicy ru<TAB>: $(complete_words tvpolicy ru)"; exit 1; }
  [[ $(complete_words tvpolicy run --js) == --json ]] || { echo "tvpolicy run --js<TAB>: $(complete_words tvpolicy run --js)"; exit 1; }
  echo "completes run and --json"'
[[ -s /usr/share/zsh/vendor-completions/_tvpolicy ]]

echo "-- a program built against libtvpolicy-dev"
cmake -S /tmp/consumer -B /tmp/consumer-build >/dev/null
cmake --build /tmp/consumer-build >/dev/null
/tmp/consumer-build/consumer | tee /tmp/cmake.out
# shellcheck disable=SC2046
c++ -o /tmp/pkgconfig-consumer /tmp/consumer/consumer.cpp $(pkg-config --cflags --libs tvpolicy)
/tmp/pkgconfig-consumer >/tmp/pkgconfig.out
cmp /tmp/cmake.out /tmp/pkgconfig.out
grep -q '^encoded: a%26b$' /tmp/cmake.out

units=$(dpkg -L tvpolicy | grep -E '/systemd/system/.*\.service$' || true)
if [[ -n $units ]]; then
  echo "-- systemd-analyze verify"
  # shellcheck disable=SC2086
  systemd-analyze verify $units
  for unit in $units; do echo "$unit: verified"; done
else
  echo "-- no systemd unit is packaged"
fi

echo "-- purge"
apt-get purge -y -qq libtvpolicy0 libtvpolicy-dev tvpolicy >/tmp/purge.log
apt-get autoremove --purge -y -qq >>/tmp/purge.log
listing >/tmp/after
left=$(comm -13 /tmp/before /tmp/after)
if [[ -n $left ]]; then
  echo "left after purging:"; echo "$left"; exit 1
fi
# man-db's cache of formatted pages is man-db's to expire.
theirs=$(find / -xdev \( -path /proc -o -path /sys -o -path /dev -o -path /tmp -o -path /var/log \
  -o -path /var/cache/man \) -prune -o -name '*tvpolicy*' -print)
if [[ -n $theirs ]]; then
  echo "left after purging:"; echo "$theirs"; exit 1
fi
echo "nothing left but the logs of apt and dpkg and the cache of man-db"
INSIDE

step "install, use and purge inside the root"
unshare --mount --fork bash -c '
  set -e
  root=$1
  mount -t proc proc "$root/proc"
  mount --rbind /dev "$root/dev"
  mount --make-rslave "$root/dev"
  mount -t tmpfs tmpfs "$root/run"
  cp /etc/resolv.conf "$root/etc/resolv.conf"
  chroot "$root" bash /tmp/inside.sh' bash "$root"
cp -n "$root"/var/cache/apt/archives/*.deb "$work/apt-cache/" 2>/dev/null || true
rm -rf "$root"
step "passed"
