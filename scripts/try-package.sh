#!/usr/bin/env bash
# try-package.sh [PACKAGE.deb]: installs a package in a fresh Debian system in a folder of its own, starts
# the program there on a virtual screen, removes it, and says what it saw. Needs root and a Debian mirror:
# the one that this machine installs from.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
package=${1:-$(ls -t "$root"/build/velmora_*.deb 2>/dev/null | head -n 1)}
[[ -f $package ]] || { echo "There is no package; ./package makes one." >&2; exit 2; }
"$root/scripts/install-packages.sh" chroot

# shellcheck source=/dev/null
release=$(. /etc/os-release && echo "$VERSION_CODENAME")
mirror=$(apt-get indextargets --format '$(SITE) $(CODENAME) $(COMPONENT)' |
    awk -v release="$release" '$2 == release && $3 == "main" { print $1; exit }')
fresh=$(mktemp -d)
finish() {
    umount "$fresh/proc" 2>/dev/null || true
    rm -rf --one-file-system "$fresh"
}
trap finish EXIT

faults=0
saw() { echo "saw: $1"; }
fault() {
    echo "FAULT: $1" >&2
    faults=$((faults + 1))
}
inside() { chroot "$fresh" env DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 HOME=/root "$@"; }
listed() { inside find / -xdev \( -path /proc -o -path /var -o -path /tmp -o -path /root -o -path /run \) -prune -o -print | sort; }

echo "A fresh $release is made in $fresh"
debootstrap --variant=minbase "$release" "$fresh" "$mirror" >"$fresh.log" 2>&1 ||
    { tail -n 20 "$fresh.log" >&2; exit 1; }
rm -f "$fresh.log"
mount -t proc proc "$fresh/proc"
for settings in /etc/apt/apt.conf.d/*proxy* /etc/apt/apt.conf; do
    [[ -f $settings ]] && cp "$settings" "$fresh/etc/apt/apt.conf.d/"
done
cp /etc/resolv.conf "$fresh/etc/resolv.conf" 2>/dev/null || true
inside apt-get -qq update

cp "$package" "$fresh/tmp/velmora.deb"
# With all that the package needs, and the screen that it does not.
inside apt-get -qq install -y --no-install-recommends /tmp/velmora.deb >/dev/null 2>&1 ||
    fault "the package does not install"
inside apt-get -qq install -y --no-install-recommends xvfb >/dev/null 2>&1
inside dpkg-query -W -f 'saw: ${Package} ${Version} ${db:Status-Status}\n' velmora

for file in /usr/bin/velmora /usr/share/applications/velmora.desktop /usr/share/metainfo/velmora.metainfo.xml \
    /usr/share/icons/hicolor/scalable/apps/velmora.svg /usr/share/icons/hicolor/48x48/apps/velmora.png; do
    if [[ -s $fresh$file ]]; then saw "$file"; else fault "$file is missing"; fi
done

# Started as a desktop starts it; ended as a session ends.
status=0
inside sh -c 'Xvfb :97 -screen 0 800x900x24 >/dev/null 2>&1 & screen=$!
    sleep 3
    DISPLAY=:97 QT_QPA_PLATFORM=xcb timeout --preserve-status -s TERM 10 velmora >/tmp/velmora.log 2>&1
    status=$?
    kill $screen
    exit $status' || status=$?
sed 's/^/program: /' "$fresh/tmp/velmora.log"
grep -q '^Velmora starts' "$fresh/tmp/velmora.log" || fault "the program did not start"
if [[ $status -eq 0 ]]; then saw "the program ran until it was told to end"; else fault "the program ended with $status"; fi
if [[ -n $(find "$fresh/root" -name 'Calculator archive*' -print -quit) ]]; then
    saw "it saved its state"
else
    fault "it saved nothing"
fi

inside apt-get -qq purge -y velmora >/dev/null 2>&1 || fault "the package cannot be removed"
left=$(listed | grep -i velmora || true)
if [[ -z $left ]]; then saw "nothing of it is left"; else fault "left behind: $left"; fi

echo "$faults faults"
exit $((faults > 0))
