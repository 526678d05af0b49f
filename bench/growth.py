"""How cost grows with the number of selected rows: what hwknobs adds, beside what the compiler takes."""
import operator
import statistics
import subprocess
from typing import NamedTuple

import measure
import report
from device import PARTITION, ids, say, spread


class Point(NamedTuple):
    """One size of the selection; processor times in milliseconds, as differences of elapsed times drown in noise."""
    rows: int
    compiler: float
    ours: float


def added(own, floor):
    """What hwknobs adds to its floor: the median of the differences of each turn."""
    return statistics.median(map(operator.sub, own.processor, floor.processor))


def measure_set(device, runs, name, selection):
    found = measure.times(device, runs, {"compiler": f"./floor compile {name}.dts",
                                         "floor": f"./floor set {name}.dts {name}.img {PARTITION}",
                                         "own": f"hwknobs set {' '.join(ids(selection))}"})
    return Point(len(selection), found["compiler"].median_processor(), added(found["own"], found["floor"]))


def measure_status(device, runs, name, selection):
    found = measure.times(device, runs, {"floor": f"./floor convert {name}.dtbo",
                                         "own": "hwknobs status --partition"}, {"own": 1})
    return Point(len(selection), found["floor"].median_processor(), added(found["own"], found["floor"]))


def measure_sizes(device, rows, runs):
    for count in (1, 10, 30, 100, len(rows)):
        say(f"{count} rows")
        name = f"rows-{count}"
        selection = spread(rows, count)
        device.capture(name, selection)
        yield measure_set(device, runs, name, selection), measure_status(device, runs, name, selection)


def measure_all(device, rows, runs):
    """{command: points}. In memory: a disk's waiting would hide what grows."""
    device.use_memory()
    writes, reads = zip(*measure_sizes(device, rows, runs))
    return {"set": writes, "status --partition": reads}


def slope(points, value):
    """Microseconds per row: the straight line that fits best."""
    mean_rows = sum(point.rows for point in points) / len(points)
    mean = sum(map(value, points)) / len(points)
    return 1000 * sum((point.rows - mean_rows) * (value(point) - mean) for point in points) / \
        sum((point.rows - mean_rows) ** 2 for point in points)


def table(growing):
    lines = []
    for command, points in growing.items():
        for label, value in (("the compiler", lambda point: point.compiler), ("our part", lambda point: point.ours)):
            times = [f"{value(point):.2f}" for point in points]
            lines.append([f"`{command}`: {label}, ms", *times, f"{slope(points, value):.1f}"])
    sizes = [point.rows for point in next(iter(growing.values()))]
    return report.table(["rows", *sizes, "us per row"], lines) + \
        f"\n![How cost grows with the selection]({report.PICTURE.name})\n"


def picture(growing):
    """The table drawn by gnuplot, as SVG."""
    lines = ["set terminal svg size 900,360 font 'sans-serif,13' background 'white'", "set multiplot layout 1,2",
             "set xlabel 'rows selected'", "set ylabel 'processor time, ms'", "set grid", "set key left top", "set yrange [0:*]"]
    for number, (command, points) in enumerate(growing.items()):
        lines += [f"$data{number} << END", *(f"{point.rows} {point.compiler} {point.ours}" for point in points), "END"]
        lines += [f"set title '{command}'",
                  f"plot $data{number} using 1:2 with linespoints lw 2 title 'the compiler', "
                  f"$data{number} using 1:3 with linespoints lw 2 title 'our part'"]
    return subprocess.run(["gnuplot"], input="\n".join(lines) + "\n", check=True, text=True,
                          stdout=subprocess.PIPE).stdout
