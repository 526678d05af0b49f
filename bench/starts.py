"""Which commands start other programs: only those that need the compiler."""
import report
from device import ids

NEED_NO_COMPILER = [
    "--help", "plat-list", "list", "list --group=LPM", "list-group", "status", "status --system", "result",
    "auth-status", "selftest", "xmlconfig-show kaslr_disable", "xmlconfig-set", "set 9999", "setname no_such_row",
    "clear --ddr-data", "clear --all", "clear", "status --partition",
]


class StartsAnotherProgram(Exception):
    pass


def programs(device, command):
    """How many programs run for a command of hwknobs, itself included, by the kernel's account."""
    device.run("strace", "-f", "-qq", "-e", "trace=execve", "-e", "status=successful", "-o", "calls",
               "hwknobs", *command.split(), check=False)
    return (device.data / "calls").read_text().count("execve(")


def check(device, rows):
    """A sentence that names the commands, when it is true of them all. The partition is left empty."""
    device.use_memory()
    first = ids(rows)[0]
    commands = [f"set -d {first}", *NEED_NO_COMPILER]
    for command in commands:
        if programs(device, command) != 1:
            raise StartsAnotherProgram(f"hwknobs {command} starts another program")
    if programs(device, f"set {first}") < 2:
        raise StartsAnotherProgram("nothing is seen of the compiler that `set` starts")
    return report.paragraph(f"No other program is started by: {', '.join(f'`{command}`' for command in commands)}.")
