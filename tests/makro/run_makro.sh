#!/usr/bin/env bash
# run_makro.sh KOLM SCENARIO DATADIR: runs one macro scenario in a fresh
# project folder with its own Kolm.ini.
#
# The comment lines at the top of a scenario may say what the run needs and
# what it must give:
#   # erwartet: N      the program ends with exit status N (default 0)
#   # ausgabe: TEXT    the program's output contains TEXT (any number of lines)
#   # projekt: demo    the project folder starts as a copy of the demo project
#   # datei: PFAD                   after the run the file exists
#   # keine-datei: PFAD             after the run the file does not exist
#   # datei-enthaelt: PFAD TEXT     the file holds TEXT (Windows-1252 files are
#                                   read as they are: write TEXT in plain ASCII)
#   # ini: PFAD [ABSCHNITT] SCHLUESSEL=WERT   the settings file has that value
# PFAD is relative to the work folder: projekt/KOLM/Tabellen.ini,
# config/Kolm.ini. A path with blanks is written with "\ " for each blank.
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
files_present=()
files_absent=()
file_contains=()
ini_values=()
while IFS= read -r line || [[ -n $line ]]; do
  line=${line%$'\r'}
  [[ -z ${line//[[:space:]]/} ]] && continue
  [[ $line == \#* ]] || break
  if [[ $line =~ ^#[[:space:]]*erwartet:[[:space:]]*([0-9]+)[[:space:]]*$ ]]; then
    expected=${BASH_REMATCH[1]}
  elif [[ $line =~ ^#[[:space:]]*ausgabe:[[:space:]]?(.*)$ ]]; then
    outputs+=("${BASH_REMATCH[1]}")
  elif [[ $line =~ ^#[[:space:]]*datei:[[:space:]]*(.*)$ ]]; then
    files_present+=("${BASH_REMATCH[1]}")
  elif [[ $line =~ ^#[[:space:]]*keine-datei:[[:space:]]*(.*)$ ]]; then
    files_absent+=("${BASH_REMATCH[1]}")
  elif [[ $line =~ ^#[[:space:]]*datei-enthaelt:[[:space:]]*(.*)$ ]]; then
    file_contains+=("${BASH_REMATCH[1]}")
  elif [[ $line =~ ^#[[:space:]]*ini:[[:space:]]*(.*)$ ]]; then
    ini_values+=("${BASH_REMATCH[1]}")
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
# "a\ b rest": the first word with "\ " standing for blanks, and the rest.
split_path() {
  local text=$1 path=""
  while [[ -n $text ]]; do
    if [[ ${text:0:2} == "\\ " ]]; then path+=" "; text=${text:2}
    elif [[ ${text:0:1} == " " ]]; then text=${text:1}; break
    else path+=${text:0:1}; text=${text:1}; fi
  done
  printf '%s\n%s' "$path" "$text"
}
for entry in "${files_present[@]}"; do
  path=$(split_path "$entry" | head -n 1)
  [[ -e "$work/$path" ]] || { echo "Datei fehlt: $path"; failed=1; }
done
for entry in "${files_absent[@]}"; do
  path=$(split_path "$entry" | head -n 1)
  [[ ! -e "$work/$path" ]] || { echo "Datei sollte fehlen: $path"; failed=1; }
done
for entry in "${file_contains[@]}"; do
  path=$(split_path "$entry" | head -n 1)
  text=$(split_path "$entry" | tail -n +2)
  if ! grep -qaF -- "$text" "$work/$path" 2>/dev/null; then
    echo "Datei $path enthält nicht: $text"; failed=1
  fi
done
for entry in "${ini_values[@]}"; do
  path=$(split_path "$entry" | head -n 1)
  rest=$(split_path "$entry" | tail -n +2)
  section=${rest%%]*}; section=${section#[}
  pair=${rest#*] }
  key=${pair%%=*}; value=${pair#*=}
  found=$(awk -v s="$section" -v k="$key" 'BEGIN{IGNORECASE=1}
    { sub(/\r$/, "") }
    /^\[/ { insec = (tolower($0) == tolower("[" s "]")); next }
    insec { i = index($0, "="); if (i > 0 && tolower(substr($0, 1, i-1)) == tolower(k)) { print substr($0, i+1); exit } }' "$work/$path" 2>/dev/null)
  if [[ $found != "$value" ]]; then
    echo "$path [$section] $key: erwartet \"$value\", gefunden \"$found\""; failed=1
  fi
done

if grep -qE 'ERROR: (AddressSanitizer|LeakSanitizer)|SUMMARY: UndefinedBehaviorSanitizer|runtime error: ' "$work/out.txt"; then
  echo "Sanitizer-Bericht in der Ausgabe"
  failed=1
fi
exit $failed
