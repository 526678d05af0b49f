"""Times, instructions, memory and page faults of commands in a virtual device."""
import json
import re
import statistics
from typing import NamedTuple

from device import say

# Runs of each command before it is the next one's turn.
TURN = 5


class Times(NamedTuple):
    """Of one command, in milliseconds: each run from start to end, and of each turn the mean of what all its processes
    took of the processors. The latter hardly depends on what else goes on in the machine."""
    elapsed: list
    processor: list

    def median(self):
        return statistics.median(self.elapsed)

    def median_processor(self):
        return statistics.median(self.processor)


def times(device, runs, commands, statuses=None):
    """The Times of each command of {name: line}, by name.

    They run by turns, so that what else goes on in the machine hits all alike. `statuses` has the exit statuses that
    are not 0.
    """
    found = {name: Times([], []) for name in commands}
    arguments = [word for name, line in commands.items() for word in ("-n", name, line)]
    for _ in range(-(-runs // TURN)):
        device.run("hyperfine", "-N", "-i", "--warmup", "1", "--runs", str(TURN), "--style", "none",
                   "--export-json", "turns", *arguments)
        for result in json.loads((device.data / "turns").read_text())["results"]:
            name = result["command"]
            if set(result["exit_codes"]) != {(statuses or {}).get(name, 0)}:
                raise RuntimeError(f"{commands[name]}: exit status {result['exit_codes']}")
            found[name].elapsed.extend(seconds * 1000 for seconds in result["times"])
            found[name].processor.append((result["user"] + result["system"]) * 1000)
    return found


def instructions(device, line, hwknobs=None):
    """Of the process itself: those of the compiler and the shell that it starts are not counted."""
    said = device.run("sh", "-c", f"valgrind --tool=callgrind --callgrind-out-file=/dev/null {line} 2>&1 >/dev/null",
                      hwknobs=hwknobs, check=False)
    return re.search(r"I +refs: +([\d,]+)", said).group(1)


def usage(device, line, hwknobs=None):
    """The peak memory in KiB, and the page faults with those of the compiler and the shell."""
    return device.run("./floor", "usage", *line.split(), hwknobs=hwknobs).split()


class Comparison:
    """Lines of the two tables that compare hwknobs with something else."""

    def __init__(self, device, other):
        self._device = device
        self._other = other
        self._times = []
        self._costs = []

    def add(self, label, goal, runs, base, own, status=0):
        """Measures `own`, which is to end with `status`, beside `base`."""
        say(label)
        found = times(self._device, runs, {"base": base, "own": own}, {"own": status})
        base_times, own_times = found["base"], found["own"]
        ratios = (own_times.median() / base_times.median(), min(own_times.elapsed) / min(base_times.elapsed),
                  own_times.median_processor() / base_times.median_processor())
        self._times.append([label, *(f"{times.median():.2f}" for times in (base_times, own_times)),
                            f"**{ratios[0]:.2f}**", *(f"{ratio:.2f}" for ratio in ratios[1:]), goal])
        counts = [(instructions(self._device, line), *usage(self._device, line)) for line in (base, own)]
        self._costs.append([label, *(count[i] for i in range(3) for count in counts)])

    def tables(self):
        """(heading, rows) of both."""
        other = self._other
        return (["command", f"{other}, ms", "`hwknobs`, ms", "ratio of medians", "of minima", "of processor times",
                "goal"], self._times), \
            (["command", f"instructions: {other}", "`hwknobs`", f"peak KiB: {other}", "`hwknobs`",
              f"page faults: {other}", "`hwknobs`"], self._costs)
