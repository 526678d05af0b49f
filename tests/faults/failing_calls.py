"""Runs each command of the tool once for every system call and every allocation that it makes, failing that one, and
once for every write(), doing half of it. What the command claims has to be what the partition holds then:

    it ends, and not by a signal
    after "ok", or without a complaint: all of what an undisturbed run does
    after a complaint: the old setting, the new one, or none; never a part of one

With --sample, of the faults that once cost something all, and of the others some.
"""
import collections
import concurrent.futures
import os
import pathlib
import queue
import re
import subprocess
import sys
import tempfile
import time

from virtual_device import IMAGE_SIZE, PARTITION, WRITERS, Device, without_time

TIME_LIMIT = 20
SAMPLE_STEP = 40
SAMPLED_WHOLE = "set -m 17", "xmlconfig-set document"
PAIRS = 5
COMMANDS = WRITERS + ["status", "status --partition", "result", "auth-status", "selftest", "list", "plat-list",
                      "list-group", "xmlconfig-show lcm_settings a1 perf_stat_events scycles"]

# How a call fails; with error=EIO if it is not here. A brk() that fails says that nothing moved.
FAILURES = {"openat": "error=EMFILE", "mmap": "error=ENOMEM", "brk": "retval=0", "clone": "error=EAGAIN",
            "pipe2": "error=EMFILE", "wait4": "error=ECHILD", "access": "error=EACCES", "fcntl": "error=EINVAL",
            "flock": "error=ENOLCK"}
# What cannot fail, or not in this way: the start of the run, its end, and the wake-up of other threads (the C library
# aborts without them); the loader's first memory (it crashes); a close(), which on Linux closes even if it fails, where
# strace leaves open what others wait for the end of.
NEVER_FAIL = re.compile(r"(execve|exit_group|futex)\(|mmap\(NULL, 8192, PROT_READ\|PROT_WRITE,|close\(\d+<pipe:")

# Failures that the tool takes for "there is none", as it always has: the partition cannot be opened or its first bytes
# cannot be read, the system booted without a setting or its list of items ends, the compiler has no source to show.
TAKEN_FOR_NOTHING = re.compile(
    rf'.*: openat\(.*"({PARTITION}", O_RDONLY|/proc/device-tree/chosen(/hwknobs)?"|item\d+")|'
    rf'.*: read\(\d+<({PARTITION}>, .*, (512|45)|/proc/device-tree/chosen/hwknobs/item\d+>.*)\)|'
    r'status --partition: (read|write)\(\d+<pipe:')

Fault = collections.namedtuple("Fault", "kind before")  # the words to run the tool with
Violation = collections.namedtuple("Violation", "what how", defaults=("",))


def strace(*options):
    return ("strace", "-y", "-o", "trace", *options)


def preload(*variables):
    return ("env", "LD_PRELOAD=./preload.so", *variables)


def state(device):
    partition = device.partition.read_bytes()
    return without_time(partition[:IMAGE_SIZE]), partition[IMAGE_SIZE:]


def is_none(image):
    return image.startswith(bytes(4))


class Command:
    """What an undisturbed run says and leaves, and the faults that can be put into it."""

    def __init__(self, device, words, partition):
        self.words, self.partition = words, partition
        device.write(partition)
        self.old = state(device)
        self.run = device.run(words, preload())
        self.new = state(device)
        counts = (device.data / "counts").read_text().split()
        device.write(partition)
        device.run(words, strace())
        self.faults = list(self.call_faults((device.data / "trace").read_text()))
        for kind, variable, count in zip(("allocation", "short write"), ("FAIL_ALLOCATION", "SHORT_WRITE"), counts):
            self.faults += [Fault(kind, preload(f"{variable}={i + 1}")) for i in range(int(count))]

    def call_faults(self, trace):
        calls = collections.Counter()
        for line in trace.splitlines():
            call = line.partition("(")[0]
            calls[call] += 1
            if call.isidentifier() and not NEVER_FAIL.match(line):
                inject = f"inject={call}:{FAILURES.get(call, 'error=EIO')}:when={calls[call]}"
                yield Fault("call", strace("-e", f"trace={call}", "-e", inject))

    def sample(self):
        """The allocations of some commands, the last writes, among them that of the image, and some of the rest."""
        whole = self.words.startswith(SAMPLED_WHOLE)
        return [fault for i, fault in enumerate(self.faults) if i % SAMPLE_STEP == 0 or
                (whole and fault.kind == "allocation") or (fault.kind == "short write" and i > len(self.faults) - 4)]

    def complains(self, run):
        return (run.returncode != self.run.returncode or run.stderr != b""
                or re.search(rb"^(ERROR: |Error in file )", run.stdout, re.M) is not None)

    def judge(self, run, after, failed_call):
        """What is wrong, or None."""
        if run.returncode is None:
            return "hangs"
        if run.returncode > 128:
            return f"ends by signal {run.returncode - 128}"
        if self.complains(run):
            whole = after[0] in (self.old[0], self.new[0]) or is_none(after[0])
            return None if whole else "complains, and leaves a part of a setting"
        if TAKEN_FOR_NOTHING.match(f"{self.words}: {failed_call}"):
            return None
        if after != self.new:
            return "says that all went well, and something is lost"
        said = without_time(run.stdout).splitlines()
        if not all(line in said for line in without_time(self.run.stdout).splitlines()):
            return "says less than it should, and nothing of a failure"
        return None

    def run_with(self, devices, fault):
        """What is wrong, or None."""
        device = devices.get()
        trace = device.data / "trace"
        trace.write_text("")
        device.write(self.partition)
        run = device.run(self.words, fault.before, TIME_LIMIT)
        failed_call = "".join(line for line in trace.read_text().splitlines() if "(INJECTED)" in line)
        wrong = self.judge(run, state(device), failed_call)
        devices.put(device)
        return wrong and Violation(f"{self.words}: {wrong}", f"{' '.join(fault.before)}  {failed_call}")


def run_commands(devices, old, sample):
    """Prints a line for each command; returns what was wrong."""
    kinds = ("call", "allocation", "short write")
    print(f"{'':24}" + "".join(f"{kind + 's':>14}" for kind in kinds) + f"{'wrong':>8}")
    violations = []
    with concurrent.futures.ThreadPoolExecutor(devices.qsize()) as pool:
        for words in COMMANDS:
            device = devices.get()
            command = Command(device, words, old)
            devices.put(device)
            faults = command.sample() if sample else command.faults
            wrong = [w for w in pool.map(lambda fault: command.run_with(devices, fault), faults) if w]
            counts = collections.Counter(fault.kind for fault in faults)
            print(f"{words:24.24}" + "".join(f"{counts[kind]:14}" for kind in kinds) + f"{len(wrong):8}", flush=True)
            violations += wrong
    return violations


def set_compiler(device, body):
    (device.data / "compiler").write_text(f"#!/bin/sh\n{body}\n")
    (device.data / "compiler").chmod(0o755)
    return ("env", "DTCBIN=./compiler")


def run_two_writers(device, old):
    """Two commands at once: both are done, one after the other."""
    def run_pair(first, second, delay):
        device.write(old)
        processes = [device.start(*first)]
        time.sleep(delay)
        processes.append(device.start(*second))
        return [process.communicate(timeout=TIME_LIMIT) for process in processes]

    slow_compiler = set_compiler(device, 'sleep 0.05; exec dtc "$@"')
    # Its second piece is zeroed when all of a large image is there.
    slow_clear = strace("-e", "inject=write:delay_enter=500000:when=2")
    large_set = device.large_set()
    device.run(large_set)
    large = state(device)
    for _ in range(PAIRS):
        run_pair(("set -m 17 u120", slow_compiler), ("set -m 4", slow_compiler), 0)
        stored = device.run("status --partition").stdout
        if not all(f"({number})".encode() in stored for number in (1, 228, 329, 17, 4)):
            yield Violation("set -m loses an item to another set -m")
        run_pair(("clear", slow_clear), (large_set,), 0.1)
        if state(device)[0] != large[0] and not is_none(state(device)[0]):
            yield Violation("clear leaves a part of what set writes meanwhile")


def main():
    begin = time.monotonic()
    with tempfile.TemporaryDirectory() as folder:
        first = Device(f"{folder}/0")
        subprocess.run(["c++", "-std=c++20", "-shared", "-fPIC", "-o", first.data / "preload.so",
                        pathlib.Path(__file__).with_name("preload.cpp")], check=True)
        devices = queue.SimpleQueue()
        devices.put(first)
        for i in range(1, os.cpu_count()):
            devices.put(Device(f"{folder}/{i}", like=first))
        old = first.partition.read_bytes()
        violations = [*run_commands(devices, old, "--sample" in sys.argv), *run_two_writers(first, old)]
    for what, count in collections.Counter(v.what for v in violations).items():
        print(f"{what} ({count})", *[v.how for v in violations if v.what == what and v.how][:4], sep="\n        ")
    print(f"{len(violations)} wrong, {time.monotonic() - begin:.0f} s")
    sys.exit(1 if violations else 0)


if __name__ == "__main__":
    main()
