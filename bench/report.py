"""Markdown, and its place in docs/performance.md."""
import os
import pathlib
import re
import subprocess
import textwrap

PAGE = pathlib.Path("docs/performance.md")
PICTURE = pathlib.Path("docs/performance-growth.svg")
BEGIN = "<!-- from here on written by bench/run --write-docs -->\n"
END = "<!-- up to here -->\n"


def paragraph(text):
    return textwrap.fill(" ".join(text.split()), 118, break_on_hyphens=False) + "\n"


def table(heading, rows):
    lines = [heading, ["---"] + ["--:"] * (len(heading) - 1), *rows]
    return "".join("| " + " | ".join(map(str, line)) + " |\n" for line in lines)


def output_of(*command):
    return subprocess.run(command, check=True, text=True, stdout=subprocess.PIPE).stdout.strip()


def machine(folder, runs):
    """What was measured on."""
    processor = re.search(r"^model name\s*: (.*)", pathlib.Path("/proc/cpuinfo").read_text(), re.MULTILINE)
    disk = output_of("df", "--output=fstype", folder).splitlines()[-1]
    return paragraph(f"""{os.cpu_count()} x {processor.group(1) if processor else 'unknown processor'},
        Linux {os.uname().release}, {output_of('dtc', '--version').removeprefix('Version: ')}; disk: {disk}; load before
        the run {os.getloadavg()[0]:.2f}; runs by turns, {runs} of a `set` and its floor, {runs * 10} where that is an
        empty program""")


def write_docs(text, picture):
    """Puts the text between the two comment lines of the page, and the picture beside it."""
    before, rest = PAGE.read_text().split(BEGIN)
    after = rest.split(END)[1]
    PAGE.write_text(f"{before}{BEGIN}\n{text}\n{END}{after}")
    PICTURE.write_text(picture)
