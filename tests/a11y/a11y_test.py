#!/usr/bin/python3
"""The built program as a person knows it who does not see it: what is in the tree of the assistive
technologies, what is spoken of its own accord, and what the keyboard alone can do.

a11y_test.py BUILD_FOLDER [CASE…]; exit status 77 when something is missing on this machine."""

import os
import subprocess
import sys
import unittest
import xml.etree.ElementTree

import desk

WIDGETS = os.path.join(os.path.dirname(__file__), "../../src/ui/widgets")
SETTABLE = {"push button", "toggle button", "check box", "radio button", "combo box", "text",
            "spin button", "table", "tree", "tree table"}  # fmt: skip
PROGRAM = ""


def words(text):
    """As a person reads them: without the signs for keys, and for a dialog to come."""
    return text.replace("&", "").replace("…", "").strip()


def texts_of(form):
    """What stands on the labels, buttons and boxes of a form of the program's."""
    root = xml.etree.ElementTree.parse(os.path.join(WIDGETS, form))
    found = set()
    for widget in root.iter("widget"):
        for kind in ("text", "title"):
            text = widget.find(f"property[@name='{kind}']/string")
            if text is not None and text.text and words(text.text):
                found.add(words(text.text))
    return found


class A11yTest(unittest.TestCase):
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

    # -- the tree

    def test_EveryTab_HasEachTextOfItsForms(self):
        self.put_movie()
        self.desk.start(self.plain())
        self.desk.keys("space")
        self.desk.heard.wait("The pass went well: 1 file.")
        spoken = set()
        forms = {"sync_tab.ui", "remote_tab.ui", "settings_tab.ui", "activity_tab.ui",
                 "arrivals_view.ui", "passes_view.ui"}  # fmt: skip
        for tab in self.tabs():
            self.show_tab(tab)
            if tab == "Diagnostics":
                forms.add("diagnostics_tab.ui")
            for seen in self.desk.tree(showing=False):
                spoken.add(words(seen.words()))
            for seen in self.desk.tree():
                if seen.role in SETTABLE and seen.focusable:
                    self.assertTrue(seen.name, f"{tab}: a nameless {seen.role}")
                self.assertNotEqual((tab, seen.role, seen.name), (tab, "frame", ""))
        for form in sorted(forms):
            # The start button's title stands for what it does at the time.
            for text in texts_of(form) - {"Start rsync"}:
                self.assertTrue(
                    any(text in one for one in spoken), f"{form}: {text!r} is not in the tree"
                )

    def test_SyncTab_SpeaksWhatIsShown(self):
        self.put_movie()
        self.desk.start(self.plain())
        came = [(seen.role, seen.name) for seen in self.desk.heard.focus[:2]]
        self.assertEqual(came, [("frame", "Kelvo Mirror"), ("push button", "Start rsync")])
        start = self.focused()
        self.assertEqual((start.role, start.name), ("push button", "Start rsync with afp path"))
        self.desk.keys("space")
        self.desk.heard.wait("The pass went well: 1 file.")
        self.desk.wait(lambda: self.desk.find(name="a.mov"), "the movie among the arrivals")
        spoken = [seen.name for seen in self.desk.tree()]
        for text in ("From", "Camera", "To", "Incoming", "All is well.", "click to stop rsync",
                     "Arrived", "a.mov", "5 bytes"):  # fmt: skip
            self.assertIn(text, spoken)
        self.assertTrue(any(text.startswith("Last success: ") for text in spoken), spoken)
        self.assertTrue(any("network" in text for text in spoken), spoken)
        self.assertEqual(self.focused().name, "click to stop rsync", "the focus stayed")

    def test_Menus_OpenAndNameEachEntry(self):
        self.desk.start(self.plain())
        before = self.focused().name
        menus = [seen for seen in self.desk.tree() if seen.role == "menu item"
                 and seen.node.get_parent().get_role_name() == "menu bar"]  # fmt: skip
        self.assertGreaterEqual(len(menus), 5)
        for menu in menus:
            key = self.desk.Atspi.Action.get_key_binding(menu.node, 0)
            self.assertRegex(key, r"^Alt\+.$", menu.name)
            self.desk.keys(key.lower())
            entries = self.desk.wait(lambda: self.entries_of(menu.name), f"the menu {menu.name}")
            for entry in entries:
                self.assertTrue(entry.name, f"{menu.name}: {entries}")
            self.desk.keys("Escape")
            self.desk.wait(lambda: not self.entries_of(menu.name), f"{menu.name} closes")
            self.desk.keys("Escape")
            self.wait_focus(before)

    def entries_of(self, menu):
        """The entries of the menu that is open; none while it is not."""
        for seen in self.desk.tree(showing=False):
            if seen.role == "menu item" and seen.name == menu:
                entries = self.desk.tree(seen.node, showing=False)
                if any(entry.showing for entry in entries):
                    return [entry for entry in entries if entry.role not in ("separator", "popup menu")]
        return []

    # -- the keyboard

    def test_TabKey_ComesRoundOnEachTab(self):
        self.desk.start(self.plain(prefRsyncWithSSH=True, showDiagnostics=True, advancedShown=True))
        tabs = self.tabs()
        self.assertEqual(len(tabs), 5)
        for tab in tabs:
            self.show_tab(tab)
            walked = [self.press("Tab")]
            while (seen := self.press("Tab")).words() != walked[0].words():
                walked.append(seen)
                self.assertLess(len(walked), 60, f"{tab}: {walked}")
            passed = [(seen.role, seen.name) for seen in walked]
            self.assertIn(("page tab list", tab), passed)
            self.assertEqual(len(set(passed)), len(passed), f"{tab}: {passed}")
            for seen in self.desk.tree():
                if seen.role in SETTABLE and seen.focusable and seen.enabled:
                    # Of radio buttons that exclude each other the chosen one is passed.
                    if seen.role != "radio button" or seen.checked:
                        self.assertIn((seen.role, seen.name), passed, tab)
            back = self.press("shift+Tab")
            self.assertEqual(back.words(), walked[-1].words(), f"{tab}: back again")

    def test_Sheets_GiveTheFocusBack(self):
        key = self.make_key()
        with open(key, encoding="ascii") as file:
            before = file.read()
        self.desk.start(self.plain(prefRsyncWithSSH=True))
        self.show_tab("Remote Mac")
        self.tab_to("Choose the remote Mac")
        self.desk.keys("Return")
        self.wait_sheet("Choose the Remote Mac")
        why = self.desk.heard.wait("Discovery is not ")
        self.assertTrue(self.desk.find(role="label", name=why), "it stands there, too")
        self.close_sheet("Escape", "Choose the remote Mac")
        self.tab_to("Make a New Key")
        self.desk.keys("Return")
        self.wait_sheet("Make a new key?")
        self.wait_focus("Keep the Key")
        self.close_sheet("Return", "Make a New Key")
        with open(key, encoding="ascii") as file:
            self.assertEqual(file.read(), before)

    def test_AboutBox_IsReadAndGivesTheFocusBack(self):
        self.desk.start(self.plain())
        before = self.focused().name
        self.desk.keys("alt+h")
        self.desk.wait(lambda: self.entries_of("Help"), "the menu")
        self.desk.keys("a")
        box = self.wait_sheet("About Kelvo Mirror")
        texts = [seen.name for seen in self.desk.tree(box.node)]
        self.assertTrue(any(text.startswith("Kelvo Mirror ") for text in texts), texts)
        self.assertIn("Keeps a local folder supplied with movie files from a remote Mac.", texts)
        self.close_sheet("Return", before)

    def test_KeyboardAlone_SetsUpAndPulls(self):
        self.put_movie()
        self.desk.start({"prefDelayBetweenScans": 1.0})
        self.show_tab("Settings")
        self.tab_to("Pull from the remote Mac over ssh")
        self.desk.keys("Down", "space")
        self.show_tab("Sync")
        for button, folder in (
            ("Choose the source folder", "Camera"),
            ("Choose the destination folder", "Incoming"),
        ):
            self.tab_to(button)
            self.desk.keys("Return")
            self.desk.wait(lambda: self.desk.find(role="dialog"), "the dialog")
            self.desk.wait(lambda: self.focused().role == "text", "a field for the path")
            self.desk.type(self.desk.path(folder))
            self.desk.keys("Return")
            self.desk.wait(lambda: not self.desk.find(role="dialog"), "the dialog closes")
            self.desk.wait_active("Kelvo Mirror")
            self.wait_focus(button)
        self.tab_to("click to start rsync")
        self.desk.keys("space")
        self.desk.heard.wait("The pass went well: 1 file.")
        self.assertTrue(os.path.exists(self.desk.path("Incoming/a.mov")))
        self.wait_focus("click to stop rsync")
        self.desk.keys("space")
        self.wait_focus("click to restart rsync")
        self.desk.keys("ctrl+q")
        self.desk.wait(lambda: self.desk.running.poll() is not None, "the program's end")
        self.assertEqual(self.desk.stop(), 0)

    def test_FieldThatIsDone_PassesTheFocusOn(self):
        self.desk.start(self.plain(prefRsyncWithSSH=True))
        self.show_tab("Remote Mac")
        self.tab_to("User name")
        self.desk.type("ann")
        self.desk.keys("Return")
        seen = self.desk.wait(
            lambda: (now := self.desk.focused()) and now.name != "User name" and now,
            "the field gives up the focus to another",
        )
        self.assertNotEqual(seen.role, "page tab")

    # -- what is spoken

    def test_Trouble_IsSpokenOnceWithItsCause(self):
        # Nobody listens for ssh where the name leads to.
        self.desk.start(
            self.plain(
                prefRsyncWithSSH=True,
                prefRemoteBonjourName="127.0.0.1",
                prefRemoteUsername="ann",
                prefRemotePath="Movies",
                prefSampleRemoteFullPath="ann@127.0.0.1:Movies",
            )
        )
        self.desk.keys("space")
        self.desk.heard.wait("Trying to rsync From Destination to Source...")
        trouble = self.desk.heard.wait("since ")
        self.assertTrue(self.desk.find(role="label", name=trouble), "it stands there, too")
        self.desk.heard.wait("something went wrong - waiting to retry again...")
        self.desk.wait(
            lambda: any("[2]" in seen.name for seen in self.desk.tree()), "a second failure"
        )
        self.assertEqual(sum("since " in text for text in self.desk.heard.texts), 1)
        self.assertEqual(sum("went wrong" in text for text in self.desk.heard.texts), 1)
        # The status text can be reached and read again, whatever it says by then.
        passed = []
        while not any(seen.description == "What the program is doing" for seen in passed):
            self.assertLess(len(passed), 20, passed)
            self.desk.keys("Tab")
            passed.append(self.focused())

    def test_TroubleOfTheRecord_IsSpokenAtTheStartAndItsEnd(self):
        settings = self.plain(prefDelayBetweenScans=60.0)
        os.rename(self.desk.path("Camera"), self.desk.path("Away"))
        self.desk.start(settings)
        self.desk.keys("space")
        trouble = self.desk.heard.wait("since ")
        self.assertEqual(self.desk.stop(), 0)
        os.rename(self.desk.path("Away"), self.desk.path("Camera"))
        self.desk.heard.forget()
        self.desk.start(settings)
        again = self.desk.heard.wait("since ")
        self.assertEqual(again.split(" since ")[0], trouble.split(" since ")[0])
        self.assertEqual(self.focused().role, "push button")
        self.desk.keys("space")
        self.desk.heard.wait("All is well.")
        # Nothing is new, but it was asked for.
        self.desk.heard.wait("The pass went well: nothing new.")
        self.desk.heard.forget()
        self.put_movie()
        self.desk.wait(self.may_sync_now, "the rest after the pass")
        self.desk.keys("ctrl+r")
        self.desk.heard.wait("The pass went well: 1 file.")
        self.assertEqual(self.desk.heard.texts, ["The pass went well: 1 file."], "all else is known")

    def may_sync_now(self):
        button = self.desk.find(role="push button", name="Sync Now")
        return button and button.enabled

    def test_ConnectionTest_SpeaksItsVerdictThenItsAlert(self):
        self.make_key()
        self.desk.start(
            self.plain(
                prefRsyncWithSSH=True,
                prefRemoteBonjourName="127.0.0.1",
                prefRemoteUsername="ann",
                prefRemotePath="Movies",
            )
        )
        self.show_tab("Remote Mac")
        self.tab_to("Test Connection")
        for _ in range(2):
            self.desk.heard.forget()
            self.desk.keys("Return")
            self.desk.heard.wait("Asking the remote Mac…")
            verdict = self.desk.heard.wait("Remote Login")
            alert = self.wait_sheet("SUCCESS...")
            texts = [seen.name for seen in self.desk.tree(alert.node)]
            self.assertIn("remote seem to be alive?...", texts)
            self.close_sheet("Return", "Test Connection")
            self.assertTrue(self.desk.find(role="label", name=verdict), "it stands there, too")
            self.assertEqual(self.desk.heard.texts.count(verdict), 1)

    def test_NewKey_IsHeardFromBeginningToEnd(self):
        os.makedirs(self.desk.path("home/.ssh"), mode=0o700)
        self.desk.start(self.plain(prefRsyncWithSSH=True))
        self.show_tab("Remote Mac")
        self.tab_to("Make a New Key")
        self.desk.heard.forget()
        self.desk.keys("Return")
        self.desk.heard.wait("Making a new key…")
        self.desk.heard.wait("Finished.")
        self.assertTrue(os.path.exists(self.desk.path("home/.ssh/id_kelvoRsync.pub")))
        self.desk.heard.wait("Key made.")
        self.wait_focus("Make a New Key")

    def test_TemplateTrouble_IsSpokenWhenItComes(self):
        self.desk.start(self.plain(prefRsyncWithSSH=True))
        self.show_tab("Settings")
        self.tab_to("Advanced")
        self.desk.keys("space")
        self.tab_to("Command template")
        self.desk.keys("ctrl+a")
        self.desk.type("rsync %@98 %@99 %@1")
        said = "The template lacks %@2, the destination"
        count = lambda: sum(text.startswith(said) for text in self.desk.heard.texts)  # noqa: E731
        self.desk.wait(lambda: count() == 1, lambda: f"it is spoken: {self.desk.heard.texts}")
        self.desk.type(" -r")
        self.desk.wait(lambda: self.example_has("%@1 -r"), "the example follows")
        self.assertEqual(count(), 1, "no news")
        self.desk.type(" %@2")
        self.desk.wait(lambda: self.example_has("%@2"), "the example follows")
        self.desk.keys("BackSpace")
        self.desk.wait(lambda: count() == 2, lambda: f"again: {self.desk.heard.texts}")

    def example_has(self, part):
        return any(seen.role == "label" and part in seen.name and "lacks" not in seen.name
                   for seen in self.desk.tree())  # fmt: skip

    def test_KeyState_IsSpokenWhenItIsAskedFor(self):
        self.desk.start(
            self.plain(
                prefRsyncWithSSH=True,
                prefRemoteBonjourName="127.0.0.1",
                prefRemoteUsername="ann",
            )
        )
        self.show_tab("Remote Mac")
        self.tab_to("Check Key Again")
        self.desk.keys("Return")
        said = self.desk.heard.wait("key")
        self.assertTrue(self.desk.find(role="label", name=said), self.desk.heard.texts)

    def test_Export_SaysHowItWent(self):
        self.put_movie()
        self.desk.start(self.plain())
        self.desk.keys("space")
        self.desk.heard.wait("The pass went well: 1 file.")
        self.desk.keys("space")
        self.show_tab("Activity")
        self.tab_to("Arrived")
        self.desk.keys("Right")
        self.tab_to("Export all passes")
        self.desk.keys("Return")
        self.desk.wait(lambda: self.desk.find(role="dialog"), "the dialog")
        self.desk.keys("ctrl+a")
        self.desk.type(self.desk.path("passes.csv"))
        self.desk.keys("Return")
        self.desk.heard.wait("passes written.")
        self.wait_focus("Export all passes")


def main():
    global PROGRAM
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    lacking = desk.missing()
    if lacking:
        print("skipped: not installed here: " + ", ".join(lacking))
        sys.exit(77)
    PROGRAM = os.path.join(os.path.abspath(sys.argv[1]), "bin/kelvo-mirror")
    names = [f"A11yTest.test_{name}" for name in sys.argv[2:]] or None
    unittest.main(argv=[sys.argv[0]], defaultTest=names, verbosity=2)


if __name__ == "__main__":
    main()
