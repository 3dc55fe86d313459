"""Each measure runs programs of the build and adds its figures to a table."""

import json
import os
import platform
import re
import statistics
import subprocess
import sys
import time
from contextlib import contextmanager

INSTRUCTION_ROUNDS = (500, 2500)
STARTS = 30


class Programs:
    def __init__(self, build, seconds):
        self.build = build
        self.seconds = seconds

    def path(self, name):
        path = os.path.join(self.build, "bin", name)
        if not os.path.exists(path):
            sys.exit("bench: %s is not built" % path)
        return path


def machine():
    model = "unknown processor"
    with open("/proc/cpuinfo", encoding="utf-8") as file:
        for line in file:
            if line.startswith("model name"):
                model = line.split(":", 1)[1].strip()
                break
    return "%s, %d cores, Linux %s" % (model, os.cpu_count(), platform.release())


def run(command, environment=None):
    result = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, check=False,
                            env=environment)
    if result.returncode != 0:
        sys.exit("bench: %s failed:\n%s" % (" ".join(command), result.stderr))
    return result


def without_bus():
    return {key: value for key, value in os.environ.items()
            if key not in ("DBUS_SESSION_BUS_ADDRESS", "XDG_RUNTIME_DIR")}


def _count(program, work, rounds):
    counted = run(["valgrind", "--tool=cachegrind", "--cache-sim=no", "--cachegrind-out-file=/dev/null",
                   program, work, str(rounds)], without_bus())
    return int(re.search(r"I\s+refs:\s+([\d,]+)", counted.stderr).group(1).replace(",", ""))


def _instructions_of(program, work):
    """One round's: the difference of two runs, in which the program's start and end drop out."""
    few, many = INSTRUCTION_ROUNDS
    return (_count(program, work, many) - _count(program, work, few)) / (many - few)


def instructions(programs, table):
    program = programs.path("tarn_bench_rounds")
    works = run([program, "--list"]).stdout.split()
    counts = {work: _instructions_of(program, work) for work in works}
    for work, count in counts.items():
        if not work.startswith("api:"):
            continue
        name = work[len("api:"):]
        table.add(name, count, "instructions")
        table.add(name + ", over the same by hand", count / counts["hand:" + name], "times", 1.04)
    table.add("parcels of a command of two words", counts["parcel"], "instructions", 900)


def threads(programs, table):
    output = run([programs.path("tarn_bench_in_process"), "--benchmark_filter=^threads/", "--benchmark_format=json",
                  "--benchmark_repetitions=5", "--benchmark_min_time=%g" % (programs.seconds / 5)], without_bus())
    rates = {}
    for entry in json.loads(output.stdout)["benchmarks"]:
        if entry.get("aggregate_name") == "median":
            rates[entry["run_name"]] = entry["items_per_second"]
    one = rates["threads/api/real_time/threads:1"]
    table.add("commands in process, one thread", one, "a second")
    two = rates["threads/api/real_time/threads:2"]
    table.add("two threads over one", two / one, "times", 1.8, at_least=True)
    by_hand = rates["threads/hand/real_time/threads:2"] / rates["threads/hand/real_time/threads:1"]
    table.add("the same by hand", by_hand, "times")


def processes(programs, table):
    output = run([programs.path("tarn_bench"), "--json", str(programs.seconds)])
    for row in json.loads(output.stdout):
        table.add(row["what"], row["figure"], row["unit"], row.get("aim"))


@contextmanager
def served_board(programs):
    """A bus of its own with a board on it; gives the environment."""
    bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--print-address"], stdout=subprocess.PIPE, text=True)
    environment = dict(without_bus(), DBUS_SESSION_BUS_ADDRESS=bus.stdout.readline().strip())
    board = subprocess.Popen([programs.path("tarn-board")], stderr=subprocess.PIPE, text=True, env=environment)
    try:
        board.stderr.readline()
        yield environment
    finally:
        for process in (board, bus):
            process.terminate()
            process.wait()


def _start(command, environment):
    """Seconds of wall and of processor time from exec to the end."""
    began = time.perf_counter()
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, env=environment)
    _, status, usage = os.wait4(process.pid, 0)
    wall = time.perf_counter() - began
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        sys.exit("bench: %s ended with %d" % (" ".join(command), process.returncode))
    return wall, usage.ru_utime + usage.ru_stime


def _starts(commands, environment):
    """By turns, so that what else the machine does meets all of them; the medians."""
    taken = [[_start(command, environment) for command in commands] for _ in range(STARTS)]
    return [tuple(statistics.median(round_[i][k] for round_ in taken) * 1000 for k in (0, 1))
            for i in range(len(commands))]


def start(programs, table):
    tarnctl = programs.path("tarnctl")
    with served_board(programs) as environment:
        call = [tarnctl, "call", "audio.getVolume"]
        busctl = ["busctl", "--user", "--address=" + environment["DBUS_SESSION_BUS_ADDRESS"], "call", "org.tarn.Board1",
                  "/org/tarn/Board1", "org.tarn.Board1", "GetProperty", "s", "audio.volume"]
        first = [programs.path("tarn_bench_first_reply")]
        (ours, ours_cpu), (theirs, theirs_cpu), (reply, _) = _starts([call, busctl, first], environment)
    table.add("busctl call", theirs, "ms")
    table.add("tarnctl call, a served board", ours, "ms", theirs)
    table.add("... processor time", ours_cpu, "ms", theirs_cpu)
    table.add("a new process to its first reply and end", reply, "ms", theirs)
    with_board = [[tarnctl, "--embedded", "call", "audio.getVolume"]]
    for words in ("call audio.get", "get audio.", "board fault CMD_AUDIO", "describe a"):
        with_board.append([tarnctl, "--", "__complete"] + words.split())
    results = _starts(with_board, without_bus())
    table.add("tarnctl call, a board of its own: processor time", results[0][1], "ms", 8)
    table.add("completion: processor time", max(cpu for _, cpu in results[1:]), "ms", 10)


def events(programs, table):
    output = run([programs.path("tarn_bench_events")], without_bus())
    for row in json.loads(output.stdout):
        table.add(row["what"], row["figure"], row["unit"])


def growth(programs, table):
    output = run([programs.path("tarn_bench_growth"), "--benchmark_format=json",
                  "--benchmark_min_time=%g" % (programs.seconds / 10)], without_bus())
    series = {}
    growths = {}
    for entry in json.loads(output.stdout)["benchmarks"]:
        parts = entry["name"].replace("_BigO", "").split("/")
        if entry.get("aggregate_name") == "BigO":
            growths[parts[0]] = entry["big_o"]
        elif "aggregate_name" not in entry:
            series.setdefault(parts[0], []).append((parts[1], entry["cpu_time"], entry["time_unit"]))
    for name, points in series.items():
        for size, cost, unit in points:
            table.add("%s, %s (grows with %s)" % (name, size, growths.get(name, "?")), cost, unit)
