#!/usr/bin/python3
"""What the built program has spoken of its own accord, as it comes over the bus.

spoken_test.py BUILD_FOLDER [CASE…]"""

import os

import a11y_case


class SpokenTest(a11y_case.A11yCase):
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
            verdict = self.desk.heard.wait("The Mac ")
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
        self.wait_sheet("Export passes")
        proposed = "kelvo-mirror-passes.csv"
        self.desk.wait(
            lambda: any(seen.focused and seen.text == proposed for seen in self.desk.tree()),
            lambda: f"a name is proposed: {self.desk.tree()}",
        )
        self.desk.keys("Return")
        self.desk.heard.wait("1 pass written.")
        self.assertTrue(os.path.exists(self.desk.path(f"home/{proposed}")))
        self.wait_focus("Export all passes")


if __name__ == "__main__":
    a11y_case.main(SpokenTest)
