#!/usr/bin/env bash
# Fails when an #include in src/ or include/tvpolicy/ reaches a layer above the including file's
# own, or a sibling on its level. The layers, from the top:
#   checks | agent  ->  policy  ->  host  ->  xml  ->  net  ->  base
# A folder names its layer: src/host/probe/linux/X.cpp and include/tvpolicy/host/X.h are host;
# "policy/X.h" and <tvpolicy/policy/X.h> are policy. Prints every offending line.
set -euo pipefail
cd "$(dirname "$0")/.."
grep -rnE '^[[:space:]]*#[[:space:]]*include[[:space:]]*[<"]' src include/tvpolicy --include='*.h' --include='*.cpp' |
awk '
BEGIN {
    rank["base"] = 0; rank["net"] = 1; rank["xml"] = 2; rank["host"] = 3
    rank["policy"] = 4; rank["checks"] = 5; rank["agent"] = 5
    bad = 0
}
{
    file = $0; sub(/:.*/, "", file)
    from = file; sub(/^(src|include\/tvpolicy)\//, "", from); sub(/\/.*/, "", from)
    target = $0; sub(/^[^#]*#[[:space:]]*include[[:space:]]*[<"]/, "", target)
    sub(/^tvpolicy\//, "", target); sub(/\/.*/, "", target)
    if (!(from in rank) || !(target in rank) || from == target) next
    if (rank[target] >= rank[from]) { print "layer order: " $0; bad = 1 }
}
END { exit bad }'
