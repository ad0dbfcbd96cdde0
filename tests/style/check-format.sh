#!/usr/bin/env bash
# check-format.sh ROOT: fails for every source that clang-format would change.
set -euo pipefail
cd "$1"

if ! command -v clang-format >/dev/null; then
    echo "clang-format is missing: scripts/install-packages.sh test"
    exit 1
fi
mapfile -d '' sources < <(find . \( -path ./.git -o -path './build*' \) -prune -o -type f \
    \( -name '*.h' -o -name '*.cpp' \) -print0)
if [[ ${#sources[@]} -eq 0 ]]; then
    echo "no sources under $PWD"
    exit 1
fi
if ! printf '%s\0' "${sources[@]}" | xargs -0 -n 20 -P "$(nproc)" clang-format --dry-run -Werror 2>&1; then
    echo "To put this right: find FOLDER -name '*.h' -o -name '*.cpp' | xargs clang-format -i"
    exit 1
fi
echo "${#sources[@]} sources are formatted"
