"""A desktop of the test's own: a display, a window manager, a session bus and the bus of the
assistive technologies on it, with the built program between them. Nothing of the machine's own is
used or changed. What a screen reader would read and hear is read and heard here."""

import os
import plistlib
import shutil
import signal
import subprocess
import tempfile
import time

from reader import Heard, Seen

NEEDED = {
    "Xvfb": "xvfb",
    "openbox": "openbox",
    "xdotool": "xdotool",
    "dbus-daemon": "dbus-daemon",
    "rsync": "rsync",
    "/usr/libexec/at-spi-bus-launcher": "at-spi2-core",
}
PATIENCE = 60.0  # seconds for anything to come about; a test that passes does not wait for them


def missing():
    """The packages that are needed and not installed."""
    packages = {package for tool, package in NEEDED.items() if not shutil.which(tool)}
    try:
        import gi

        gi.require_version("Atspi", "2.0")
    except (ImportError, ValueError):
        packages |= {"python3-gi", "gir1.2-atspi-2.0"}
    return sorted(packages)


class Desk:
    """One desktop and one home folder; everything ends with `close`."""

    def __init__(self, program):
        self.program = program
        self.folder = tempfile.mkdtemp(prefix="kelvo-a11y-")
        self.children = []
        self.running = None
        environment = dict(os.environ)
        for name in ("WAYLAND_DISPLAY", "SESSION_MANAGER", "AT_SPI_BUS_ADDRESS", "QT_STYLE_OVERRIDE"):
            environment.pop(name, None)
        for variable, name in (
            ("HOME", "home"),
            ("XDG_CONFIG_HOME", "config"),
            ("XDG_STATE_HOME", "state"),
            ("XDG_CACHE_HOME", "cache"),
            ("XDG_DATA_HOME", "data"),
            ("XDG_RUNTIME_DIR", "run"),
        ):
            os.makedirs(self.path(name), mode=0o700)
            environment[variable] = self.path(name)
        environment.update(
            LC_ALL="C.UTF-8",
            QT_QPA_PLATFORM="xcb",
            GSETTINGS_BACKEND="memory",
            NO_AT_BRIDGE="1",
            ASAN_OPTIONS="detect_leaks=0",
        )
        self.environment = environment
        try:
            self._raise()
        except BaseException:
            self.close()
            raise

    def _raise(self):
        read, write = os.pipe()
        self._child(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", "1280x1024x24", "-nolisten", "tcp",
             "-noreset"],  # Else it begins anew, under those who have just come, when one goes.
            pass_fds=[write],
        )
        os.close(write)
        with os.fdopen(read) as number:
            self.environment["DISPLAY"] = ":" + number.readline().strip()
        bus = self._child(
            ["dbus-daemon", "--session", "--nofork", "--print-address=1"],
            stdout=subprocess.PIPE,
            text=True,
        )
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()
        self.environment["DBUS_SYSTEM_BUS_ADDRESS"] = "unix:path=" + self.path("run/no_system_bus")
        takes_windows = self.path("run/openbox_is_up")
        self._child(["openbox", "--startup", "touch " + takes_windows])
        self._child(["/usr/libexec/at-spi-bus-launcher", "--launch-immediately"])
        # From here on this process is the screen reader on that desktop.
        os.environ.update(self.environment)
        import gi

        gi.require_version("Atspi", "2.0")
        from gi.repository import Atspi, Gio, GLib

        self.Atspi, self.GLib = Atspi, GLib
        session = Gio.bus_get_sync(Gio.BusType.SESSION)

        def switch_on():
            try:
                for name in ("IsEnabled", "ScreenReaderEnabled"):
                    session.call_sync(
                        "org.a11y.Bus",
                        "/org/a11y/bus",
                        "org.freedesktop.DBus.Properties",
                        "Set",
                        GLib.Variant("(ssv)", ("org.a11y.Status", name, GLib.Variant("b", True))),
                        None,
                        Gio.DBusCallFlags.NONE,
                        5000,
                        None,
                    )
                return True
            except GLib.Error:
                return False

        self.wait(switch_on, "the bus of the assistive technologies")
        self.wait(lambda: os.path.exists(takes_windows), "the window manager")
        Atspi.init()
        self.heard = Heard(self)

    def _child(self, command, **more):
        child = subprocess.Popen(
            command,
            env=self.environment,
            stdin=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
            **{"stdout": subprocess.DEVNULL, **more},
        )
        self.children.append(child)
        return child

    def close(self):
        self.stop()
        for child in reversed(self.children):
            child.terminate()
        for child in self.children:
            try:
                child.wait(10)
            except subprocess.TimeoutExpired:
                child.kill()
                child.wait()
        shutil.rmtree(self.folder, ignore_errors=True)

    def path(self, name):
        return os.path.join(self.folder, name)

    def xdotool(self, *arguments):
        return subprocess.run(
            ["xdotool", *arguments],
            env=self.environment,
            stdout=subprocess.PIPE,
            stderr=subprocess.DEVNULL,
            text=True,
            check=False,
        ).stdout

    # -- waiting

    def look(self):
        """Takes in what has come on the bus."""
        context = self.GLib.MainContext.default()
        while context.iteration(False):
            pass

    def wait(self, condition, what, patience=PATIENCE):
        """The first value of `condition` that counts as true; fails with `what` when none comes."""
        end = time.monotonic() + patience
        while True:
            if hasattr(self, "heard"):
                self.look()
            value = condition()
            if value:
                return value
            if time.monotonic() > end:
                raise AssertionError(f"not in time: {what() if callable(what) else what}")
            time.sleep(0.02)

    # -- the program

    def start(self, settings, *arguments):
        """Starts the program with these settings and waits for its window."""
        folder = self.path("config/kelvo-mirror")
        os.makedirs(folder, exist_ok=True)
        with open(os.path.join(folder, "preferences.plist"), "wb") as file:
            plistlib.dump(settings, file)
        self.output = open(self.path("output"), "w+b")
        self.running = subprocess.Popen(
            [self.program, *arguments],
            env=self.environment,
            stdin=subprocess.DEVNULL,
            stdout=self.output,
            stderr=subprocess.STDOUT,
        )
        self.wait(lambda: self.find(role="frame", name="Kelvo Mirror"), "the window on the bus")
        self.wait_active("Kelvo Mirror")
        # The start goes on for a while and gives the start button its title.
        self.wait(
            lambda: any("great got self.fKelvoSSID..." in line for line in self.lines()),
            "the end of the start",
            2 * PATIENCE,
        )

    def wait_active(self, title):
        """Waits until the window of this title has the keyboard."""
        ours = " — Kelvo Mirror"  # stands behind titles that do not name the program

        def is_active():
            return self.xdotool("getactivewindow", "getwindowname").strip().removesuffix(ours) == title

        self.wait(is_active, f"a window {title!r} with the keyboard")

    def lines(self):
        with open(self.path("output"), encoding="utf-8", errors="replace") as file:
            return file.read().splitlines()

    def stop(self):
        """Ends the program in order and returns its exit code."""
        if not self.running:
            return None
        if self.running.poll() is None:
            self.running.send_signal(signal.SIGTERM)
        try:
            code = self.running.wait(20)
        except subprocess.TimeoutExpired:
            self.running.kill()
            code = self.running.wait()
        self.running = None
        self.output.close()
        return code

    def keys(self, *names):
        self.xdotool("key", "--delay", "40", *names)

    def type(self, text):
        self.xdotool("type", "--delay", "20", text)

    # -- the tree

    def application(self):
        """The program on the bus; none while it is not there."""
        desktop = self.Atspi.get_desktop(0)
        for i in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(i)
            if child and self.running and child.get_process_id() == self.running.pid:
                return child
        return None

    def tree(self, root=None, showing=True):
        """Every object below `root`, parents first; only what can be seen, unless asked."""
        root = root or self.application()
        found = []
        if root is None:
            return found
        root.clear_cache()

        def walk(node):
            for i in range(node.get_child_count()):
                child = node.get_child_at_index(i)
                if child is None:
                    continue
                try:
                    seen = Seen(child, self.Atspi)
                except self.GLib.Error:
                    continue  # It went while it was looked at.
                # A folded menu is not seen, but what is in it is.
                if not showing or seen.showing or seen.role in ("menu", "menu bar"):
                    found.append(seen)
                    walk(child)

        walk(root)
        return found

    def find(self, role=None, name=None, showing=True):
        """The first object of this role and with this name; none when there is none."""
        for seen in self.tree(showing=showing):
            if (role is None or seen.role == role) and (name is None or seen.name == name):
                return seen
        return None

    def focused(self):
        """What has the keyboard focus."""
        holders = [seen for seen in self.tree() if seen.focused]
        # The chosen tab calls itself focused even where its bar is not.
        if not any(seen.role == "page tab list" for seen in holders):
            holders = [seen for seen in holders if seen.role != "page tab"]
        # A current cell does, too, where its table is not.
        if any(seen.role != "table cell" for seen in holders):
            holders = [seen for seen in holders if seen.role != "table cell"]
        return next(
            (seen for seen in holders if seen.role not in ("frame", "dialog", "page tab list")), None
        )
