#!/usr/bin/env bash
# run_makro.sh KOLM SCENARIO DATADIR: runs one macro scenario in a fresh
# project folder with its own Kolm.ini. A scenario whose first line is
# "# erwartet: N" expects exit status N instead of 0.
set -u
kolm=$1 scenario=$2 data=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/projekt" "$work/config"
export KOLM_INI="$work/config/Kolm.ini"
export XDG_CONFIG_HOME="$work/config"
export XDG_RUNTIME_DIR="$work"
export QT_QPA_PLATFORM=offscreen
export KOLM_DATEN="$data"
expected=0
first=$(head -n 1 "$scenario")
if [[ $first =~ ^#\ erwartet:\ ([0-9]+) ]]; then expected=${BASH_REMATCH[1]}; fi
cd "$work"
"$kolm" --makro "$scenario" "$work/projekt" >"$work/out.txt" 2>&1
status=$?
cat "$work/out.txt"
if [[ $status -ne $expected ]]; then
  echo "Exit-Status $status, erwartet $expected"
  exit 1
fi
exit 0
