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

    def run(self):
        screen, journey = self.screen, self.journey
        journey.open_dialog()
        screen.press("KrAutoReframePropertyPanel_analyze")
        journey.shadow()
        journey.pause()
        for role, name in (("push button", "View"), ("push button", "Next Doubtful Shot"), ("push button", "Undo"),
                           ("push button", "Export")):
            self.wait_for(role, name)
        self.wait_for("label", "Output: 304 × 540")
        found = self.look()
        nameless = [item for item in found if item["focusable"] and item["role"] in ("push button", "check box", "toggle button")
                    and not item["name"]]
        assert not nameless, f"nameless controls: {nameless}"
        self.read_help()
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
