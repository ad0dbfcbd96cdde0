#!/usr/bin/env bash
# check-layers.sh [ROOT]: names every include that breaks the order of the layers in layers.txt, every
# use of Qt outside ui/, and everything but the log that prints. Exits with 1 when it named any.
#
# A test in tests/<folder> follows the rules of <folder> and may also include from tests/ and print, as
# may what stands in bench/ and fuzz/, which see every layer that does not know Qt. The headers in cmake/ are
# only what is precompiled.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
cd "${1:-$here/../..}"

mapfile -t sources < <(find . \( -path ./.git -o -path ./cmake -o -path './build*' \) -prune -o -type f \
    \( -name '*.h' -o -name '*.hpp' -o -name '*.cpp' -o -name '*.cc' -o -name '*.inl' \) -print |
    sed 's|^\./||' | sort)
if [[ ${#sources[@]} -eq 0 ]]; then
    echo "check-layers: no sources under $PWD"
    exit 1
fi

awk -f "$here/check-layers.awk" "$here/layers.txt" "${sources[@]}"
