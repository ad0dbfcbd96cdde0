#!/usr/bin/env bash
# install-packages.sh GROUP...: installs what is missing of the groups in packages.sh.
# Asks only dpkg when nothing is missing, so that a prepared machine needs neither root nor a network.
set -euo pipefail

# shellcheck source=scripts/packages.sh
source "$(dirname "${BASH_SOURCE[0]}")/packages.sh"

if ! command -v dpkg-query >/dev/null; then
    echo "This is not a Debian system. Please install the packages named in scripts/packages.sh by hand." >&2
    exit 0
fi

wanted=()
for group in "$@"; do
    declare -n packages_of_group="packages_$group"
    if [[ -z ${packages_of_group+set} ]]; then
        echo "install-packages.sh: no group of packages is called '$group'" >&2
        exit 2
    fi
    wanted+=("${packages_of_group[@]}")
done

# ${Package} leaves out the architecture that dpkg adds to some names.
installed=$(dpkg-query -W -f '${Package} ${db:Status-Status}\n' "${wanted[@]}" 2>/dev/null |
    awk '$2 == "installed" { print $1 }' || true)
missing=()
for package in "${wanted[@]}"; do
    grep -qxF -- "$package" <<<"$installed" || missing+=("$package")
done
if [[ ${#missing[@]} -eq 0 ]]; then
    exit 0
fi

as_root=()
if [[ $(id -u) -ne 0 ]]; then
    if ! command -v sudo >/dev/null; then
        echo "These packages are missing, and installing them needs root: ${missing[*]}" >&2
        exit 1
    fi
    as_root=(sudo)
fi

echo "Installing: ${missing[*]}" >&2
apt_get() {
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get -q -o Acquire::Retries=3 -o DPkg::Lock::Timeout=120 "$@" >&2
}
# A mirror in the middle of its own update answers with lists that do not match; a moment later they do.
apt_get update || { sleep 10 && apt_get update; }
apt_get install -y --no-install-recommends "${missing[@]}"
