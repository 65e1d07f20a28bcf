"""Eyes and hands on a program that writes reports (UiReport.h): waits for conditions, never for times."""

import json
import os
import subprocess
import time

PATIENCE = float(os.environ.get("KR_E2E_PATIENCE", "120"))


class Screen:
    def __init__(self, desktop, folder, program, arguments=(), environment=None):
        self.environment = dict(desktop.environment, **(environment or {}))
        self.folder = folder
        self.report_path = os.path.join(folder, "ui-report.json")
        if os.path.exists(self.report_path):
            os.remove(self.report_path)
        self.environment["KR_UI_REPORT"] = self.report_path
        self.log_path = os.path.join(folder, "program.log")
        self.log = open(self.log_path, "ab")
        # A program for another system runs in an emulator.
        command = [*os.environ.get("KR_EMULATOR", "").split(), program, *arguments]
        self.process = subprocess.Popen(command, env=self.environment, stdout=self.log, stderr=self.log)
        self.shots = 0

    # Looking

    def report(self):
        """A report that was written after this call began."""
        seen = self._read().get("serial", -1)
        return self.until(lambda: (lambda now: now if now.get("serial", -1) > seen else None)(self._read()),
                          "a new report of the program", fresh=False)

    def _read(self):
        try:
            with open(self.report_path, encoding="utf-8") as file:
                return json.load(file)
        except (FileNotFoundError, json.JSONDecodeError):
            return {}

    def until(self, condition, what, fresh=True, patience=PATIENCE):
        """The first true value of `condition`; with `fresh` it is given a new report each time."""
        end = time.monotonic() + patience
        while True:
            if self.process.poll() is not None:
                raise AssertionError(f"the program ended ({self.process.returncode}) while waiting for {what}")
            value = condition(self.report()) if fresh else condition()
            if value:
                return value
            if time.monotonic() > end:
                self.shoot("gave-up")
                raise AssertionError(f"waited {patience} s for {what}")
            time.sleep(0.02)

    def find_report(self, condition, what):
        """The first report for which `condition` is true."""
        return self.until(lambda report: report if condition(report) else None, what)

    @staticmethod
    def all(report, name, window=None):
        return [widget for widget in report["widgets"]
                if widget["name"] == name and (window is None or widget["window"] == window)]

    def first(self, report, name, key, window=None):
        """The value `key` of the first control called `name`, or None."""
        return next((widget[key] for widget in self.all(report, name, window) if key in widget), None)

    def find(self, name, window=None, **wanted):
        """Waits for a visible control called `name` with the `wanted` values."""
        def look(report):
            for widget in self.all(report, name, window):
                if all(widget.get(key) == value for key, value in wanted.items()):
                    return widget
            return None
        return self.until(look, f"{name} {wanted or ''}")

    def gone(self, name):
        self.until(lambda report: not self.all(report, name), f"{name} to disappear")

    def steady(self, read, what):
        """The value of `read` once it is the same for three reports in a row."""
        values = []

        def look(report):
            values.append(read(report))
            return len(values) >= 3 and values[-1] is not None and values[-1] == values[-2] == values[-3]
        self.until(look, what)
        return values[-1]

    def shoot(self, name):
        self.shots += 1
        path = os.path.join(self.folder, f"{self.shots:02d}-{name}.png")
        subprocess.run(["import", "-window", "root", path], env=self.environment, check=True)
        return path

    def pixels(self, rect):
        """The rows of a part of the screen, each a list of (r, g, b)."""
        x, y, width, height = rect
        raw = subprocess.run(["import", "-window", "root", "-crop", f"{width}x{height}+{x}+{y}", "+repage", "-depth",
                              "8", "rgb:-"], env=self.environment, check=True, capture_output=True).stdout
        assert len(raw) == 3 * width * height, "the part lies on the screen"
        return [[tuple(raw[3 * (row * width + column):3 * (row * width + column) + 3]) for column in range(width)]
                for row in range(height)]

    # Doing

    def tool(self, *arguments):
        subprocess.run(["xdotool", *[str(argument) for argument in arguments]], env=self.environment, check=True)

    @staticmethod
    def middle(rect):
        return rect[0] + rect[2] // 2, rect[1] + rect[3] // 2

    def move(self, x, y):
        self.tool("mousemove", "--sync", x, y)

    def click(self, rect, button=1, repeat=1):
        self.move(*self.middle(rect))
        self.tool("click", "--repeat", repeat, "--delay", 80, button)

    def click_with(self, modifier, rect):
        self.tool("keydown", modifier)
        self.click(rect)
        self.tool("keyup", modifier)

    def choose_file(self, name, shot=None):
        """Opens a file that the chooser lists."""
        chosen = self.steady(lambda report: next((item["rect"] for view in self.all(report, "treeView")
                                                  for item in view["items"] if item["text"] == name), None),
                             "the file in the chooser")
        self.click([chosen[0], chosen[1], 60, chosen[3]])
        button = self.until(lambda report: next((widget for widget in report["widgets"] if widget["enabled"]
                                                 and widget.get("text") == "&Open"), None), "a file to be chosen")
        if shot:
            self.shoot(shot)
        self.click(button["rect"])

    def press(self, name, window=None, **wanted):
        """Clicks a control once it is visible and enabled."""
        self.click(self.find(name, window, enabled=True, **wanted)["rect"])

    def drag(self, start, end, steps=12):
        """With the left button and in steps, as by hand. The crop counts its first step from where the pointer was last
        seen with the button down: a click that ends at `start` makes that known, before the drag. Nothing waits with the
        button down, since a long press opens a menu; the click begins too far away for a double click and too near for a
        drag."""
        self.move(start[0] - 8, start[1])
        self.tool("mousedown", 1, "mousemove", *start, "mouseup", 1)
        self.report()
        self.report()
        moves = [argument for step in range(1, steps + 1)
                 for argument in ("mousemove", *(a + (b - a) * step // steps for a, b in zip(start, end)))]
        self.tool("mousedown", 1, *moves, "mouseup", 1)

    def key(self, *keys):
        self.tool("key", "--delay", 60, *keys)

    def type(self, text):
        self.tool("type", "--delay", 20, text)

    # Ending

    def wait_for_end(self, patience=PATIENCE):
        return self.process.wait(patience)

    def stop(self):
        if self.process.poll() is None:
            # An emulator passes this signal on to the program; killed, it would leave it behind, writing its reports.
            self.process.terminate()
            try:
                self.process.wait(10)
            except subprocess.TimeoutExpired:
                self.process.kill()
                self.process.wait()
        self.log.close()
