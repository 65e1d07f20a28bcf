"""The dialog as a screen reader sees it: over the bus of assistive technologies (AT-SPI)."""

import json
import os
import subprocess

# The bindings of AT-SPI are a package of the system, which another Python does not find.
SYSTEM_PYTHON = "/usr/bin/python3"


class Bus:
    """A session bus for the program and its reader. Ends what it started."""

    def __init__(self, environment):
        self.process = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--print-address"], env=environment,
                                        stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        self.address = self.process.stdout.readline().strip()
        assert self.address, "the session bus did not start"

    def stop(self):
        self.process.terminate()
        self.process.wait(10)


class SpokenJourney:
    def __init__(self, journey):
        self.journey = journey
        self.screen = journey.screen

    def look(self):
        """What is showing, as a screen reader finds it; None if the bus did not answer."""
        reader = os.path.join(os.path.dirname(os.path.abspath(__file__)), "accessible_names.py")
        done = subprocess.run([SYSTEM_PYTHON, "-B", reader], env=self.screen.environment, capture_output=True, text=True,
                              timeout=120, check=False)
        return json.loads(done.stdout) if done.returncode == 0 and done.stdout else None

    def wait_for(self, role, name):
        def find():
            found = self.look() or []
            return next((item for item in found if item["role"] == role and item["name"] == name), None)
        return self.screen.until(find, f'the {role} "{name}" for screen readers', fresh=False)

    def expect_names(self, where):
        """Of all that the keyboard reaches."""
        def nameless():
            found = self.look()
            return None if found is None else [[item["role"] for item in found if item["focusable"] and not item["name"]],
                                               len([item for item in found if item["focusable"]])]
        roles, count = self.screen.until(nameless, "an answer of the bus", fresh=False)
        assert count > 3 and not roles, f"{where}: {roles} of {count} controls have no name"

    def read_main_window(self):
        screen = self.screen
        self.wait_for("push button", "Reframe All…")
        self.expect_names("the main window")
        screen.press("TopBar_reframeAll")
        self.wait_for("check box", "21:9 · Cinema")
        self.expect_names("the dialog for many videos")
        screen.press("BatchDialog_cancel")
        screen.gone("BatchDialog_cancel")

    def follow_by_keys(self):
        """The Menu key points at the middle of the crop. Qt lists no popup menus; it reports the entry that has the focus."""
        screen = self.screen
        for _ in range(40):
            if screen.report()["focus"] == "KxMediaPlayerWidget":
                break
            screen.key("Tab")
        screen.find_report(lambda report: report["focus"] == "KxMediaPlayerWidget", "the picture to have the focus")
        screen.key("Menu")
        screen.find("KrAutoReframe_followMenu")
        screen.key("Down", "Return")
        screen.gone("KrAutoReframe_followMenu")
        screen.find("KrAutoReframe_undo", enabled=True)
        self.journey.shadow()

    def run(self):
        screen, journey = self.screen, self.journey
        self.read_main_window()
        journey.open_dialog()
        screen.press("KrAutoReframePropertyPanel_analyze")
        journey.shadow()
        journey.pause()
        for role, name in (("push button", "View"), ("push button", "Next Doubtful Shot"), ("push button", "Undo"),
                           ("push button", "Export")):
            self.wait_for(role, name)
        self.wait_for("label", "Output: 304 × 540")
        self.expect_names("the dialog")
        self.follow_by_keys()
        self.read_help()
        found = self.look()
        picture = [item for item in found if item["name"] == "Picture"]
        assert picture and picture[0]["focusable"], f"the picture: {picture}"
        journey.close_with_title_bar()
        journey.quit()

    def read_help(self):
        screen = self.screen
        screen.key("F1")
        screen.find("HelpDialog_close")
        self.wait_for("push button", "Close")
        self.wait_for("label", "Next doubtful shot")
        screen.key("Escape")
        screen.gone("HelpDialog_close")
