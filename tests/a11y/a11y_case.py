"""What the tests of this folder share: a desktop with the program, worked by keys."""

import os
import subprocess
import sys
import unittest

import desk

PROGRAM = ""


class A11yCase(unittest.TestCase):
    def setUp(self):
        self.desk = desk.Desk(PROGRAM)
        self.addCleanup(self.desk.close)
        for name in ("Camera", "Incoming"):
            os.makedirs(self.desk.path(name))

    def plain(self, **more):
        return {
            "prefAutoStartScanOnLaunch": False,
            "prefRsyncWithSSH": False,
            "prefDelayBetweenScans": 1.0,
            "prefPath1": self.desk.path("Camera"),
            "prefPath2": self.desk.path("Incoming"),
            **more,
        }

    def put_movie(self, name="a.mov"):
        with open(self.desk.path(f"Camera/{name}"), "w", encoding="utf-8") as movie:
            movie.write("movie")

    def tabs(self):
        return [seen.name for seen in self.desk.tree() if seen.role == "page tab"]

    def show_tab(self, name):
        """By its key, from any place in the window."""
        self.desk.keys(f"ctrl+{self.tabs().index(name) + 1}")
        self.desk.wait(
            lambda: self.desk.find(role="page tab list", name=name), f"the tab {name} is shown"
        )

    def focused(self):
        return self.desk.wait(self.desk.focused, "something with the keyboard focus")

    def press(self, key):
        """Presses the key, and returns what the focus comes to."""
        self.desk.look()
        before = len(self.desk.heard.focus)
        self.desk.keys(key)
        # A table tells of its current cell before it tells of itself.
        return self.desk.wait(
            lambda: next((seen for seen in self.desk.heard.focus[before:]
                          if seen.role not in ("table cell", "frame")), None),
            f"{key} brings the focus to something",
        )  # fmt: skip

    def tab_to(self, name):
        """Presses the Tab key until `name` has the focus."""
        passed = [self.focused()]
        while passed[-1].name != name:
            self.assertLess(len(passed), 60, f"the Tab key does not lead to {name!r}: {passed}")
            passed.append(self.press("Tab"))
        return passed[-1]

    def wait_focus(self, name):
        return self.desk.wait(
            lambda: (seen := self.desk.focused()) and seen.name == name,
            lambda: f"the focus on {name!r}; it is on {self.desk.focused()}",
        )

    def wait_sheet(self, title):
        """The sheet or box of this title, with the keyboard in it."""
        self.desk.wait_active(title)
        return self.desk.wait(
            lambda: next((seen for seen in self.desk.tree()
                          if seen.name == title and seen.role in ("dialog", "alert")), None),
            f"the sheet {title!r}",
        )  # fmt: skip

    def close_sheet(self, key, back):
        """Closes the sheet that is open; the focus is to come back to `back`."""
        self.desk.keys(key)
        self.desk.wait(
            lambda: not any(seen.role in ("dialog", "alert") for seen in self.desk.tree()),
            "the sheet closes",
        )
        self.desk.wait_active("Kelvo Mirror")
        self.wait_focus(back)

    def make_key(self):
        """A pair of keys as the program makes it."""
        path = self.desk.path("home/.ssh/id_kelvoRsync")
        os.makedirs(os.path.dirname(path), mode=0o700)
        subprocess.run(["ssh-keygen", "-q", "-t", "ed25519", "-N", "", "-f", path], check=True)
        return path


def main(case):
    """FILE BUILD_FOLDER [CASE…]; exit status 77 when something is missing on this machine."""
    global PROGRAM
    if len(sys.argv) < 2:
        sys.exit(main.__doc__)
    lacking = desk.missing()
    if lacking:
        print("skipped: not installed here: " + ", ".join(lacking))
        sys.exit(77)
    PROGRAM = os.path.join(os.path.abspath(sys.argv[1]), "bin/kelvo-mirror")
    names = [f"{case.__name__}.test_{name}" for name in sys.argv[2:]] or None
    unittest.main(argv=[sys.argv[0]], defaultTest=names, verbosity=2)
