"""A private home for the built program, and the account of what was tried on it and held."""
import dataclasses
import os
import pathlib
import plistlib
import shutil
import signal
import subprocess
import tempfile
import threading
import time

MOVIE = b"movie" * 200


@dataclasses.dataclass
class Ended:
    code: int  # negative: the signal that ended it
    output: str
    errors: str
    peak: int  # KiB
    seconds: float


class World:
    """Folders of its own, gone at the end of the with-block, and so is what was started in it."""

    def __init__(self, tools):
        self.tools = tools
        self.root = pathlib.Path(tempfile.mkdtemp(prefix="kelvo-attack-"))
        self.settings_file = self.root / "config/kelvo-mirror/preferences.plist"
        self.record = self.root / "state/kelvo-mirror/passes.sqlite"
        self.log = self.root / "state/Kelvo/kelvo-mirror.log"
        for name in ("home/.ssh", "config/kelvo-mirror", "state", "run", "cwd", "Camera", "Incoming", "there"):
            (self.root / name).mkdir(parents=True, mode=0o700)
        (self.root / "Camera/a.mov").write_bytes(MOVIE)
        self.running = []

    def __enter__(self):
        return self

    def __exit__(self, *_):
        for process in self.running:
            if process.poll() is None:
                process.kill()
                process.wait()
        shutil.rmtree(self.root, ignore_errors=True)

    def plain(self):
        """Settings of passes from Camera to Incoming."""
        return {"prefRsyncWithSSH": False, "prefPath1": str(self.root / "Camera"),
                "prefPath2": str(self.root / "Incoming"), "prefDelayBetweenScans": 0.1,
                "prefAutoStartScanOnLaunch": True}

    def remote(self):
        """Settings of passes that the stand-in for ssh answers."""
        return self.plain() | {"prefRsyncWithSSH": True, "prefRemoteUsername": "mediauser",
                               "prefRemoteBonjourName": "Remote-Mac.local", "prefRemotePath": "Movies"}

    def write_settings(self, values):
        self.settings_file.write_bytes(plistlib.dumps(values, fmt=plistlib.FMT_BINARY))
        self.settings_file.chmod(0o600)

    def settings(self):
        return plistlib.loads(self.settings_file.read_bytes())

    def environment(self, more=None):
        root = str(self.root)
        return {"PATH": "/usr/bin:/bin", "LC_ALL": "C.UTF-8", "HOME": root + "/home",
                "XDG_CONFIG_HOME": root + "/config", "XDG_STATE_HOME": root + "/state",
                "XDG_RUNTIME_DIR": root + "/run", "TMPDIR": root + "/run", "ATTACK": root} | (more or {})

    def start(self, *arguments, more=None, before=()):
        process = subprocess.Popen([*before, self.tools.program, *arguments], cwd=self.root / "cwd",
                                   env=self.environment(more), stdin=subprocess.DEVNULL,
                                   stdout=open(self.root / "output", "wb"),
                                   stderr=open(self.root / "errors", "wb"))
        self.running.append(process)
        return process

    def run(self, *arguments, more=None, before=(), seconds=60):
        began = time.monotonic()
        process = self.start(*arguments, more=more, before=before)
        cut = threading.Timer(seconds, process.kill)
        cut.start()
        _, status, used = os.wait4(process.pid, 0)
        cut.cancel()
        process.returncode = os.waitstatus_to_exitcode(status)
        return Ended(process.returncode, self.text("output"), self.text("errors"), used.ru_maxrss,
                     time.monotonic() - began)

    def text(self, name):
        return (self.root / name).read_text(encoding="utf-8", errors="replace")

    def wait_for(self, process, condition, seconds=60):
        deadline = time.monotonic() + seconds
        while not condition() and process.poll() is None and time.monotonic() < deadline:
            time.sleep(0.02)
        return condition()

    def end(self, process, number=signal.SIGTERM, seconds=30):
        """The exit code, or None when it had to be ended by force."""
        process.send_signal(number)
        try:
            return process.wait(seconds)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()
            return None


class Account:
    """What was tried in one class, and what fell."""

    def __init__(self):
        self.tried = 0
        self.fallen = []
        self.lock = threading.Lock()

    def add(self, what, fault):
        """`fault` is empty for what held."""
        with self.lock:
            self.tried += 1
            if fault:
                self.fallen.append(f"{what}: {fault}")


class Skipped(Exception):
    """Why a class cannot be tried here."""
