# SPDX-License-Identifier: MIT

"""Makes of a benchmark run's results.json a table, results.md, and a plot, results.svg, beside it."""

import json
import math
import pathlib
import sys


def time_of(run):
    time = run["cpu_time"] * {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}[run["time_unit"]]
    for unit, size in (("s", 1e9), ("ms", 1e6), ("µs", 1e3)):
        if time >= size:
            return f"{time / size:.3g} {unit}"
    return f"{time:.3g} ns"


def ns_per_pair(run):
    return run["time/pair"] * 1e9


def significant(value):
    return f"{value:,.0f}" if value >= 100 else f"{value:.3g}"


def table(results):
    lines = ["| Benchmark | Time | ns per pair |", "|---|--:|--:|"]
    for run in results["benchmarks"]:
        pair = significant(ns_per_pair(run)) if "time/pair" in run else ""
        lines.append(f"| `{run['name']}` | {time_of(run)} | {pair} |")
    return "\n".join(lines) + "\n"


def points(results, prefix):
    for run in results["benchmarks"]:
        numbers = run["name"].removeprefix(prefix + "/").split("/")
        if len(numbers) == 2 and numbers[0].isdigit():
            yield int(numbers[0]), ns_per_pair(run)


def plot(results):
    """Nanoseconds per pair against the application columns, both axes logarithmic."""
    width, height, left, bottom = 640, 400, 70, 50
    series = [("reference", "#b03030", list(points(results, "matchColumns/reference"))),
              ("matchColumns", "#3050b0", list(points(results, "matchColumns")))]
    xs = [x for _, _, line in series for x, _ in line]
    decades = range(-1, 5)

    def x_at(x):
        low, high = math.log(min(xs)), math.log(max(xs))
        return left + (math.log(x) - low) / (high - low) * (width - left - 30)

    def y_at(y):
        share = (math.log10(y) - decades[0]) / (decades[-1] - decades[0])
        return height - bottom - share * (height - bottom - 30)

    out = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width} {height}"'
           ' font-family="sans-serif" font-size="13">',
           f'<rect width="{width}" height="{height}" fill="white"/>']
    for decade in decades:
        y = y_at(10.0 ** decade)
        out.append(f'<path d="M{left} {y:.1f}H{width - 30}" stroke="#ddd"/>'
                   f'<text x="{left - 8}" y="{y + 4:.1f}" text-anchor="end">{10.0 ** decade:g}'
                   '</text>')
    for x in sorted(set(xs)):
        out.append(f'<text x="{x_at(x):.1f}" y="{height - bottom + 18}" text-anchor="middle">{x}'
                   '</text>')
    for name, colour, line in series:
        path = "L".join(f"{x_at(x):.1f} {y_at(y):.1f}" for x, y in line)
        out.append(f'<path d="M{path}" fill="none" stroke="{colour}" stroke-width="2"/>')
        out += [f'<circle cx="{x_at(x):.1f}" cy="{y_at(y):.1f}" r="3" fill="{colour}"/>'
                for x, y in line]
        x, y = line[-1]
        out.append(f'<text x="{x_at(x):.1f}" y="{y_at(y) - 10:.1f}" text-anchor="end"'
                   f' fill="{colour}">{name}</text>')
    out.append(f'<text x="{(left + width) / 2}" y="{height - 10}" text-anchor="middle">'
               'application columns, with five file columns for each</text>')
    out.append(f'<text x="{left}" y="18">ns per pair of columns</text></svg>')
    return "\n".join(out) + "\n"


def main():
    path = pathlib.Path(sys.argv[1])
    results = json.loads(path.read_text())
    path.with_suffix(".md").write_text(table(results))
    path.with_suffix(".svg").write_text(plot(results))


main()
