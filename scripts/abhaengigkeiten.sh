#!/usr/bin/env bash
# Installiert die Debian-12-Pakete, die Kolm zum Bauen, Testen und Starten
# braucht, sofern eines fehlt. Ein fertig eingerichteter Rechner ruft apt
# nicht auf.
set -euo pipefail

pakete=(
  g++ cmake make pkg-config
  qt6-base-dev qt6-serialport-dev qt6-qpa-plugins qt6-translations-l10n libgl-dev
  libsqlite3-dev
  libgtest-dev libgmock-dev libbenchmark-dev
  xvfb xauth socat
  fontconfig fonts-dejavu-core
)
# Auf einem reinen Wayland-Desktop braucht Qt sein Wayland-Plugin.
if [[ -n ${WAYLAND_DISPLAY:-} ]]; then
  pakete+=(qt6-wayland)
fi

fehlend=()
for paket in "${pakete[@]}"; do
  status=$(dpkg-query -W -f='${db:Status-Status}' "$paket" 2>/dev/null || true)
  if [[ $status != installed ]]; then
    fehlend+=("$paket")
  fi
done

if [[ ${#fehlend[@]} -eq 0 ]]; then
  exit 0
fi

echo "Fehlende Pakete werden installiert: ${fehlend[*]}"
als_root=()
if [[ $(id -u) -ne 0 ]]; then
  if command -v sudo >/dev/null 2>&1; then
    als_root=(sudo)
  else
    echo "Fehler: Pakete fehlen (${fehlend[*]}), und ohne Root-Rechte oder sudo" \
         "kann dieses Skript sie nicht installieren." >&2
    exit 1
  fi
fi

export DEBIAN_FRONTEND=noninteractive
if ! "${als_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq; then
  echo "Fehler: apt-get update ist fehlgeschlagen." >&2
  exit 1
fi
if ! "${als_root[@]}" env DEBIAN_FRONTEND=noninteractive \
     apt-get install -y -qq -o Dpkg::Use-Pty=0 "${fehlend[@]}" >/dev/null; then
  echo "Fehler: Die Pakete ${fehlend[*]} konnten nicht installiert werden." >&2
  exit 1
fi
echo "Pakete installiert."
