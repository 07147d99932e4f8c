#!/usr/bin/env python3
"""bench_table.py RESULT.json ...: each goal beside what Google Benchmark measured. Status 1 if a goal is not met.

A measurement belongs to a goal by its name: goal/ROW/ours or goal/ROW/baseline, with /N behind it where the size N
matters. A row is compared at its largest size; its growth is the exponent of the time over all sizes. Rows of sizes
carry them in a counter "bytes"; a row without a bound is printed and not judged. Of repetitions the least counts: what
else runs on the machine only adds.
"""

import json
import math
import statistics
import sys
from collections import defaultdict

# row, what, how it is judged, bound
GOALS = [
    ("list_append", "append 10^6 to a list, against a vector", "ratio", 2.0),
    ("list_read", "read 10^6 by iterator, against a vector", "ratio", 1.5),
    ("list_copy_write", "copy 10^5 strings and write one, against a vector", "speedup", 50.0),
    ("edit_100_steps", "edit a condition over 100 steps, against copying its states", "ratio", 3.0),
    ("edit_steps", "the same edit, growth in steps", "growth", 1.1),
    ("insert_step_10000", "insert a step under 10,000 conditions, against copying them", "ratio", 4.0),
    ("insert_step_objects", "the same, growth in objects", "growth", 1.1),
    ("insert_step_steps", "the same, growth in steps", "growth", 1.1),
    ("mixed_insert", "insert a step under 10,000 loads and conditions, against copying them", "ratio", 4.0),
    ("mixed_remove", "remove a step under them", "ratio", 4.0),
    ("mixed_replace", "replace a step under them", "ratio", 4.0),
    ("mixed_suppress", "suppress a step under them", "ratio", 4.0),
    ("repository_copy", "copy a repository, growth in objects", "growth", 0.1),
    ("save_sqlite", "save the model, against SQLite", "speedup", 10.0),
    ("load_sqlite", "load the model, against SQLite", "speedup", 10.0),
    ("save_rows", "save the rows alone, against SQLite", "speedup", 10.0),
    ("load_rows", "load the rows alone, against SQLite", "speedup", 10.0),
    ("save_archive", "save the model, against a binary archive", "ratio", 2.0),
    ("load_archive", "load the model, against a binary archive", "ratio", 2.0),
    ("file_size", "size of the file, against a binary archive", "size", 1.5),
    ("save_objects", "write the model's bytes, growth in objects", "growth", 1.1),
    ("load_objects", "read them, growth in objects", "growth", 1.1),
    ("open_old", "open a model of revision 203, against one of today", "ratio", 3.0),
    ("sequence", "sequence questions on up to 1,000 steps, growth", "growth", 1.1),
    # Steps are found by their names, which costs a logarithm.
    ("sequence_edit", "a step suppressed, resumed and moved among them, growth", "growth", 1.2),
    ("memory_quad", "memory of a state quad, against its plain values", "memory", None),
    ("memory_row", "memory of a stored row, against its cells", "memory", None),
]

NANOSECONDS = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}


def read(paths):
    """{row: {side: {size: (least nanoseconds, bytes or None)}}}"""
    samples = defaultdict(list)
    for path in paths:
        with open(path, encoding="utf-8") as file:
            benchmarks = json.load(file)["benchmarks"]
        for entry in benchmarks:
            head, *parts = entry["name"].split("/")
            if head != "goal" or entry.get("run_type") == "aggregate":
                continue
            if entry.get("error_occurred"):
                sys.exit(f"{path}: {entry['name']}: {entry.get('error_message', 'failed')}")
            row, side = parts[:2]
            size = next((int(part) for part in parts[2:] if part.isdigit()), 0)
            samples[row, side, size].append((entry["real_time"] * NANOSECONDS[entry["time_unit"]], entry.get("bytes")))

    rows = defaultdict(lambda: defaultdict(dict))
    for (row, side, size), values in samples.items():
        rows[row][side][size] = (min(time for time, _ in values), values[0][1])
    return rows


def growth(times):
    """Exponent of the time over the size, by least squares of the logarithms; None without two sizes."""
    if len(times) < 2:
        return None
    return statistics.linear_regression([math.log(n) for n in times], [math.log(t) for t, _ in times.values()]).slope


def judge(row, how):
    """(ours, baseline, measure) with None for what is missing."""
    ours, baseline = row.get("ours", {}), row.get("baseline", {})
    if how == "growth":
        return (ours[max(ours)][0] if ours else None, None, growth(ours))
    which = 1 if how in ("size", "memory") else 0
    shared = ours.keys() & baseline.keys()
    if not shared:
        return None, None, None
    mine, other = ours[max(shared)][which], baseline[max(shared)][which]
    if not mine or not other:
        return mine, other, None
    return mine, other, other / mine if how == "speedup" else mine / other


def amount(value, how):
    if value is None:
        return "-"
    if how == "size":
        return f"{value / 1e6:.2f} MB"
    if how == "memory":
        return f"{value:.0f} bytes"
    unit, scale = next((u, s) for u, s in reversed(NANOSECONDS.items()) if value >= s or u == "ns")
    return f"{value / scale:.3g} {unit}"


def main(paths):
    rows = read(paths)
    for name in rows.keys() - {name for name, *_ in GOALS}:
        sys.exit(f"goal/{name} is measured, but it has no goal")

    table = [("what", "ours", "baseline", "ratio", "goal", "met")]
    for name, what, how, bound in GOALS:
        ours, baseline, measure = judge(rows.get(name, {}), how)
        if measure is None:
            met = "not measured"
        elif bound is None:
            met = "-"
        else:
            met = "yes" if (measure >= bound if how == "speedup" else measure <= bound) else "no"
        prefix = "n^" if how == "growth" else ""
        goal = "-" if bound is None else f"{'>=' if how == 'speedup' else '<='} {prefix}{bound:g}"
        table.append((what, amount(ours, how), amount(baseline, how),
                      "-" if measure is None else f"{prefix}{measure:.2f}", goal, met))

    widths = [max(len(line[column]) for line in table) for column in range(len(table[0]))]
    for line in table:
        print("  ".join(text.ljust(width) for text, width in zip(line, widths)).rstrip())
    for what in ("save", "load"):
        archive, sqlite = (rows[f"{what}_{other}"]["baseline"].get(0) for other in ("archive", "sqlite"))
        if archive and sqlite:
            print(f"To {what}, the archive of the same objects, which checks nothing, is {sqlite[0] / archive[0]:.1f} times "
                  "as fast as SQLite, which gets ready rows and builds no objects.")
    return 0 if all(line[-1] in ("yes", "-") for line in table[1:]) else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
