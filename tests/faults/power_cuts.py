"""Cuts the power after every 512 and every 4096 bytes that a command writes over an older setting, and shows what the
partition holds then to the reader and to the boot side. Counts for each of them what it takes it for:

    old, new, none   a whole setting, or none
    refused          a setting that it will not use
    torn             a setting that nobody chose

Only in the midst of the one write of the image may it be one of the last two, and torn to the reader alone; else that is
status 1.
"""
import collections
import re
import sys
import tempfile

from virtual_device import IMAGE_SIZE, PARTITION, WRITERS, Device

STEPS = (512, 4096)
SEEN_AS = ("old", "new", "none", "refused", "torn")
CALL = re.compile(r'^(?:openat\(|lseek\(.* = (?P<position>\d+)$|write\(\d+, "(?P<data>[^"]*)")', re.M)


def recorded_writes(device, words):
    """What a command writes to the partition: the offset and the bytes of each write()."""
    device.run(words, ("strace", "-o", "trace", "-P", PARTITION, "-e", "trace=openat,lseek,write", "-e", "verbose=none",
                       "-xx", "-s", str(IMAGE_SIZE)))
    position = 0
    for call in CALL.finditer((device.data / "trace").read_text()):
        if call["data"] is None:
            position = int(call["position"] or 0)
        else:
            data = bytes.fromhex(call["data"].replace(r"\x", ""))
            yield position, data
            position += len(data)


def states(partition, writes, step):
    """The partition after each step, and whether that is in the midst of the image."""
    partition = bytearray(partition)
    for position, data in writes:
        for begin in range(0, len(data), step):
            part = data[begin:begin + step]
            partition[position + begin:position + begin + len(part)] = part
            yield partition, any(data) and begin + step < len(data)


class Observer:
    """The reader, or the boot side. Each state is shown to it once."""

    def __init__(self, device, look, nothing, uses):
        self.device, self.look, self.nothing, self.uses = device, look, nothing, uses
        self.seen = {}

    def sees(self, partition):
        image = bytes(partition[:IMAGE_SIZE])
        if image not in self.seen:
            self.device.write(partition)
            self.seen[image] = self.look(self.device)
        return self.seen[image]

    def takes_for(self, partition, old, new):
        said, *taken = seen = self.sees(partition)
        if self.nothing in said:
            return "none"
        if seen in (self.sees(old), self.sees(new)):
            return "old" if seen == self.sees(old) else "new"
        return "torn" if self.uses(said) or any(taken) else "refused"


def main():
    wrong = 0
    with tempfile.TemporaryDirectory() as folder:
        device = Device(f"{folder}/device")
        observers = {
            "reader": Observer(device, lambda d: (d.run("status --partition").stdout,), b"doesn't exist",
                               lambda said: b"ERROR: " not in said),
            "boot": Observer(device, Device.reboot, b"boot: no setting", lambda said: b" applied, " in said)}
        old = device.partition.read_bytes()
        print(f"{'':24}{'step':>6} {'seen by':8}{'states':>8}" + "".join(f"{name:>9}" for name in SEEN_AS))
        for words in [*WRITERS, device.large_set()]:
            device.write(old)
            writes = list(recorded_writes(device, words))
            new = device.partition.read_bytes()
            for step in STEPS:
                for name, observer in observers.items():
                    counts = collections.Counter()
                    for partition, in_image in states(old, writes, step):
                        seen_as = observer.takes_for(partition, old, new)
                        counts[seen_as] += 1
                        wrong += seen_as == "refused" and not in_image
                        wrong += seen_as == "torn" and not (in_image and name == "reader")
                    wrong += seen_as != observer.takes_for(new, old, new)
                    print(f"{words:24.24}{step:6} {name:8}{counts.total():8}"
                          + "".join(f"{counts[name]:9}" for name in SEEN_AS), flush=True)
    print(f"{wrong} wrong")
    sys.exit(1 if wrong else 0)


if __name__ == "__main__":
    main()
