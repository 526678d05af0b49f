"""A virtual device with a stored setting, and the commands that change it."""
import os
import pathlib
import re
import shutil
import subprocess
import sys

SCRIPT = pathlib.Path(__file__).resolve().parents[2] / "device/device"
PARTITION = "/dev/block/by-name/boot_para"
SETTINGS_SIZE = 0x100000
IMAGE_SIZE = 0x20E00

OLD = "setname kaslr_disable lcm_settings a2 perf_stat_events scycles"
WRITERS = ["set 4 17 u120 329 spower", "set -r 4 17 u120", "set -m 17 u120 228 a1", "set -m -r",
           "setname -d lcm_settings", "xmlconfig-set document", "xmlconfig-set < document",
           "clear", "clear --all", "clear --ddr-data"]


def without_time(data):
    """The same bytes, whenever they were written."""
    return re.sub(rb"\d{4}-\d\d-\d\d \d\d:\d\d:\d\d", b"0000-00-00 00:00:00", data)


class Device:
    def __init__(self, folder, like=None):
        """A new device that has booted with OLD, or a copy of another."""
        self.folder = pathlib.Path(folder)
        self.data = self.folder / "data"
        self.partition = self.folder / "boot_para"
        if like:
            shutil.copytree(like.folder, folder, symlinks=True)
            return
        subprocess.run([SCRIPT, "create", folder, "--plat-code", "8314", "--chipid", "8314",
                        "--size", str(SETTINGS_SIZE + 0x40000)], check=True)
        if (self.folder / ".way").read_text().startswith("proot"):
            sys.exit("strace, which this needs, hangs under proot")
        shown = self.run("xmlconfig-show kmemleak_disable perf_stat_events spower")
        (self.data / "document").write_bytes(shown.stdout)
        self.run(OLD)
        self.write(self.partition.read_bytes()[:SETTINGS_SIZE] + b"\xAA" * 0x40000)  # data of others
        self.reboot("--status", "0", "--pl", "PL_SEC_DISABLE", "--lk", "LK_SEC_DISABLE")

    def start(self, words, before=()):
        """Starts the tool; `before` are words to run it with, such as those of strace."""
        words, _, file = words.partition(" < ")
        with open(self.data / file if file else os.devnull, "rb") as stdin:
            return subprocess.Popen([SCRIPT, "run", self.folder, *before, "hwknobs", *words.split()], stdin=stdin,
                                    stdout=subprocess.PIPE, stderr=subprocess.PIPE)

    def run(self, words, before=(), limit=60):
        """Runs it to its end. A status of None: it did not end within `limit` seconds."""
        process = self.start(words, before)
        try:
            out, err = process.communicate(timeout=limit)
            return subprocess.CompletedProcess(words, process.returncode, out, err)
        except subprocess.TimeoutExpired:
            process.kill()  # with it goes what it started
            return subprocess.CompletedProcess(words, None, *process.communicate())

    def reboot(self, *options):
        """What the boot side says, and the tree and entries that it takes from the partition."""
        said = subprocess.run([SCRIPT, "reboot", self.folder, *options], stdout=subprocess.PIPE).stdout
        taken = [self.folder / name for name in ("merged.dtb", "plenv")]
        return said, *(file.read_bytes() if file.exists() else None for file in taken)

    def write(self, partition):
        with open(self.partition, "r+b") as file:
            file.write(partition)

    def large_set(self):
        """The words that store 200 settings, in some 40 KiB."""
        numbers = re.findall(r"^ *(\d+) (?!.* required )", self.run("list").stdout.decode(), re.M)
        return f"set {' '.join(numbers[:200])}"
