#!/usr/bin/env bash
# Builds everything and runs every test, without a display: once as built every day (GCC), once under the sanitizers (clang).
# test.sh dev | asan runs only the one; further arguments go to CTest.
set -euo pipefail
cd "$(dirname "$0")"
. Tools/Setup.sh
install_missing_packages
Presets="asan dev"
case "${1:-}" in dev|asan) Presets=$1; shift;; esac
export SDL_VIDEODRIVER=dummy
for Preset in $Presets; do
	if [ ! -f "Build/$Preset/build.ninja" ]; then
		cmake --preset "$Preset" > /dev/null
	fi
	cmake --build --preset "$Preset" -- --quiet
	ctest --preset "$Preset" --parallel "$(nproc)" "$@"
done
