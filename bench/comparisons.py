"""hwknobs beside its floor, beside a peer, and built in other ways."""
import re
import subprocess

import measure
import report
from device import MIB, PARTITION, RELEASE, PLATFORM, ids, spread


def with_floor(device, rows, runs):
    """Each job beside the least that it can cost. Leaves one.* and all.* in the device."""
    selections = {"one": rows[:1], "some": spread(rows, 20), "all": rows}
    device.use_disk()
    for name, selection in selections.items():
        device.capture(name, selection)
    comparison = measure.Comparison(device, "floor")
    for place in ("disk", "memory"):
        if place == "memory":
            device.use_memory()
        for name, selection in selections.items():
            label = f"`set`, {len(selection)} {'row' if len(selection) == 1 else 'rows'}, {place}"
            comparison.add(label, "1.10", runs, f"./floor set {name}.dts {name}.img {PARTITION}",
                           f"hwknobs set {' '.join(ids(selection))}")
    comparison.add(f"`status --partition`, {len(rows)} rows", "1.20", runs * 2, "./floor convert all.dtbo",
                   "hwknobs status --partition", status=1)
    for label, command in (("`list`", "list"), ("`plat-list`", "plat-list"), ("`status`, no setting", "status")):
        comparison.add(label, "1.25", runs * 10, "./empty", f"hwknobs {command}")
    times, costs = comparison.tables()
    return "\n".join([shell_sentence(device, runs), report.table(*times), report.table(*costs)])


def shell_sentence(device, runs):
    by_shell = f"""dtc <one.dts >/dev/null &&
        dd if=/dev/zero of={PARTITION} bs=16K count=256 conv=notrunc oflag=sync status=none &&
        dd if=one.img of={PARTITION} bs=1M conv=notrunc oflag=sync status=none"""
    found = measure.times(device, runs, {"floor": f"./floor set one.dts one.img {PARTITION}",
                                         "shell": f"sh -c '{by_shell}'"})
    return report.paragraph(f"""The floor of `set`, 1 row, memory, takes `sh` with `dd`
        {found['shell'].median() / found['floor'].median():.2f} times as long.""")


# The peer knows neither overlays nor a partition to clear. What remains to compare is hwknobs with a compiler that does
# nothing and the smallest partition, where the peer's block lies behind the end of the last MiB. Both in memory.

def stored_pairs(device):
    """The lines KEY=VALUE of what is stored."""
    shown = device.run("hwknobs", "status", "--partition", check=False)
    return re.findall(r"^  (\w.*=.*)$", shown, re.MULTILINE)


def rows_with_pairs(device, rows):
    return [row for row in rows
            if "<item key=" in subprocess.run([device.hwknobs, f"--plat={PLATFORM}", "xmlconfig-show", row[1]],
                                              check=True, text=True, stdout=subprocess.PIPE).stdout]


def with_peer(device, rows, runs):
    """The same pairs, written and read by fw_setenv and fw_printenv."""
    selection = ids(rows_with_pairs(device, rows))
    device.use_memory()
    device.run("hwknobs", "set", *ids(rows))
    pairs = stored_pairs(device)
    (device.data / "pairs").write_text("".join(f"{pair}\n" for pair in pairs))
    (device.data / "no-defaults").write_text("")
    comparison = measure.Comparison(device, "peer")
    for mib, compiler, label in ((1, "./floor", "no compiler, 1 MiB"), (4, "dtc", "the compiler, 4 MiB")):
        device.use_memory(mib * MIB + 4096)
        (device.data / "peer.config").write_text(f"{PARTITION} {mib * MIB:#x} 0x400\n")
        device.compiler = compiler
        set_line = f"hwknobs set {' '.join(selection)}"
        write = "fw_setenv -c peer.config -f no-defaults -s pairs"
        comparison.add(f"write {len(pairs)} pairs, {label}", "-", runs, write, set_line)
        # The other order: what hwknobs clears is the peer's, too.
        device.run(*set_line.split())
        device.run(*write.split())
        stored = device.run("fw_printenv", "-c", "peer.config").splitlines()
        if not sorted(stored) == sorted(stored_pairs(device)) == sorted(pairs):
            raise RuntimeError("the peer does not store what hwknobs stores")
        comparison.add(f"read {len(pairs)} pairs, {label}", "-", runs, "fw_printenv -c peer.config",
                       "hwknobs status --partition", status=1)
    times, costs = comparison.tables()
    return report.table(*times) + "\n" + report.table(*costs)


def relocations(executable):
    """The number of relative relocations, and the bytes that they take."""
    said = report.output_of("readelf", "-rW", executable)
    count = len(re.findall(r" R_\w+_RELATIVE? ", said))
    size = count * 24
    for packed_size in re.findall(r"'\.relr\.dyn'.* contains (\d+) ", said):
        size += int(packed_size) * 8
    count += sum(map(int, re.findall(r"^ *(\d+) offsets$", said, re.MULTILINE)))
    return count, size


def executables(device):
    """What the ways to build cost at the start."""
    rows = []
    for label, executable in (("an empty static program", device.work / "empty"),
                              ("for a device", device.hwknobs), ("release", RELEASE.resolve())):
        stripped = device.work / "stripped"
        subprocess.run(["strip", "-o", stripped, executable], check=True)
        peak, faults = measure.usage(device, "hwknobs plat-list", executable)
        rows.append([label, stripped.stat().st_size, *relocations(executable), faults, peak,
                     measure.instructions(device, "hwknobs plat-list", executable)])
    return report.table(["executable", "bytes, stripped", "relative relocations", "bytes of them",
                         "page faults of `plat-list`", "peak KiB", "instructions"], rows)
