"""Where mutants are made and tried: a copy of the tree with a build of its own, and a sandbox.

The copy is never changed either. A mutant's one object file lies in its worker's folder and is linked
before the libraries; its programs are laid over the copy's own in the sandbox of that one run.
"""
import fcntl
import hashlib
import json
import os
import re
import shlex
import subprocess
from collections import deque
from concurrent.futures import ProcessPoolExecutor
from pathlib import Path

from . import mutants

SUITES = ("unit", "contract", "ui")
# What contract tests start.
CHILDREN = ("kelvo_sentinel", "network_watcher", "record_writer", "settings_writer")


class Fault(RuntimeError):
    """The command cannot do its work; nothing is said about any mutant."""


def run(command, **options):
    done = subprocess.run(command, capture_output=True, text=True, errors="replace", **options)
    if done.returncode != 0:
        raise Fault(f"{shlex.join(map(str, command))}\n{(done.stdout + done.stderr)[-4000:]}")
    return done.stdout


class Workshop:
    def __init__(self, root: Path):
        self.root = root
        self.home = root / "build" / "mutate"
        self.tree = self.home / "tree"
        self.build = self.tree / "build" / "base"  # as deep as any build tree: ccache can help

    # -- the copy and its build

    def take(self):
        """For one run at a time; given back when the program ends."""
        self.home.mkdir(parents=True, exist_ok=True)
        lock = os.open(self.home / "lock", os.O_RDWR | os.O_CREAT | os.O_CLOEXEC)
        try:
            fcntl.flock(lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
        except BlockingIOError:
            raise Fault("another run is under way in this tree") from None

    def prepare(self, suites):
        self.tree.mkdir(parents=True, exist_ok=True)
        run(["rsync", "-a", "--delete", "--exclude", "/build", "--exclude", "/.git",
             f"{self.root}/", f"{self.tree}/"])
        flags = os.environ.get("CXXFLAGS", "-O0 -w")
        run(["cmake", "-S", self.tree, "-B", self.build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=None",
             f"-DCMAKE_CXX_FLAGS={flags}", "-DKELVO_BENCH=OFF", "-DCMAKE_EXPORT_COMPILE_COMMANDS=ON",
             "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld", "-DCMAKE_MODULE_LINKER_FLAGS=-fuse-ld=lld"])
        known = set(re.findall(r"^([^:\n]+): ", run(["ninja", "-C", self.build, "-t", "targets",
                                                    "all"]), re.M))
        wanted = [f"{s}_tests" for s in SUITES if s in suites]
        wanted += CHILDREN if "contract" in suites else ()
        self.targets = [t for t in wanted if t in known]
        run(["cmake", "--build", self.build, "--target", *self.targets])
        with open(self.build / "compile_commands.json") as file:
            entries = json.load(file)
        self.entries = {os.path.relpath(e["file"], self.tree): e for e in entries}
        self.links = {target: self._link(target) for target in self.targets}
        self.members = {target: self._members(target) for target in self.targets}
        self.includes = self._includes()

    def _link(self, target):
        """The command that links it, and the program's path below the build."""
        last = run(["ninja", "-C", self.build, "-t", "commands", target]).strip().splitlines()[-1]
        if last.endswith("&& :"):
            last = last.removeprefix(": &&").removesuffix("&& :")
        words = shlex.split(last)
        return words, words[words.index("-o") + 1]

    def _members(self, target):
        """The object files in the program, those out of libraries as library(object)."""
        words, program = self.links[target]
        words = list(words)
        words[words.index("-o") + 1] = str(self.home / "trace")
        text = run(words + ["-Wl,--trace"], cwd=self.build)
        return {line.strip() for line in text.splitlines()}

    # -- which programs and which test files see a source

    def _object_names(self, name):
        command = shlex.split(self.entries[name]["command"])
        path = command[command.index("-o") + 1]
        return path, os.path.basename(path)

    def programs_with(self, name):
        path, base = self._object_names(name)
        library = "_".join(Path(name).parent.parts[1:])
        member = re.compile(rf"(^|/)libkelvo_{re.escape(library)}\.a\({re.escape(base)}\b")
        return [t for t in self.targets
                if any(m == path or member.search(m) for m in self.members[t])]

    def _includes(self):
        found = {}
        for folder in ("src", "tests"):
            for path in sorted((self.tree / folder).rglob("*")):
                if path.suffix in (".cpp", ".h"):
                    name = str(path.relative_to(self.tree))
                    quoted = re.findall(r'^#include "([^"]+)"', path.read_text(errors="replace"), re.M)
                    # Through a form's header come those of the widgets of our own in the form.
                    forms = [path.with_name(q[3:-2] + ".ui") for q in quoted if q.startswith("ui_")]
                    for form in filter(Path.exists, forms):
                        quoted += re.findall(r"<header>([^<]+)</header>", form.read_text())
                    found[name] = {f"{folder}/{q}" for q in quoted for folder in ("src", "tests")}
        return found

    def _headers_of(self, source):
        """Its own; a source without one carries out those of its folder that it includes."""
        own = str(Path(source).with_suffix(".h"))
        beside = {h for h in self.includes[source] if Path(h).parent == Path(source).parent}
        return {own} if own in self.includes else beside & self.includes.keys()

    def nearness(self, name):
        """How many steps each test file is away: 0 for a file's own test, 1 where its header is
        included, 2 where a part that uses it is. Files that are not there have no way to it."""
        users = {}
        for user, used in self.includes.items():
            for header in used & self.includes.keys():
                users.setdefault(header, set()).add(user)
        stem = Path(name).stem
        steps, queue = {name: 0}, deque([(0, name)])
        while queue:
            count, current = queue.popleft()
            if count > steps[current]:
                continue
            # Whoever uses a source's header uses the source.
            used = self._headers_of(current) if current.startswith("src/") else {current}
            # What tests share is no part of the program: its tests stand where it stands.
            shared = current.startswith("tests/")
            for user in set().union(*(users.get(header, set()) for header in used)):
                if count + (not shared) < steps.get(user, count + 2):
                    steps[user] = count + (not shared)
                    (queue.appendleft if shared else queue.append)((steps[user], user))
        # Cases may stand in a header that test files share.
        tests = {f: n for f, n in steps.items() if f.startswith("tests/")}
        return {f: 0 if f.endswith(".cpp") and Path(f).stem.startswith(stem) else n
                for f, n in tests.items()}

    def starters(self, name):
        """The test files that start a child which holds the source, however far the source is."""
        macros = ["KELVO_" + child.upper().removeprefix("KELVO_")
                  for child in set(self.programs_with(name)) & set(CHILDREN)]
        return {file for file in self.includes if file.startswith("tests/")
                and any(macro in (self.tree / file).read_text() for macro in macros)}

    # -- mutants

    def mutants_of(self, name):
        path = self.tree / name
        key = hashlib.sha256(path.read_bytes() + Path(mutants.__file__).read_bytes()).hexdigest()
        kept = self.home / "mutants" / f"{key}.json"
        if kept.exists():
            return [mutants.Mutant(**{**m, "text": m["text"].encode()})
                    for m in json.loads(kept.read_text())]
        words, arguments = shlex.split(self.entries[name]["command"]), ["-w"]
        for word, following in zip(words, words[1:] + [""]):
            if word in ("-I", "-isystem", "-D"):
                arguments += [word, following]
            elif word.startswith(("-I", "-D", "-std=", "-isystem")):
                arguments.append(word)
        found = mutants.mutants_of(str(path), name, arguments)
        kept.parent.mkdir(exist_ok=True)
        kept.write_text(json.dumps([{**m.__dict__, "text": m.text.decode()} for m in found]))
        return found

    def mutants_of_all(self, names, jobs):
        with ProcessPoolExecutor(jobs) as pool:
            return list(pool.map(self.mutants_of, names))

    def make(self, name, source: bytes, folder: Path):
        """Compiles the changed source and links what holds it: program path -> the new file, or
        nothing where it does not compile."""
        folder.mkdir(parents=True, exist_ok=True)
        changed, made = folder / Path(name).name, folder / "mutant.o"
        changed.write_bytes(source)
        entry = self.entries[name]
        words = shlex.split(entry["command"])
        if os.path.basename(words[0]) == "ccache":
            words = words[1:]
        words = [w for w in words if w != "-Werror" and w != entry["file"]]
        words[words.index("-o") + 1] = str(made)
        words[words.index("-c") + 1:words.index("-c") + 1] = [str(changed)]
        # What stands beside the source is found by its own name too.
        words += ["-w", "-iquote", str((self.tree / name).parent)]
        if not self._builds(words):
            return {}
        path, _ = self._object_names(name)
        programs = {}
        for target in self.programs_with(name):
            words, program = list(self.links[target][0]), self.links[target][1]
            out = folder / target
            words[words.index("-o") + 1] = str(out)
            if path in words:
                words[words.index(path)] = str(made)
            else:
                words.insert(words.index("-o"), str(made))
            if not self._builds(words):
                return {}
            programs[str(self.build / program)] = out
        return programs

    def _builds(self, words):
        # In a session of its own: Ctrl-C lets what is under way come to its end.
        return subprocess.run(words, cwd=self.build, stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL, start_new_session=True).returncode == 0
