#!/usr/bin/env bash
# Baut Kolm mit AddressSanitizer und UndefinedBehaviorSanitizer (Debug) und
# führt alle Tests mit CTest aus: Unit-Tests, Makro-Szenarien, Schichtenprüfung.
# Der Exit-Status ist der von CTest.
set -euo pipefail

wurzel=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$wurzel"

if ! bash scripts/abhaengigkeiten.sh; then
  echo "Fehler: Die benötigten Pakete konnten nicht installiert werden." >&2
  exit 1
fi

# KOLM_BUILD_DIR wählt ein anderes Build-Verzeichnis (Vorgabe: build-test/).
build=$(realpath -m "${KOLM_BUILD_DIR:-$wurzel/build-test}")

# Gleiche Umgebung für die Testsuche beim Bauen und für den Testlauf.
export QT_QPA_PLATFORM=offscreen
export LC_ALL=C.UTF-8
: "${ASAN_OPTIONS:=detect_leaks=1:detect_stack_use_after_return=1:check_initialization_order=1:strict_init_order=1:halt_on_error=1}"
: "${UBSAN_OPTIONS:=print_stacktrace=1:halt_on_error=1:report_error_type=1}"
: "${LSAN_OPTIONS:=suppressions=$(cd "$(dirname "$0")" && pwd)/lsan.supp}"
export ASAN_OPTIONS UBSAN_OPTIONS LSAN_OPTIONS
# Einstellungen und Laufzeitdateien der Tests bleiben aus dem Benutzerprofil.
umgebung=$(mktemp -d)
trap 'rm -rf "$umgebung"' EXIT
chmod 700 "$umgebung"
export XDG_CONFIG_HOME="$umgebung/config" XDG_RUNTIME_DIR="$umgebung/laufzeit"
mkdir -p -m 700 "$XDG_CONFIG_HOME" "$XDG_RUNTIME_DIR"

beginn=$SECONDS
if ! cmake -S "$wurzel" -B "$build" -DKOLM_SANITIZE=ON -DCMAKE_BUILD_TYPE=Debug; then
  echo "Fehler: CMake konnte den Test-Build in $build nicht einrichten." >&2
  exit 1
fi
if ! cmake --build "$build" -j"$(nproc)"; then
  echo "Fehler: Der Test-Build ist fehlgeschlagen (siehe die Meldungen oben)." >&2
  exit 1
fi
echo "Bauen mit Sanitizern: $((SECONDS - beginn)) s"

cd "$build"
status=0
ctest --output-on-failure -j2 --timeout 300 --no-tests=error || status=$?
exit "$status"
