#!/usr/bin/env bash
# run_makro.sh KOLM SCENARIO DATADIR: runs one macro scenario in a fresh
# project folder with its own Kolm.ini.
#
# The comment lines at the top of a scenario may say what the run needs and
# what it must give:
#   # erwartet: N      the program ends with exit status N (default 0)
#   # ausgabe: TEXT    the program's output contains TEXT (any number of lines)
#   # projekt: demo    the project folder starts as a copy of the demo project
# The folder given to the program is $work/projekt; as with the command-line
# parameter, the project itself is its subfolder KOLM.
# A sanitizer report in the output fails the scenario whatever the status.
set -u
kolm=$(realpath -- "$1") scenario=$(realpath -- "$2") data=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/projekt" "$work/config" "$work/laufzeit"
chmod 700 "$work/laufzeit"
export KOLM_INI="$work/config/Kolm.ini"
export XDG_CONFIG_HOME="$work/config"
export XDG_RUNTIME_DIR="$work/laufzeit"
export QT_QPA_PLATFORM=offscreen

expected=0
outputs=()
while IFS= read -r line || [[ -n $line ]]; do
  line=${line%$'\r'}
  [[ -z ${line//[[:space:]]/} ]] && continue
  [[ $line == \#* ]] || break
  if [[ $line =~ ^#[[:space:]]*erwartet:[[:space:]]*([0-9]+)[[:space:]]*$ ]]; then
    expected=${BASH_REMATCH[1]}
  elif [[ $line =~ ^#[[:space:]]*ausgabe:[[:space:]]?(.*)$ ]]; then
    outputs+=("${BASH_REMATCH[1]}")
  elif [[ $line =~ ^#[[:space:]]*projekt:[[:space:]]*demo[[:space:]]*$ ]]; then
    if [[ -d "$data/Demo Projekt" ]]; then
      mkdir -p "$work/projekt/KOLM"
      cp -R "$data/Demo Projekt/." "$work/projekt/KOLM/"
    fi
  fi
done <"$scenario"

cd "$work"
"$kolm" --makro "$scenario" "$work/projekt" >"$work/out.txt" 2>&1
status=$?
cat "$work/out.txt"

failed=0
if [[ $status -ne $expected ]]; then
  echo "Exit-Status $status, erwartet $expected"
  failed=1
fi
for text in "${outputs[@]}"; do
  if ! grep -qF -- "$text" "$work/out.txt"; then
    echo "Ausgabe enthält nicht: $text"
    failed=1
  fi
done
if grep -qE 'ERROR: (AddressSanitizer|LeakSanitizer)|SUMMARY: UndefinedBehaviorSanitizer|runtime error: ' "$work/out.txt"; then
  echo "Sanitizer-Bericht in der Ausgabe"
  failed=1
fi
exit $failed
