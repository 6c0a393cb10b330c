#!/usr/bin/env bash
# Assembles the macOS header tree that the compile check of src/host/probe/darwin/ runs
# against, from Apple's open-source repositories (github.com/apple-oss-distributions), and
# prunes it to the headers that the darwin sources actually include.
#
#   assemble.sh SOURCE [OUTPUT]
#
# SOURCE is either a URL base (https://github.com/apple-oss-distributions), from which each
# repository's tag is cloned, or a local path pattern holding "{}" for the repository name
# (for example /srv/mirror/{}.git), read with git archive. OUTPUT defaults to the sysroot/
# folder beside this script. The darwin sources that decide the pruning are
# src/host/probe/darwin/*.cpp of this checkout (DARWIN_SOURCES overrides the list).
#
# Nothing from Apple's proprietary SDK is used: the files come from the tags below, plus the
# few headers in ours/ that these repositories do not carry.
set -euo pipefail

here=$(cd "$(dirname "$0")" && pwd)
repo_root=$(cd "$here/../.." && pwd)
source_spec=${1:?usage: assemble.sh SOURCE [OUTPUT]}
output=${2:-$here/sysroot}

tags=(
  xnu-4570.71.2 Libc-1244.50.9 CF-1153.18 IOKitUser-1445.71.1 IONetworkingFamily-124.50.3
  configd-963.50.8 Security-58286.70.7 mDNSResponder-878.70.2 objc4-723 libdispatch-913.60.2
  libpthread-301.50.1 libplatform-161.50.1 libclosure-67 Libm-2026 Libinfo-517.30.1
  CarbonHeaders-18.1 AvailabilityVersions-155
)

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
src=$work/src
full=$work/full
mkdir -p "$src" "$full"

# --- 1. the sources of every tag -----------------------------------------------------------
# Only the folders that hold installed headers (and the generators) are taken from each tag.
declare -A parts=(
  [xnu]="bsd osfmk/mach osfmk/mach_debug osfmk/device osfmk/i386/eflags.h osfmk/arm/arch.h libsyscall/mach/mach libkern/libkern libkern/os iokit/IOKit EXTERNAL_HEADERS libsyscall/wrappers/libproc libsyscall/wrappers/gethostuuid.h APPLE_LICENSE"
  [Libc]="include APPLE_LICENSE"
  [CF]=". "
  [IOKitUser]="APPLE_LICENSE IOKitLib.h IOCFPlugIn.h IOCFBundle.h IOCFSerialize.h IOCFUnserialize.h IOCFURLAccess.h IODataQueueClient.h pwr_mgt.subproj/IOPMLib.h pwr_mgt.subproj/IOPMLibDefs.h pwr_mgt.subproj/IOPMKeys.h pwr_mgt.subproj/IOPowerSources.h pwr_mgt.subproj/IOPSKeys.h"
  [IONetworkingFamily]=". "
  [configd]="SystemConfiguration.fproj APPLE_LICENSE"
  [Security]=""
  [mDNSResponder]="mDNSShared/dns_sd.h LICENSE"
  [objc4]="runtime APPLE_LICENSE"
  [libdispatch]="dispatch os LICENSE"
  [libpthread]="pthread sys"
  [libplatform]="include LICENSE"
  [libclosure]="Block.h"
  [Libm]="Source/Intel/math.h"
  [Libinfo]="APPLE_LICENSE gen.subproj/ifaddrs.h lookup.subproj/netdb.h lookup.subproj/pwd.h lookup.subproj/grp.h"
  [CarbonHeaders]="MacTypes.h ConditionalMacros.h"
  [AvailabilityVersions]=". "
)
for tag in "${tags[@]}"; do
  name=${tag%-*}
  mkdir -p "$src/$name"
  if [[ $source_spec == *"{}"* ]]; then
    git_dir=${source_spec//\{\}/$name}
  else
    git_dir=$work/clone-$name
    git clone -q --bare --depth 1 --branch "$tag" "$source_spec/$name.git" "$git_dir"
  fi
  # Folders of the list that a tag lacks are passed over; a missing file fails below.
  present=()
  for part in ${parts[$name]}; do
    if [[ $part == . ]] || git --git-dir="$git_dir" cat-file -e "$tag:$part" 2>/dev/null; then present+=("$part"); fi
  done
  if [[ ${parts[$name]} == ". " ]]; then
    # Whole small repositories: their header and licence files, by name.
    mapfile -t present < <(git --git-dir="$git_dir" ls-tree -r --name-only "$tag" | grep -E '(\.h|LICENSE[^/]*|\.pl|\.dsl|^availability[^/]*|^templates/.*)$')
  fi
  if [[ ${#present[@]} -gt 0 ]]; then
    git --git-dir="$git_dir" archive "$tag" -- "${present[@]}" | tar -x -C "$src/$name"
  fi
  if [[ $name == Security ]]; then
    # The installed Security headers are the targets of its header_symlinks folders.
    python3 "$here/security-headers.py" "$git_dir" "$tag" > "$src/Security.installed"
    git --git-dir="$git_dir" archive "$tag" -- $(cut -f2 "$src/Security.installed" | sort -u) | tar -x -C "$src/$name"
  fi
  [[ $source_spec == *"{}"* ]] || rm -rf "$git_dir"
done

# --- 2. the installed layout ---------------------------------------------------------------
inc=$full/usr/include
fw=$full/System/Library/Frameworks
mkdir -p "$inc" "$fw"

# copy FROM_DIR TO_DIR [GLOB]: the headers of one folder (not recursive).
copy() {
  local from=$1 to=$2 glob=${3:-*.h}
  mkdir -p "$to"
  find "$from" -maxdepth 1 \( -type f -o -type l \) -name "$glob" -exec cp -L {} "$to/" \; 2>/dev/null || true
}
# tree FROM_DIR TO_DIR: every header below a folder, keeping sub-folders.
tree() {
  local from=$1 to=$2
  (cd "$from" && find . -name '*.h' -type f) | while read -r file; do
    mkdir -p "$to/$(dirname "$file")"
    cp "$from/$file" "$to/$file"
  done
}
framework() { echo "$fw/$1.framework/Headers"; }

x=$src/xnu
for dir in sys net netinet netinet6 arpa i386 arm machine uuid bsm miscfs/devfs; do
  [[ -d $x/bsd/$dir ]] && copy "$x/bsd/$dir" "$inc/$dir"
done
copy "$x/bsd/sys/_types" "$inc/sys/_types"
tree "$x/osfmk/mach" "$inc/mach"
copy "$x/libsyscall/mach/mach" "$inc/mach"
copy "$x/osfmk/device" "$inc/device"
cp "$x/osfmk/i386/eflags.h" "$inc/i386/"
cp "$x/osfmk/arm/arch.h" "$inc/arm/"
copy "$x/osfmk/mach_debug" "$inc/mach_debug"
copy "$x/libkern/libkern" "$inc/libkern"
copy "$x/libkern/libkern/i386" "$inc/libkern/i386"
copy "$x/libkern/libkern/arm" "$inc/libkern/arm"
copy "$x/libkern/libkern/machine" "$inc/libkern/machine"
copy "$x/libkern/os" "$inc/os"
cp "$x/libsyscall/wrappers/libproc/libproc.h" "$x/libsyscall/wrappers/gethostuuid.h" "$inc/"
for file in AssertMacros.h stdint.h; do
  cp "$x/EXTERNAL_HEADERS/$file" "$inc/"
done
tree "$x/EXTERNAL_HEADERS/architecture" "$inc/architecture"
tree "$x/EXTERNAL_HEADERS/mach-o" "$inc/mach-o"
# The kernel's public IOKit headers, then the user-space library's.
iokit=$(framework IOKit)
tree "$x/iokit/IOKit" "$iokit"
copy "$src/IOKitUser" "$iokit"
copy "$src/IOKitUser/pwr_mgt.subproj" "$iokit/pwr_mgt"
copy "$src/IONetworkingFamily" "$iokit/network"

# The installer strips the blocks that only Libc's own build sees.
find "$src/Libc/include" -name "*.h" -exec sed -i "/^\/\/Begin-Libc/,/^\/\/End-Libc/d" {} +
tree "$src/Libc/include" "$inc"
mv "$inc/FreeBSD/"*.h "$inc/NetBSD/"*.h "$inc/"
rm -rf "$inc/FreeBSD" "$inc/NetBSD"
# Libc's own sys/cdefs.h wraps the kernel's for its build; the installed one is the kernel's.
cp "$x/bsd/sys/cdefs.h" "$inc/sys/cdefs.h"

copy "$src/libpthread/pthread" "$inc/pthread"
for file in pthread.h pthread_impl.h sched.h; do cp "$src/libpthread/pthread/$file" "$inc/"; done
copy "$src/libpthread/sys" "$inc/sys"
copy "$src/libpthread/sys/_pthread" "$inc/sys/_pthread"
tree "$src/libplatform/include" "$inc"
copy "$src/libdispatch/dispatch" "$inc/dispatch"
cp "$src/libdispatch/os/object.h" "$inc/os/"
cp "$src/libclosure/Block.h" "$inc/"
cp "$src/Libm/Source/Intel/math.h" "$inc/"
cp "$src/Libinfo/gen.subproj/ifaddrs.h" "$src/Libinfo/lookup.subproj/"{netdb,pwd,grp}.h "$inc/"
cp "$src/mDNSResponder/mDNSShared/dns_sd.h" "$inc/"
copy "$src/objc4/runtime" "$inc/objc"
for file in MacTypes.h ConditionalMacros.h; do cp "$src/CarbonHeaders/$file" "$inc/"; done

copy "$src/CF" "$(framework CoreFoundation)"
copy "$src/configd/SystemConfiguration.fproj" "$(framework SystemConfiguration)"
mkdir -p "$(framework Security)"
while IFS=$'\t' read -r installed path; do cp "$src/Security/$path" "$(framework Security)/$installed"; done < "$src/Security.installed"

# Apple's own generators: the availability macros, and the symbol-aliasing and POSIX-availability headers of <sys/cdefs.h>,
# from the version lists of AvailabilityVersions.
mkdir -p "$work/sdk/usr/local/libexec"
cp -r "$src/AvailabilityVersions/." "$work/sdk/usr/local/libexec/"
ln -sf availability "$work/sdk/usr/local/libexec/availability.pl"
chmod +x "$work/sdk/usr/local/libexec/availability"
mkdir -p "$inc/os"
for template in Availability.h AvailabilityInternal.h AvailabilityInternalLegacy.h AvailabilityMacros.h \
    AvailabilityVersions.h os_availability.h; do
  python3 "$work/sdk/usr/local/libexec/availability" --preprocess \
    "$src/AvailabilityVersions/templates/$template" "$inc/${template/os_availability.h/os\/availability.h}"
done
bash "$x/bsd/sys/make_symbol_aliasing.sh" "$work/sdk" "$inc/sys/_symbol_aliasing.h"
bash "$x/bsd/sys/make_posix_availability.sh" "$inc/sys/_posix_availability.h"

# Ours: what none of the repositories carries.
cp -r "$here/ours/usr" "$full/"
versions=$(python3 "$work/sdk/usr/local/libexec/availability" --macosx)
python3 "$here/ours/availability-additions.py" legacy $versions >> "$inc/AvailabilityInternalLegacy.h"
cf_base=$(framework CoreFoundation)/CFBase.h
cat "$here/ours/CFBase-additions.h" >> "$cf_base"
python3 "$here/ours/availability-additions.py" cf $versions >> "$cf_base"

[[ -n ${FULL_TREE:-} ]] && { rm -rf "$FULL_TREE"; cp -r "$full" "$FULL_TREE"; }

# --- 3. pruned to what the darwin sources include -------------------------------------------
mapfile -t sources < <(if [[ -n ${DARWIN_SOURCES:-} ]]; then printf '%s\n' $DARWIN_SOURCES; else
  ls "$repo_root"/src/host/probe/darwin/*.cpp; fi)
deps=$work/deps
: > "$deps"
for target in x86_64-apple-macosx10.13 arm64-apple-macosx11.0; do
  for source in "${sources[@]}"; do
    clang++ -std=c++17 -stdlib=libc++ -target "$target" -isysroot "$full" \
      -I "$repo_root/include" -I "$repo_root/src" -I "$repo_root/build/include" \
      -M -MF - "$source" >> "$deps"
  done
done
rm -rf "$output"
tr ' \\' '\n\n' < "$deps" | grep "^$full/" | sort -u | while read -r file; do
  relative=${file#"$full"/}
  mkdir -p "$output/$(dirname "$relative")"
  cp "$file" "$output/$relative"
done
# The licences that the repositories carry at their top (the others state theirs in each file).
licences=${LICENSES_DIR:-$here/LICENSES}
rm -rf "$licences"
mkdir -p "$licences"
for tag in "${tags[@]}"; do
  for file in APPLE_LICENSE LICENSE; do
    [[ -f $src/${tag%-*}/$file ]] && cp "$src/${tag%-*}/$file" "$licences/$tag.$file"
  done
done
echo "assemble: $(find "$output" -type f | wc -l) headers, $(du -sh "$output" | cut -f1) in $output" >&2
