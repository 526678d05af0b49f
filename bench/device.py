"""What is measured, built and put into a virtual device."""
import os
import pathlib
import re
import struct
import subprocess
import sys

PLATFORM = "px8314"
PARTITION = "/dev/block/by-name/boot_para"
STATIC = pathlib.Path("build/device-x86-64/hwknobs/hwknobs")
RELEASE = pathlib.Path("build/release/hwknobs/hwknobs")
MIB = 1 << 20

# The places of the partition that the benchmark looks at; hwknobs/hwknobs_img/partition_format.h has them all.
BLOB_SIZE_AT = 0x804
BLOB_AT = 0xA00
BLOB_CAPACITY = 0x20000


def say(text):
    print(text, file=sys.stderr, flush=True)


def setup(*lines):
    """Runs lines of bash with the functions of scripts/setup.bash."""
    script = "\n".join(["set -euo pipefail", "source scripts/setup.bash", *lines])
    subprocess.run(["bash", "-c", script], check=True, stdout=sys.stderr)


def prepare():
    """Installs and builds what is missing. The executable to measure."""
    setup('need_packages "${build_packages[@]}" "${device_packages[@]}" "${bench_packages[@]}"')
    executable = pathlib.Path(os.environ.get("HWKNOBS", STATIC))
    if "HWKNOBS" not in os.environ:
        say("Building for a device")
        subprocess.run(["device/build-static", "x86-64"], check=True, stdout=subprocess.DEVNULL)
    say("Building the release")
    setup("build_preset release OFF hwknobs")
    return executable


def place(source, target):
    """Copies an executable in one piece.

    Linux maps a file in the pieces in which it was written to memory. Those of a linker are small, and make the start
    of the same program some 40 us longer: whatever is compared has to be written alike.
    """
    target.write_bytes(source.read_bytes())
    target.chmod(0o755)


def ids(rows):
    return [row[0] for row in rows]


def spread(rows, count):
    """`count` of the rows, from all over the table."""
    return [rows[i * len(rows) // count] for i in range(count)]


class Device:
    """A virtual device that has hwknobs and the programs of this folder in /data/local/tmp."""

    def __init__(self, work, memory, executable):
        self.work = work
        self.folder = work / "device"
        self.data = self.folder / "data"
        self.hwknobs = work / "hwknobs"
        self.compiler = "dtc"  # what hwknobs finds in DTCBIN
        self._memory = memory / "partition"
        self._disk = work / "partition"
        place(executable, self.hwknobs)
        subprocess.run(["device/device", "create", self.folder, "--plat-code", PLATFORM[2:]], check=True)
        if (self.folder / ".way").read_text().startswith("proot"):
            sys.exit("strace, which this needs, hangs under proot")
        (self.folder / "boot_para").rename(self._disk)
        for name in ("empty", "floor"):
            subprocess.run(["g++", "-std=c++20", "-O2", "-static", "-s", "-o", work / name, f"bench/{name}.cpp"],
                           check=True)
            place(work / name, self.data / name)
        self.use_disk()

    def run(self, *command, hwknobs=None, check=True):
        """Runs a command inside, without its error messages. What it prints."""
        environment = os.environ | {"HWKNOBS": str(hwknobs or self.hwknobs), "DTCBIN": self.compiler}
        return subprocess.run(["device/device", "run", self.folder, *command], env=environment, check=check, text=True,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout

    # The device's partition is a file on disk, or one in memory: there, nothing waits for a disk.

    def _use(self, target):
        link = self.folder / "boot_para"
        link.unlink(missing_ok=True)
        link.symlink_to(target)

    def use_disk(self):
        self._use(self._disk)

    def use_memory(self, size=4 * MIB):
        self._memory.write_bytes(bytes(size))
        self._use(self._memory)

    def partition(self):
        return (self.folder / "boot_para").read_bytes()

    # Selections.

    def rows_without_argument(self):
        """(id, name) of each row of the listing that takes no argument."""
        row = re.compile(r" *(\d+) .{72} +(\w+) +\w+ *$")
        return [found.groups() for found in map(row.match, self.run("hwknobs", "list").splitlines()) if found]

    def capture(self, name, rows):
        """Leaves in the device what `hwknobs set` makes of the rows: the source that the compiler gets (NAME.dts), the
        image that is written (NAME.img), and the whole blob area of it (NAME.dtbo). The floor writes the same bytes."""
        recorder = self.data / "record"
        recorder.write_text("#!/bin/sh\nset -e\ncat >source\nexec dtc <source\n")
        recorder.chmod(0o755)
        self.compiler = "./record"
        self.run("hwknobs", "set", *ids(rows))
        self.compiler = "dtc"
        (self.data / "source").rename(self.data / f"{name}.dts")
        written = self.partition()
        (blob_size,) = struct.unpack_from("<I", written, BLOB_SIZE_AT)
        (self.data / f"{name}.img").write_bytes(written[:BLOB_AT + (blob_size + 15) // 16 * 16])
        (self.data / f"{name}.dtbo").write_bytes(written[BLOB_AT:BLOB_AT + BLOB_CAPACITY])
        self.run("./floor", "set", f"{name}.dts", f"{name}.img", PARTITION)
        if self.partition() != written:
            raise RuntimeError("the floor does not write what hwknobs writes")
