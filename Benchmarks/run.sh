#!/usr/bin/env bash
# Builds the benchmarks (Release), runs them all, and prints a table of what they measured beside the budgets. Arguments
# are regular expressions: only the benchmarks that match one of them are run. Starts in a window need a display or Xvfb.
set -euo pipefail
cd "$(dirname "$0")/.."
. Tools/Setup.sh
install_missing_packages
if [ ! -f Build/release/build.ninja ]; then
	cmake --preset release > /dev/null
fi
Programs="CoreBenchmarks CoreUObjectBenchmarks SlateCoreBenchmarks SlateBenchmarks SlateRendererBenchmarks ViewerBenchmarks HalvexProBenchmarks HalvexProUIBenchmarks ProgramBenchmarks"
# shellcheck disable=SC2086
cmake --build --preset release --target $Programs -- --quiet

Filter=$(IFS='|'; echo "${*:-.}")
Results=$(mktemp -d)
trap 'rm -rf "$Results"' EXIT
for Program in $Programs; do
	echo "$Program ..." >&2
	Options="--benchmark_min_time=0.1 --benchmark_repetitions=7"
	Display=
	if [ "$Program" = ProgramBenchmarks ]; then
		Options="--benchmark_repetitions=20"
		if [ -z "${DISPLAY:-}" ] && command -v xvfb-run > /dev/null; then
			Display="xvfb-run -a"
		fi
	fi
	# shellcheck disable=SC2086
	$Display "Build/release/Benchmarks/$Program" $Options --benchmark_filter="$Filter" \
		--benchmark_out="$Results/$Program.json" --benchmark_out_format=json > /dev/null 2> "$Results/$Program.log" \
		|| { cat "$Results/$Program.log" >&2; exit 1; }
done
python3 Benchmarks/Table.py Benchmarks/Budgets.json "$Results"/*.json
