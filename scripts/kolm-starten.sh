#!/usr/bin/env bash
# Baut Kolm (Release) und startet es mit dem Demo-Projekt. Ohne Bildschirm
# läuft Kolm unter einem virtuellen X-Server, schreibt ein Bild seines
# Hauptfensters und endet.
set -euo pipefail

wurzel=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$wurzel"

if ! bash scripts/abhaengigkeiten.sh; then
  echo "Fehler: Die benötigten Pakete konnten nicht installiert werden." >&2
  exit 1
fi

# KOLM_BUILD_DIR wählt ein anderes Build-Verzeichnis (Vorgabe: build/).
build=$(realpath -m "${KOLM_BUILD_DIR:-$wurzel/build}")
if ! cmake -S "$wurzel" -B "$build" -DCMAKE_BUILD_TYPE=Release -DKOLM_TESTS=OFF -DKOLM_BENCH=OFF; then
  echo "Fehler: CMake konnte den Build in $build nicht einrichten." >&2
  exit 1
fi
if ! cmake --build "$build" -j"$(nproc)"; then
  echo "Fehler: Kolm konnte nicht gebaut werden (siehe die Meldungen oben)." >&2
  exit 1
fi

programm="$build/app/kolm"
if [[ ! -x $programm ]]; then
  echo "Fehler: Das Programm $programm fehlt nach dem Bauen." >&2
  exit 1
fi

# The demo project of the program data, whatever project was open last.
argumente=(--demo)

if [[ -n ${DISPLAY:-} || -n ${WAYLAND_DISPLAY:-} ]]; then
  echo "Kolm startet: $programm ${argumente[*]}"
  exec "$programm" "${argumente[@]}"
fi

bild="$build/kolm-hauptfenster.png"
rm -f "$bild"
echo "Kein Bildschirm gefunden (DISPLAY und WAYLAND_DISPLAY sind leer)."
echo "Kolm läuft unter Xvfb und schreibt ein Bild seines Hauptfensters."
set +e
timeout -k 10 120 xvfb-run -a -s "-screen 0 1280x1024x24" \
  "$programm" --bildschirmfoto "$bild" --beenden-nach-bild "${argumente[@]}"
status=$?
set -e

if [[ -s $bild ]]; then
  echo "Bildschirmfoto des Hauptfensters: $bild"
  exit "$status"
fi
if [[ $status -eq 124 || $status -eq 137 ]]; then
  echo "Fehler: Kolm hat sich nach 120 Sekunden nicht beendet und kein Bildschirmfoto geschrieben." >&2
else
  echo "Fehler: Kolm hat kein Bildschirmfoto geschrieben (Exit-Status $status)." >&2
fi
exit 1
