#!/usr/bin/env bash
# scripts/make-formulas.sh: sets every formula of resources/pages anew. Needs node 18 or later and npm; what
# it writes (resources/formulas) is committed, so that neither a build nor a user needs them.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/formulas"

[ -d node_modules ] || npm ci --no-audit --no-fund
exec node make.cjs ../../resources
