#!/usr/bin/env bash
# Builds the viewer (Release) and starts it; arguments go to the viewer (--help lists them).
# Without a display it writes the screens as pictures instead.
set -euo pipefail
Folder=$PWD
cd "$(dirname "$0")"
. Tools/Setup.sh
install_missing_packages
if [ ! -f Build/release/build.ninja ]; then
	cmake --preset release > /dev/null
fi
cmake --build --preset release --target HalvexViewer -- --quiet
Viewer=$PWD/Build/release/Viewer/HalvexViewer
cd "$Folder"
exec "$Viewer" "$@"
