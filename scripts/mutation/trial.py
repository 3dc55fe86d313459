"""A copy of the tree with a build of its own, in which one mutant after the other is tried."""

import json
import os
import re
import signal
import subprocess

# Up to this distance tests are tried one by one, beyond it all together.
NEAR = 2

# They look at the tree or at what is installed and not at what programs do, and take long.
NOT_TRIED = {"contract_build_scripts", "contract_device_build", "contract_folders", "contract_hardening",
             "contract_install", "contract_packages", "contract_version", "contract_wall"}

# A mutant that hangs is found out too.
SECONDS_A_TEST = 120


def run(command, folder, seconds=None):
    """The status and the output; None for a status when it took too long."""
    process = subprocess.Popen(command, cwd=folder, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                               text=True, errors="replace", start_new_session=True)
    try:
        output, _ = process.communicate(timeout=seconds)
        return process.returncode, output
    except subprocess.TimeoutExpired:
        os.killpg(process.pid, signal.SIGKILL)
        return None, process.communicate()[0]


class Tree:
    def __init__(self, top, folder, flags=(), target="all", label=None):
        self.top = top
        self.folder = folder
        self.build = os.path.join(folder, "build")
        self.flags = list(flags)
        self.target = target
        self.label = label  # the tests to run are those with it
        self.tests = {}  # name -> the targets that it runs; none where that can't be told

    def prepare(self):
        os.makedirs(self.folder, exist_ok=True)
        copy = "git ls-files -z | tar --null -T - -cf - | tar xf - -C '%s'" % self.folder
        self._must(["bash", "-c", copy], self.top)
        if not os.path.exists(os.path.join(self.build, "build.ninja")):
            self._must(["cmake", "-S", ".", "-B", "build", "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG="] + self.flags, self.folder)
        self._must(["ninja", "-C", "build", self.target], self.folder)
        self._find_tests()
        status, output = self._run_tests(list(self.tests), ["--parallel", "2"])
        if status != 0:
            raise SystemExit("the tests fail without any mutant:\n" + output[-3000:])

    def _must(self, command, folder):
        status, output = run(command, folder)
        if status != 0:
            raise SystemExit("%s failed:\n%s" % (" ".join(command), output[-3000:]))

    def _find_tests(self):
        command = ["ctest", "--show-only=json-v1"] + (["-L", self.label] if self.label else [])
        listed = json.loads(run(command, self.build)[1])
        for test in listed["tests"]:
            if test["name"] in NOT_TRIED:
                continue
            programs = re.escape(os.path.join(self.build, "bin", "")) + r"([\w.-]+)"
            self.tests[test["name"]] = re.findall(programs, " ".join(test.get("command", [])))

    def _run_tests(self, names, options=()):
        pattern = "^(%s)$" % "|".join(re.escape(name) for name in names)
        return run(["ctest", "--output-on-failure", "--stop-on-failure", "--timeout", str(SECONDS_A_TEST),
                    "-R", pattern] + list(options), self.build, seconds=SECONDS_A_TEST * (2 + len(names)))

    def try_mutant(self, mutant):
        """('killed', by which test), ('unbuildable', '') or ('survived', '')."""
        path = os.path.join(self.folder, mutant.path)
        with open(path, encoding="utf-8") as file:
            source = file.read()
        try:
            with open(path, "w", encoding="utf-8") as file:
                file.write(mutant.apply(source))
            return self._try_tests(mutant)
        finally:
            with open(path, "w", encoding="utf-8") as file:
                file.write(source)

    def _try_tests(self, mutant):
        near, rest = self._affected(mutant)
        for name in near:
            verdict = self._try_some([name])
            if verdict:
                return verdict
        # Most of these wait more than they work, so two at a time.
        return rest and self._try_some(rest, ["--parallel", "2"]) or ("survived", "")

    def _try_some(self, names, options=()):
        """As try_mutant; None when all of them pass."""
        targets = {target for name in names for target in self.tests[name]}
        if any(not self.tests[name] for name in names):
            targets = {self.target}
        if run(["ninja", "-C", "build"] + sorted(targets), self.folder)[0] != 0:
            return "unbuildable", ""
        status, output = self._run_tests(names, options)
        if status == 0:
            return None
        failed = re.findall(r"Test +#\d+: (\S+) .*\*\*\*", output)
        return "killed", failed[0] if failed else names[0]

    def _affected(self, mutant):
        """The tests that are to be linked anew, or that run more than a program: the near ones, nearest
        first, and the others."""
        plan = run(["ninja", "-C", "build", "-n", self.target], self.folder)[1]
        linked = set(re.findall(r"bin/(\w[\w.-]*)", plan))
        if not linked and "no work to do" in plan:
            return [], []
        names = [name for name, targets in self.tests.items() if not targets or linked.intersection(targets)]
        names.sort(key=lambda name: self._distance(name, mutant.path))
        near = [name for name in names if self._distance(name, mutant.path)[0] <= NEAR]
        return near, names[len(near):]

    @staticmethod
    def _distance(name, path):
        stem = os.path.splitext(os.path.basename(path))[0].lstrip("I")
        room = path.split("/")[0]
        if name == stem + "Test":
            return 0, name
        if name == "contract_fresh_reference" and room == "protocol":
            return 0, name
        if name == "wire_test" and room in ("modules", "protocol", "include", "core", "registry"):
            return 1, name
        near = {"core": ("HwTarn", "Events", "TarnManager", "SharedReference"),
                "service": ("TarnService", "TarnClient"), "recovery": ("TarnRecovery", "BridgeRecovery"),
                "host": ("Host", "parcel", "Carrier"), "simulator": ("Simulated", "Board", "board"),
                "tools": ("Tarnctl", "contract_tarnctl"), "include": ("Class", "Slot", "Public"),
                "log": ("TarnLog",), "values": ("Codec", "Value", "Hex", "Utf8")}
        if name.startswith(near.get(room, ())):
            return 2, name
        # What starts programs or looks at the whole tree takes long.
        slow = name.startswith("contract_") or name.endswith(("ProcessTest", "DaemonTest", "_terminals"))
        return (5 if slow else 3), name
