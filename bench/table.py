#!/usr/bin/env python3
"""Makes a table of ratios out of what the benchmarks wrote.

    bench/table.py FOLDER --seed N --games N [--write DOCUMENT]

FOLDER holds the JSON files of Google Benchmark. Each figure is the median of its repetitions, its
ratio that of the medians; the least of the repetitions stands beside it. With --write the table
takes the place of the one between the two marks in DOCUMENT.
"""

import argparse
import collections
import datetime
import json
import pathlib
import statistics
import sys

BEGIN, END = "<!-- figures -->", "<!-- end of figures -->"

# Words, what is measured, its floor, the greatest ratio to that, the greatest time in milliseconds.
Row = collections.namedtuple("Row", "words figure floor ratio most", defaults=(None, None, None))
ROWS = [
    Row("Cache files read into catalogue and icons", "cache_read/is", "cache_read/floor", 2.5),
    Row("The same until the list can be painted", "cache_list_ready/is", "cache_read/floor", 2.5),
    Row("Full scan", "scan/is", "scan/floor", 1.5),
    Row("Both cache files saved where none stood", "save_new/is", "save_new/floor", 2),
    Row("Saved again, nothing has changed", "save_unchanged/is", "save_new/floor", 2),
    Row("Saved again, one icon has changed", "save_one_icon/is", "save_one_icon/floor", 2),
    Row("Start to the first list, 500 games", "start_500/is", "start_500/floor", 1.5),
    Row("Start to the first list, 32,767 games", "start_32767/is", "start_32767/floor"),
    Row("First start, 32,767 games, no cache", "first_start_32767/is"),
    Row("List rebuilt, no filter", "rebuild_all/is", "titles_pass/floor", 10, 16),
    Row("List rebuilt, a search term", "rebuild_search/is", "titles_pass/floor", 10, 16),
    Row("List rebuilt, one category", "rebuild_one_category/is", "titles_pass/floor", 10, 16),
    Row("List rebuilt, all ten categories", "rebuild_ten_categories/is", "titles_pass/floor", 10, 16),
    Row("List rebuilt, sorted by maker", "rebuild_by_column/is", "titles_pass/floor"),
    Row("List built for the first time", "rebuild_first/is", "titles_pass/floor"),
    Row("Nodes of 2,000 values, one game has changed", "value_nodes/is", "value_nodes/floor", 3),
    Row("Values of all games counted, at start and scan", "value_count/is", "value_nodes/floor"),
    Row("First picture after a rebuild, large icons", "paint_large/is", most=50),
    Row("First picture after a rebuild, small icons", "paint_small/is", most=50),
    Row("First picture after a rebuild, list", "paint_list/is", most=50),
    Row("First picture after a rebuild, details", "paint_details/is", most=50),
    Row("Jump to a row, small icons", "jump_small/is"),
    Row("Jump to a row, details", "jump_details/is"),
    Row("One selection", "selection/is", "selection/floor"),
    Row("A text for DOSBox composed", "compose/is", "compose/floor", 1),
    Row("From Enter until the emulator's process runs", "enter/is", "enter/floor", most=50),
    Row("Another group of options shown", "option_group/is", most=16),
    Row("Held arrow key, details behind the last press", "held_key/is", most=60),
]

# Words, the figure, its counter, unit, the most.
Counter = collections.namedtuple("Counter", "words figure counter unit most", defaults=(None,))
COUNTERS = [
    Counter("Most memory: scan, list, saving", "first_start_32767/is", "peak_MiB", "MiB", 300),
    Counter("Most memory: cache, list, saving", "whole_run_32767/is", "peak_MiB", "MiB", 300),
    Counter("Held arrow key, selection behind a press", "held_key/is", "follow_ms", "ms"),
    Counter("Window events unserved, during the scan", "first_start_32767/is", "gap_in_job_ms", "ms", 50),
    Counter("Window events unserved, whole first start", "first_start_32767/is", "gap_ms", "ms"),
    Counter("Window events unserved, start by the cache", "start_32767/is", "gap_ms", "ms"),
]


def read_figures(folder):
    """Each figure's name -> its repetitions, and what the files say of the machine."""
    runs, context = collections.defaultdict(list), {}
    for file in sorted(folder.glob("*.json")):
        text = file.read_text()
        if not text:  # no figure's name has matched the filter
            continue
        report = json.loads(text)
        context = report["context"]
        for run in report["benchmarks"]:
            if run.get("run_type") != "iteration":
                continue
            if run.get("error_occurred"):
                sys.exit(f"{run['name']}: {run.get('error_message')}")
            runs["/".join(run["name"].split("/")[:2])].append(run)
    return runs, context


def median_of(runs, name, field="real_time"):
    return statistics.median(run[field] for run in runs[name])


def core_name():
    for line in pathlib.Path("/proc/cpuinfo").read_text().splitlines():
        if line.startswith("model name"):
            return line.split(":", 1)[1].strip()
    return "unknown"


def shown(ms):
    return f"{ms:.3f}" if ms < 1 else f"{ms:.1f}"


def bound_of(row):
    ratio = f"{row.ratio} x" if row.ratio else ""
    most = f"{row.most} ms" if row.most else ""
    return ", ".join(filter(None, (ratio, most))) or "-"


def time_line(row, runs):
    figure = median_of(runs, row.figure)
    least = min(run["real_time"] for run in runs[row.figure])
    floor = median_of(runs, row.floor) if row.floor else None
    ratio = figure / floor if floor else None
    held = (not row.ratio or ratio <= row.ratio) and (not row.most or figure <= row.most)
    verdict = "" if bound_of(row) == "-" else "yes" if held else "NO"
    return [
        row.words,
        shown(figure),
        shown(least),
        shown(floor) if floor else "",
        f"{ratio:.2f}" if ratio else "",
        bound_of(row),
        verdict,
    ]


def counter_line(row, runs):
    """The median, and the greatest of the repetitions: a bound on it has to hold each time."""
    most = max(run[row.counter] for run in runs[row.figure])
    verdict = "" if row.most is None else "yes" if most <= row.most else "NO"
    return [
        row.words,
        f"{median_of(runs, row.figure, row.counter):.1f} {row.unit}",
        f"{most:.1f} {row.unit}",
        f"{row.most} {row.unit}" if row.most else "-",
        verdict,
    ]


def table_of(head, lines):
    rows = [head, ["---"] * len(head)] + lines
    return "\n".join("| " + " | ".join(line) + " |" for line in rows)


def report_of(runs, context, options):
    load = ", ".join(f"{value:.1f}" for value in context.get("load_avg", []))
    text = (
        f"{core_name()}, {context['num_cpus']} cores, load {load}; {options.games:,} games,"
        f" seed {options.seed}; {datetime.date.today().isoformat()}.\n\n"
    )
    times = [time_line(row, runs) for row in ROWS if runs[row.figure] and (not row.floor or runs[row.floor])]
    counters = [counter_line(row, runs) for row in COUNTERS if runs[row.figure]]
    if times:
        head = ["", "median ms", "least ms", "floor ms", "ratio", "bound", "held"]
        text += table_of(head, times) + "\n"
    if counters:
        text += "\n" + table_of(["", "median", "greatest", "bound", "held"], counters) + "\n"
    return text


def write_into(document, text):
    before, rest = document.read_text().split(BEGIN)
    after = rest.split(END)[1]
    document.write_text(f"{before}{BEGIN}\n{text}{END}{after}")


def main():
    parser = argparse.ArgumentParser(description="table of ratios")
    parser.add_argument("folder", type=pathlib.Path)
    parser.add_argument("--seed", type=int, required=True)
    parser.add_argument("--games", type=int, required=True)
    parser.add_argument("--write", type=pathlib.Path)
    options = parser.parse_args()
    runs, context = read_figures(options.folder)
    text = report_of(runs, context, options)
    print(text, end="")
    if options.write:
        write_into(options.write, text)


if __name__ == "__main__":
    main()
