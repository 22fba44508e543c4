#!/usr/bin/env python3
"""Runs clang-tidy over the program's sources: tools/tidy.py BUILD-FOLDER

The windows' sources are put together some in one: the toolkit's headers take clang-tidy longer than all that
includes them. What is found is told with the file and line where it stands.
"""

import json
import re
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

WINDOWS_IN_ONE = 9
SIDE_BY_SIDE = 2

sources = Path(__file__).resolve().parent.parent / "src"
build = Path(sys.argv[1]).resolve()
work = build / "tidy"
work.mkdir(exist_ok=True)


def put_together(paths, unit):
    """Writes the files one behind the other and returns where each line of them came from."""
    origins, text = [], []
    for path in paths:
        lines = Path(path).read_text().splitlines(keepends=True)
        origins += [(path, number) for number in range(1, len(lines) + 1)]
        text += lines
    unit.write_text("".join(text))
    return origins


def look_at(path, origins=None):
    """Prints what clang-tidy finds in the file, and returns whether it finds nothing."""
    command = ["clang-tidy", "-p", work, "--quiet", "--extra-arg=-Wno-unknown-warning-option", path]
    result = subprocess.run(command, capture_output=True, text=True)
    said = result.stdout
    if origins:
        place = re.compile(re.escape(str(path)) + r":(\d+)")
        said = place.sub(lambda found: "{}:{}".format(*origins[int(found[1]) - 1]), said)
    if result.returncode != 0:
        print(said or result.stderr, end="", flush=True)
    return result.returncode == 0


commands = {}
for entry in json.loads((build / "compile_commands.json").read_text()):
    if Path(entry["file"]).is_relative_to(sources):
        # What gcc keeps of the headers it has read, clang cannot read.
        entry["command"] = re.sub(r" -include \S*cmake_pch\.hxx", "", entry["command"])
        commands.setdefault(entry["file"], entry)
windows = sorted(path for path in commands if re.search(r"(_qt|_widget|_window)\.cpp$", path))
jobs = []
for begin in range(0, len(windows), WINDOWS_IN_ONE):
    together = windows[begin : begin + WINDOWS_IN_ONE]
    unit = work / f"windows_{begin // WINDOWS_IN_ONE}.cpp"
    first = commands[together[0]]
    commands[str(unit)] = first | {"file": str(unit), "command": first["command"].replace(together[0], str(unit))}
    jobs.append((unit, put_together(together, unit)))
jobs += [(path,) for path in sorted(commands.keys() - set(windows) - {str(unit) for unit, _ in jobs})]
(work / "compile_commands.json").write_text(json.dumps(list(commands.values())))

with ThreadPoolExecutor(SIDE_BY_SIDE) as workers:
    results = list(workers.map(lambda job: look_at(*job), jobs))
sys.exit(0 if all(results) else 1)
