#!/usr/bin/env bash
# Drives the generated bash completion in a real bash as the shell does on <TAB>: COMP_WORDS and
# COMP_CWORD set, the function that `complete -p tvpolicy` names called, COMPREPLY read back.
# Usage: bash_completion.sh TVPOLICY
set -uo pipefail
program=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$program" completion bash >"$work/tvpolicy.bash" || { echo "completion bash failed"; exit 1; }
"$program" completion zsh >"$work/_tvpolicy" || { echo "completion zsh failed"; exit 1; }
mkdir -p "$work/files" && touch "$work/files/policy.xml"

# Each case: the words typed (the last one is being completed) | what the completion offers.
cases=(
  "tvpolicy ru|run"
  "tvpolicy run --js|--json"
  "tvpolicy run --max|--max-size"
  "tvpolicy wifi s|status"
  "tvpolicy wifi status --|--help --json --verbose --log --version"
  "tvpolicy -v w|watch wifi"
  "tvpolicy --log ru|"
  "tvpolicy --log x ru|run"
  "tvpolicy run --output $work/files/pol|$work/files/policy.xml"
  "tvpolicy run $work/files/pol|$work/files/policy.xml"
  "tvpolicy tasks x|"
  "tvpolicy comp|compare"
)

failures=0
for entry in "${cases[@]}"; do
  typed=${entry%%|*}
  wanted=${entry#*|}
  got=$(cd "$work" && bash --norc --noprofile -c '
    source ./tvpolicy.bash
    read -ra COMP_WORDS <<<"$1"
    [[ $1 == *" " ]] && COMP_WORDS+=("")
    COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
    COMP_LINE=$1 COMP_POINT=${#1}
    function=$(complete -p tvpolicy | sed -n "s/.*-F \([^ ]*\) .*/\1/p")
    "$function" tvpolicy "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD-1]}"
    printf "%s\n" "${COMPREPLY[@]}" | sort | tr "\n" " "' bash "$typed")
  got=${got% }
  sorted=$(tr ' ' '\n' <<<"$wanted" | sed '/^$/d' | sort | tr '\n' ' ')
  sorted=${sorted% }
  if [[ $got != "$sorted" ]]; then
    echo "FAIL: '$typed<TAB>' offers '$got', expected '$sorted'"
    failures=$((failures + 1))
  fi
done

# The zsh script is at least valid zsh.
if command -v zsh >/dev/null; then
  zsh -n "$work/_tvpolicy" || { echo "FAIL: the zsh completion does not parse"; failures=$((failures + 1)); }
fi
echo "${#cases[@]} completions tried, $failures failed"
((failures == 0))
