#!/usr/bin/python3
"""The built program as a person knows it who does not see it: what is in the tree of the assistive
technologies, and what the keyboard alone can do.

a11y_test.py BUILD_FOLDER [CASE…]"""

import os
import xml.etree.ElementTree

import a11y_case

WIDGETS = os.path.join(os.path.dirname(__file__), "../../src/ui/widgets")
SETTABLE = {"push button", "toggle button", "check box", "radio button", "combo box", "text",
            "spin button", "table", "tree", "tree table"}  # fmt: skip


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


class A11yTest(a11y_case.A11yCase):
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
            entries = self.open_menu(menu.name, key.lower())
            for entry in entries:
                self.assertTrue(entry.name, f"{menu.name}: {entries}")
            self.desk.keys("Escape")
            self.desk.wait(lambda: not self.entries_of(menu.name), f"{menu.name} closes")
            self.desk.keys("Escape")
            self.wait_focus(before)

    def open_menu(self, menu, key):
        """Its entries. Qt asks the screen reader about each key, and when the answer is late hands
        the key on a second time, which closes the menu that it opened: then it is pressed again."""
        for _ in range(12):
            self.desk.keys(key)
            try:
                return self.desk.wait(lambda: self.entries_of(menu), "the menu", 5)
            except AssertionError:
                continue
        self.fail(f"{key} does not open the menu {menu}")

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
        self.open_menu("Help", "alt+h")
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


if __name__ == "__main__":
    a11y_case.main(A11yTest)
