#!/usr/bin/env python3
"""Prints what benchmarks measured, beside the budgets.

Table.py BUDGETS RESULT... reads the budgets and Google Benchmark's JSON files of repeated runs. Figures are processor
time, or time on the wall where a budget says so; the best one of the repetitions counts, since others only had to wait.
"""

import json
import statistics
import sys

NANOSECONDS = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}


class Measured:
	"""All repetitions of one benchmark."""

	def __init__(self):
		self.runs = []

	def times(self, wall):
		key = "real_time" if wall else "cpu_time"
		return [run[key] * NANOSECONDS[run["time_unit"]] for run in self.runs]

	def counters(self, name):
		return [run[name] for run in self.runs]


def read_results(files):
	measured = {}
	failed = {}
	for file in files:
		with open(file, encoding="utf-8") as stream:
			text = stream.read()
		# A filter that matches nothing leaves an empty file.
		for run in json.loads(text)["benchmarks"] if text.strip() else []:
			if run.get("run_type") == "aggregate":
				continue
			if run.get("error_occurred"):
				failed[run["name"]] = run["error_message"]
			else:
				measured.setdefault(run["name"], Measured()).runs.append(run)
	return measured, failed


def show_time(nanoseconds):
	for unit in ("s", "ms", "us"):
		if nanoseconds >= NANOSECONDS[unit]:
			return f"{nanoseconds / NANOSECONDS[unit]:.3g} {unit}"
	return f"{nanoseconds:.3g} ns"


def show(value, unit):
	return show_time(value) if unit in NANOSECONDS else f"{value:.4g} {unit}"


def rate(budget, measured):
	"""The row of a budget whose benchmark was run."""
	bar, unit = budget["Bar"].split(" ", 1)
	bar = float(bar) * NANOSECONDS.get(unit, 1.0)
	result = measured[budget["Benchmark"]]
	if "Counter" in budget:
		values = result.counters(budget["Counter"])
	else:
		values = result.times(budget.get("Wall", False))
	if "Peer" in budget:
		peer = measured[budget["Peer"]].times(False)
		best, median = min(values) / min(peer), statistics.median(values) / statistics.median(peer)
	else:
		best, median = min(values), statistics.median(values)
	return [budget["Work"], show(best, unit), show(median, unit), budget["Bar"], "met" if best <= bar else "MISSED"]


def print_table(rows):
	widths = [max(len(row[column]) for row in rows) for column in range(len(rows[0]))]
	for row in rows:
		print("  ".join(cell.ljust(width) for cell, width in zip(row, widths)).rstrip())


def main(budgets_file, result_files):
	with open(budgets_file, encoding="utf-8") as stream:
		budgets = json.load(stream)
	measured, failed = read_results(result_files)
	rows = [["budget", "best", "median", "bar", ""]]
	for budget in budgets:
		name = budget["Benchmark"]
		if name in measured and budget.get("Peer", name) in measured:
			rows.append(rate(budget, measured))
		elif name in failed:
			rows.append([budget["Work"], "-", "-", budget["Bar"], failed[name]])
	if len(rows) > 1:
		print_table(rows)
		print()
	rows = [["measurement", "best", "median"]]
	budgeted = {budget["Benchmark"] for budget in budgets}
	for name, result in measured.items():
		if name not in budgeted:
			times = result.times("manual_time" in name)
			rows.append([name, show_time(min(times)), show_time(statistics.median(times))])
	print_table(rows)


if __name__ == "__main__":
	main(sys.argv[1], sys.argv[2:])
