#!/usr/bin/env bash
# check-tidy.sh ROOT BUILD [--all | FILE...]: runs clang-tidy over the program's own sources, as they were
# compiled in BUILD with Ninja: those that the changes in the working tree touch, or all, or those named.
# Where VELMORA_TIDY_ALL is set, or where git knows nothing of the tree, it looks at all of them.
#
# A source that was clean stays clean until it, a header of ours that it includes, or the configuration
# changes; so a second run looks only at what was touched.
set -euo pipefail
root=$(cd "$1" && pwd -P)
build=$(cd "$2" && pwd -P)
shift 2

if ! command -v clang-tidy >/dev/null; then
    echo "clang-tidy is missing: scripts/install-packages.sh test"
    exit 1
fi
cd "$root"
clean="$build/tidy-clean"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$clean"

# One line a source: itself, then our headers that the compiler read for it.
ninja -C "$build" -t deps | awk -v root="$root/" -v build="$build/" '
    function flush() {
        if (line ~ /^(platform|toolkit|engine|calculator|graphing|tools|app|ui)\/[^ ]*\.cpp( |$)/ && !(line in seen)) {
            seen[line] = 1
            print line
        }
        line = ""
    }
    /^[^ ]/ { flush(); next }
    NF == 1 {
        path = $1
        if (index(path, build) == 1 || path !~ /^\// && path !~ /^\.\.\//) next # made by the build
        while (sub(/^\.\.\//, "", path)) {}
        if (index(path, root) == 1) path = substr(path, length(root) + 1)
        if (path !~ /^\//) line = line == "" ? path : line " " path
    }
    END { flush() }' | sort -u >"$work/sources"

if [[ ! -s $work/sources ]]; then
    echo "Nothing in $build was compiled from these folders."
    exit 1
fi

if [[ $# -eq 0 && -z ${VELMORA_TIDY_ALL:-} ]] && git rev-parse --git-dir >/dev/null 2>&1; then
    # A changed header concerns every source that reads it.
    { git diff --name-only HEAD && git ls-files --others --exclude-standard; } >"$work/wanted"
    awk 'FILENAME == ARGV[1] { wanted[$1]; next }
         { for (i = 1; i <= NF; ++i) if ($i in wanted) { print; next } }' \
        "$work/wanted" "$work/sources" >"$work/chosen"
    mv "$work/chosen" "$work/sources"
elif [[ $# -gt 0 && $1 != --all ]]; then
    printf '%s\n' "$@" >"$work/wanted"
    awk 'NR == FNR { wanted[$1]; next } $1 in wanted' "$work/wanted" "$work/sources" >"$work/chosen"
    mv "$work/chosen" "$work/sources"
    if [[ ! -s $work/sources ]]; then
        echo "None of these was compiled in $build: $*"
        exit 1
    fi
fi
total=$(wc -l <"$work/sources")

# clang cannot read what the compiler precompiled. Without it every source must include what it uses.
sed -E 's/ -Winvalid-pch//; s/ -include [^ ]*cmake_pch\.hxx//g' "$build/compile_commands.json" \
    >"$work/compile_commands.json"

version=$(clang-tidy --version)
while read -r -a files; do
    # A header may be gone since the last build; the source that named it is looked at anew.
    key=$( (echo "$version" && cat .clang-tidy "${files[@]}" 2>/dev/null && echo "${files[@]}") | sha256sum | cut -d' ' -f1)
    [[ -e $clean/$key ]] || echo "${files[0]} $clean/$key"
done <"$work/sources" >"$work/stale"
echo "$total sources, $(wc -l <"$work/stale") of them new or changed"

check() {
    local output
    # The commands are the compiler's, which knows warnings that clang does not.
    # The standard output holds the findings, the standard error only counts what was suppressed.
    if output=$(clang-tidy -p "$3" --quiet --extra-arg=-Wno-unknown-warning-option "$1" 2>"$3/errors.$$"); then
        touch "$2"
    else
        printf '%s\n' "$output"
        grep -v -e '^[0-9]* warnings\? generated' -e '^Suppressed' "$3/errors.$$" || true
        return 1
    fi
}
export -f check
# shellcheck disable=SC2016
xargs -r -L 1 -P "$(nproc)" bash -c 'check "$1" "$2" "$0"' "$work" <"$work/stale"
