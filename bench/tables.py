"""Runs the probes and benchmarks of a build folder and prints their figures as tables; called by bench/run."""

import json
import os
import statistics
import subprocess
import sys

ROUNDS = 15
KEYS = 1000
REST_SECONDS = 30
REST_TURNS = 3
PROBE_SECONDS = 900

build_folder = sys.argv[1]
binaries = os.path.join(build_folder, "bench")
game = os.path.join(build_folder, "tetrad-game")
floor = os.path.join(binaries, "floor")
FIELD_PROGRAMS = {"Tetrad Game": game, "bare Qt window with a field": floor}
PEERS = {"sgt-keen": "sgt-keen", "kmines": "kmines", "gbrainy": "gbrainy"}


def output_of(*command, environment=None):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True, stdin=subprocess.DEVNULL,
                          timeout=PROBE_SECONDS, env={**os.environ, **(environment or {})}).stdout


def probe(name, *arguments):
    return output_of(os.path.join(binaries, name), *arguments)


def benchmark(name, repetitions):
    """The benchmarks' CPU times by name, each the median of some runs that took turns."""
    text = output_of(os.path.join(binaries, name), "--benchmark_format=json", f"--benchmark_repetitions={repetitions}",
                     "--benchmark_enable_random_interleaving=true", "--benchmark_min_time=0.02",
                     environment={"QT_QPA_PLATFORM": "offscreen"})
    return {result["run_name"]: result for result in json.loads(text)["benchmarks"]
            if repetitions == 1 or result.get("aggregate_name") == "median"}


def heading(title, note):
    print(f"\n## {title}\n\n{note}\n", flush=True)


def table(columns, rows):
    """A Markdown table that reads well as text too; the first column is left aligned."""
    cells = [columns] + [[str(cell) for cell in row] for row in rows]
    widths = [max(len(row[i]) for row in cells) for i in range(len(columns))]
    lines = [[row[0].ljust(widths[0])] + [cell.rjust(width) for cell, width in zip(row[1:], widths[1:])]
             for row in cells]
    lines.insert(1, ["-" * widths[0]] + ["-" * (width - 1) + ":" for width in widths[1:]])
    print("\n".join("| " + " | ".join(line) + " |" for line in lines), flush=True)


def median_and_spread(values):
    low, _, high = statistics.quantiles(values, n=4)
    return f"{statistics.median(values):.1f} ({low:.1f}–{high:.1f})"


def paired(ours, theirs):
    """The median of the ratios of the same round: what disturbs the machine disturbs both."""
    return f"{statistics.median(our / their for our, their in zip(ours, theirs)):.2f}"


def times(value, reference):
    return f"{value / reference:.2f}"


def start():
    heading("Start-up", f"Median (quartiles) of {ROUNDS} rounds in which the programs took turns, after one that does "
            "not count. Window: from exec until a painted window has the keyboard. Key: until a key pressed at that "
            "moment is painted in the field. Ratios are medians of the rounds' ratios.")
    programs = {name: ["--field", path] for name, path in FIELD_PROGRAMS.items()}
    programs |= {name: [command] for name, command in PEERS.items()}
    results = {name: [] for name in programs}
    for _ in range(ROUNDS + 1):
        for name, arguments in programs.items():
            results[name].append([float(figure) for figure in probe("start_probe", *arguments).split()])
    columns = {name: list(zip(*rounds[1:])) for name, rounds in results.items()}
    ours = columns["Tetrad Game"]
    rows = []
    for name, (window, key, proportional, dirty) in columns.items():
        has_field = any(key)
        rows.append([
            name, median_and_spread(window), paired(ours[0], window),
            median_and_spread(key) if has_field else "",
            paired(ours[1], key) if has_field else "",
            f"{statistics.median(proportional) / 1024:.1f}", f"{statistics.median(dirty) / 1024:.1f}"])
    table(["program", "window, ms", "ours : this", "key, ms", "ours : this", "PSS, MB", "private dirty, MB"], rows)


def console():
    heading("Console", "A window of 580 x 250 pixels, the same font. CPU time: µs per line printed; µs per "
            "repaint of the visible part; bytes of heap per line.")
    results = benchmark("console_bench", 1)
    kinds = ["console", "QPlainTextEdit", "QTextEdit", "QGraphicsScene"]
    rows = []

    def row(title, pattern, figure):
        figures = [figure(results[pattern.format(kind)]) for kind in kinds]
        rows.append([title] + [f"{value:.2f}" for value in figures] + [times(figures[0], figures[1])])

    for lines in (1000, 10000, 100000):
        suffix = "/iterations:1" if lines == 100000 else ""
        row(f"print {lines:,} lines", f"print/{{}}/{lines}{suffix}", lambda result, n=lines: result["cpu_time"] / n)
    row("print, repaint after each", "printAndRepaint/{}/1000/iterations:1", lambda result: result["cpu_time"] / 1000)
    for lines in (1000, 100000):
        for place, percent in (("middle", 50), ("end", 100)):
            row(f"repaint at the {place} of {lines:,}", f"repaint/{{}}/{lines}/{percent}/iterations:50",
                lambda result: result["cpu_time"])
    row("memory", "memory/{}/10000/iterations:1", lambda result: result["bytes"])
    boards = [results[f"board/{kind}/iterations:50"]["cpu_time"] for kind in kinds[:2]]
    rows.append(["repaint 80 x 25 single characters", *(f"{time:.2f}" for time in boards), "", "", times(*boards)])
    table(["", *kinds, "ours : QPlainTextEdit"], rows)

    heading("Erased lines", "µs of CPU time to erase the error line, print another and paint, after so many of them.")
    erased = {count: results[f"erase/console/{count}/iterations:500"]["cpu_time"]
              for count in (10, 100, 1000, 10000, 100000)}
    table(["", "time", "this : first"],
          [[f"{count:,}", f"{time:.2f}", times(time, erased[10])] for count, time in erased.items()])


def rules():
    heading("Evaluator and judging", "ns of CPU time per expression, medians of five over four expressions; judging is a whole "
            "answer: both checks and the evaluation. Malformed: ours and fparser return what is wrong and where, muParser "
            "throws.")
    results = benchmark("rules_bench", 5)
    rows = []
    for index, title in ((0, "well-formed"), (1, "malformed")):
        ours, fparser, muparser = (results[f"{kind}/{index}"]["cpu_time"] / 4
                                   for kind in ("evaluator", "fparser", "muparser"))
        judging = results[f"judging/{index}"]["cpu_time"]
        rows.append([title, f"{ours:.0f}", f"{fparser:.0f}", f"{muparser:.0f}", times(ours, fparser),
                     times(ours, muparser), f"{judging:.0f}"])
    table(["", "ours", "fparser", "muParser", "ours : fparser", "ours : muParser", "judging"], rows)

    heading("Growth", "µs of CPU time; medians of five.")
    first = results["draw/0/iterations:1000"]["cpu_time"]
    rows = [[f"draw {drawn + 1} of a cycle", f"{time / 1000:.2f}", times(time, first)]
            for drawn in (0, 48, 95) for time in [results[f"draw/{drawn}/iterations:1000"]["cpu_time"]]]
    fresh = results["cycle/0/iterations:100"]["cpu_time"]
    rows += [[f"{puzzleCount} puzzles from number {drawn + 1:,} on", f"{time / 1000:.2f}", times(time, fresh)]
             for puzzleCount in [96] for drawn in (0, 9984)
             for time in [results[f"cycle/{drawn}/iterations:100"]["cpu_time"]]]
    table(["", "time", "this : first"], rows)


def percentile(values, percent):
    return sorted(values)[min(len(values) - 1, len(values) * percent // 100)]


def keys():
    heading("Typing", f"ms from a key press in the X server to the changed picture, {KEYS:,} digits; from Return to "
            f"the complete next prompt, {KEYS // 4} answers. One frame at 60 Hz is 16.7 ms. The bare window only "
            "empties its field.")
    figures = {}
    rows = []
    for turn in range(5):
        for name, path in FIELD_PROGRAMS.items():
            for line in probe("key_probe", str(KEYS // 5), path).splitlines():
                kind, value = line.split()
                figures.setdefault((kind, name), []).append(float(value))
    for (kind, name), values in sorted(figures.items()):
        ours = figures[kind, "Tetrad Game"]
        rows.append([f"{kind}: {name}"] + [f"{percentile(values, percent):.2f}" for percent in (50, 90, 99)] +
                    [times(percentile(ours, percent), percentile(values, percent)) for percent in (50, 99)])
    table(["", "50th", "90th", "99th", "ours : this, 50th", "99th"], rows)


def rest():
    heading("At rest", f"{REST_SECONDS} s after start-up with the keyboard and nothing typed: CPU time and wake-ups "
            f"of all threads, medians of {REST_TURNS} times in turn. A caret that blinks wakes up about once in half a "
            "second.")
    programs = {**FIELD_PROGRAMS, **PEERS}
    results = {name: [] for name in programs}
    for _ in range(REST_TURNS):
        for name, command in programs.items():
            results[name].append([float(figure) for figure in probe("rest_probe", str(REST_SECONDS), command).split()])
    rows = []
    for name, figures in results.items():
        cpu, wake_ups = (statistics.median(column) for column in zip(*figures))
        rows.append([name, f"{cpu:.2f}", f"{wake_ups:.0f}"])
    table(["program", "CPU, ms", "wake-ups"], rows)


TABLES = {"start": start, "console": console, "rules": rules, "keys": keys, "rest": rest}


def main():
    wanted = sys.argv[2:] or list(TABLES)
    unknown = [name for name in wanted if name not in TABLES]
    if unknown:
        sys.exit(f"unknown table {unknown[0]}; there are {', '.join(TABLES)}")
    print(f"{os.cpu_count()} CPUs, load {os.getloadavg()[0]:.1f} at the start")
    for name in wanted:
        TABLES[name]()


main()
