#!/usr/bin/env bash
# Baut die Benchmarks (Release) und führt sie alle aus. Weitere Argumente
# gehen an jedes Benchmark-Programm, z. B. --benchmark_filter=Grid.
set -euo pipefail

wurzel=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$wurzel"

if ! bash scripts/abhaengigkeiten.sh; then
  echo "Fehler: Die benötigten Pakete konnten nicht installiert werden." >&2
  exit 1
fi

# KOLM_BUILD_DIR wählt ein anderes Build-Verzeichnis (Vorgabe: build-bench/).
build=$(realpath -m "${KOLM_BUILD_DIR:-$wurzel/build-bench}")
if ! cmake -S "$wurzel" -B "$build" -DCMAKE_BUILD_TYPE=Release -DKOLM_TESTS=OFF -DKOLM_BENCH=ON; then
  echo "Fehler: CMake konnte den Benchmark-Build in $build nicht einrichten." >&2
  exit 1
fi

mapfile -t quellen < <(find "$wurzel/bench" -maxdepth 1 -name '*.cpp' -printf '%f\n' | sort)
if [[ ${#quellen[@]} -eq 0 ]]; then
  echo "Keine Benchmarks unter bench/."
  exit 0
fi
ziele=("${quellen[@]%.cpp}")
if ! cmake --build "$build" -j"$(nproc)" --target "${ziele[@]}"; then
  echo "Fehler: Die Benchmarks konnten nicht gebaut werden." >&2
  exit 1
fi

status=0
for ziel in "${ziele[@]}"; do
  echo "== $ziel"
  "$build/bench/$ziel" "$@" || status=1
done
exit "$status"
