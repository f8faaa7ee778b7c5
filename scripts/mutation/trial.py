"""Tries a changed program: its tests, the nearest first, in a sandbox, until one fails."""
import hashlib
import json
import os
import re
import subprocess
import threading
from pathlib import Path

from .workshop import CHILDREN, Fault

MOST_MEMORY = 6 << 30
MOST_OF_A_FILE = 256 << 20
MOST_BY_TURNS = 3


def sandboxed(workshop, programs, command, output: Path, limit: float):
    """Runs a command where it can harm nothing: processes, network, /tmp, /run and the home folder
    are its own, everything else is read-only. Returns its exit status, or None at the limit."""
    words = ["prlimit", f"--as={MOST_MEMORY}", f"--fsize={MOST_OF_A_FILE}", "--core=0",
             "bwrap", "--ro-bind", "/", "/", "--dev", "/dev", "--proc", "/proc"]
    home = os.path.expanduser("~")
    for own in ("/tmp", "/run", "/var/tmp", home):
        if os.path.isdir(own):
            words += ["--perms", "0700" if own == home else "1777", "--tmpfs", own]
    words += ["--ro-bind", str(workshop.tree), str(workshop.tree)]
    for place, program in programs.items():
        words += ["--ro-bind", str(program), place]
    words += ["--unshare-ipc", "--unshare-pid", "--unshare-net", "--unshare-uts",
              "--die-with-parent", "--new-session", "--clearenv",
              "--setenv", "PATH", "/usr/sbin:/usr/bin:/sbin:/bin", "--setenv", "LC_ALL", "C.UTF-8",
              "--setenv", "HOME", "/tmp", "--setenv", "TMPDIR", "/tmp",
              "--chdir", str(workshop.build)]
    # Tests that become another user need one to be there, which root's own namespace of users lacks.
    words += ["--cap-add", "ALL"] if os.geteuid() == 0 else ["--unshare-user"]
    reading, writing = os.pipe()
    # What is written here says that the sandbox stood before the test program began.
    words += ["bash", "-c", f'echo >&{writing}; exec {writing}>&-; exec "$@"', "bash", *command]
    with open(output, "wb") as file:
        process = subprocess.Popen(words, stdin=subprocess.DEVNULL, stdout=file, stderr=file,
                                   pass_fds=(writing,), start_new_session=True)
        os.close(writing)
        try:
            status = process.wait(limit)
        except subprocess.TimeoutExpired:
            status = None
        finally:
            process.kill()  # its namespace of processes ends with it
            process.wait()
    with open(reading, "rb") as pipe:
        stood = pipe.read(1)
    if not stood and status is not None:
        raise Fault("the sandbox does not stand:\n" + output.read_text(errors="replace")[-2000:])
    return status


class Results:
    """What a test program said of each test, by name."""

    def __init__(self, output: Path):
        with open(output, "rb") as file:
            file.seek(max(0, file.seek(0, os.SEEK_END) - (4 << 20)))
            text = file.read().decode("utf-8", "replace")
        self.began = re.findall(r"^\[ RUN +\] (\S+)", text, re.M)
        self.passed = {name: int(ms) / 1000 for name, ms in
                       re.findall(r"\[ +OK \] (\S+) \((\d+) ms\)", text)}
        self.failed = re.findall(r"\[ +FAILED +\] (\S+?),? .*\(\d+ ms\)", text)
        self.skipped = re.findall(r"\[ +SKIPPED \] (\S+) \(", text)

    def culprit(self):
        """The test that failed, or in which the program ended."""
        if self.failed:
            return self.failed[0]
        done = self.passed.keys() | set(self.skipped)
        return self.began[-1] if self.began and self.began[-1] not in done else None


class Suite:
    """One test program: its tests with their files and the seconds that each takes."""

    def __init__(self, workshop, name):
        self.workshop, self.name, self.target = workshop, name, f"{name}_tests"
        self.program = workshop.build / workshop.links[self.target][1]
        listing = workshop.home / f"{name}.json"
        subprocess.run([self.program, "--gtest_list_tests", f"--gtest_output=json:{listing}"],
                       check=True, stdout=subprocess.DEVNULL)
        self.files = {}
        for suite in json.loads(listing.read_text())["testsuites"]:
            for test in suite["testsuite"]:
                path = os.path.relpath(os.path.join(workshop.build, test["file"]), workshop.tree)
                self.files[f"{suite['name']}.{test['name']}"] = path
        self.seconds, self.left_out = {}, []

    def measure(self, programs):
        """Runs everything unchanged; what does not pass twice is left out."""
        digest = hashlib.sha256(self.program.read_bytes())
        for child in CHILDREN:
            if child in self.workshop.links:
                digest.update((self.workshop.build / self.workshop.links[child][1]).read_bytes())
        kept = self.workshop.home / f"{self.name}-{digest.hexdigest()[:16]}.measured.json"
        if kept.exists():
            self.seconds, self.left_out = json.loads(kept.read_text())
            return
        output = self.workshop.home / f"{self.name}.out"
        waiting, again = list(self.files), []
        while waiting:
            status = sandboxed(self.workshop, programs, self.command(waiting), output, 1800)
            results = Results(output)
            self.seconds.update(results.passed)
            done = results.passed.keys() | set(results.skipped) | set(results.failed)
            again += results.failed
            self.left_out += results.skipped
            if status not in (0, 1) and results.culprit() not in done:
                again.append(results.culprit())
                done |= {results.culprit()}
            if not done & set(waiting):
                raise Fault(f"{self.target} cannot run: status {status}, {output}")
            waiting = [t for t in waiting if t not in done]
        for test in again:
            if sandboxed(self.workshop, programs, self.command([test]), output, 300) == 0:
                self.seconds.update(Results(output).passed)
            else:
                self.left_out.append(test)
        kept.write_text(json.dumps([self.seconds, self.left_out]))

    def command(self, tests, fail_fast=False):
        return ([str(self.program), "--gtest_color=no", "--gtest_filter=" + ":".join(tests)]
                + (["--gtest_fail_fast"] if fail_fast else []))


class Trial:
    def __init__(self, workshop, suites):
        self.workshop, self.suites = workshop, suites
        self.flaky, self.lock, self.steps = set(), threading.Lock(), {}

    def stages(self, name, programs):
        """The tests that could tell, nearest first, as (suite, tests)."""
        with self.lock:
            if name not in self.steps:
                self.steps[name] = self.workshop.nearness(name), self.workshop.starters(name)
        (steps, starters), near, far = self.steps[name], [], []
        with_children = bool({self.workshop.build / self.workshop.links[c][1] for c in CHILDREN
                              if c in self.workshop.links} & {Path(p) for p in programs})
        for suite in self.suites:
            if str(suite.program) not in programs and not (
                    with_children and suite.name == "contract"):
                continue
            reached = {t: steps[suite.files[t]] for t in suite.seconds if suite.files[t] in steps}
            # Contract tests take real time: those far off are for what has none nearer. A test that
            # starts a child sees little of what is in it, so it stands in for no other.
            if suite.name == "contract":
                most = max(3, min(reached.values(), default=0) + 1)
                reached = {t: n for t, n in reached.items() if n <= most}
                reached |= {t: reached.get(t, 2) for t in suite.seconds if suite.files[t] in starters}
            for stage, wanted in ((near, lambda n: n <= 1), (far, lambda n: n > 1)):
                tests = [t for t, n in reached.items() if wanted(n)]
                if tests:
                    stage.append((suite, tests))
        return near + far

    def killer(self, name, programs, folder: Path):
        """The suite that noticed the change, or None."""
        alone = set()
        killer = self._killer(name, programs, folder / "output", alone)
        if len(alone) < MOST_BY_TURNS:
            with self.lock:
                self.flaky |= alone
        return killer

    def _killer(self, name, programs, output: Path, alone):
        """`alone` receives the tests that failed among others and passed by themselves."""
        for suite, tests in self.stages(name, programs):
            slow = False
            while tests:
                limit = 10 + 4 * sum(suite.seconds[t] for t in tests)
                status = sandboxed(self.workshop, programs, suite.command(tests, True), output,
                                   limit)
                if status == 0:
                    break
                culprit = Results(output).culprit()
                if status is None:
                    if slow:
                        return f"{suite.name}, time-out"
                    slow = True  # the machine may have been
                    continue
                if culprit is None:
                    return suite.name
                # Once may be chance, on a busy machine above all.
                limit = 10 + 4 * suite.seconds.get(culprit, 1)
                if sandboxed(self.workshop, programs, suite.command([culprit]), output, limit) != 0:
                    return suite.name
                alone.add(culprit)
                if len(alone) == MOST_BY_TURNS:
                    return f"{suite.name}, by turns"
                tests = [t for t in tests if t != culprit]
        return None
