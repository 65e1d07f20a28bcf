#!/usr/bin/env python3
"""Chooses files in the system's own chooser, as a person does, with real keys.

file_chooser.py PROGRAM FOLDER: PROGRAM is FileChooser.cpp; answers and pictures stay in FOLDER.
"""

import os
import shutil
import subprocess
import sys
import time

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, ".."))

from desktop import Desktop  # noqa: E402

PATIENCE = float(os.environ.get("KR_E2E_PATIENCE", "120"))
# The system's title; the caption that the caller gives is not shown.
TITLE = "^Open$"


class Chooser:
    """One run of the program, from its start until it has written its answer."""

    def __init__(self, desktop, program, folder, clips, kind):
        self.environment = desktop.environment
        self.folder = folder
        self.kind = kind
        self.answer = os.path.join(folder, kind + ".txt")
        how_many = "several" if kind.startswith("several") else "one"
        self.log_path = os.path.join(folder, kind + ".log")
        with open(self.log_path, "wb") as log:
            self.process = subprocess.Popen([*os.environ["KR_EMULATOR"].split(), program, clips, self.answer, how_many],
                                            env=self.environment, stdout=log, stderr=log)

    def output(self, *command):
        return subprocess.run(command, env=self.environment, capture_output=True).stdout

    def until(self, condition, what):
        end = time.monotonic() + PATIENCE
        while True:
            value = condition()
            if value:
                return value
            if self.process.poll() is not None or time.monotonic() > end:
                self.shoot("gave-up")
                with open(self.log_path, encoding="utf-8", errors="replace") as log:
                    raise AssertionError(f"{self.kind}: no {what}; exit status {self.process.poll()}\n{log.read()}")
            time.sleep(0.05)

    def windows(self, title):
        return self.output("xdotool", "search", "--onlyvisible", "--name", title).decode().split()

    def settle(self):
        """Until the screen is the same in three pictures."""
        pictures = []

        def look():
            pictures.append(self.output("import", "-window", "root", "rgb:-"))
            return len(pictures) >= 3 and pictures[-1] and pictures[-1] == pictures[-2] == pictures[-3]
        self.until(look, "steady screen")

    def open(self, title=TITLE):
        window = self.until(lambda: self.windows(title), f"window {title}")[0]
        self.until(lambda: self.active() == window, "active window")
        self.settle()

    def active(self):
        return self.output("xdotool", "getactivewindow").decode().strip()

    def key(self, name):
        self.output("xdotool", "key", name)

    def type(self, text):
        self.output("xdotool", "type", "--delay", "20", text)
        self.settle()

    def shoot(self, step):
        self.output("import", "-window", "root", os.path.join(self.folder, f"{self.kind}-{step}.png"))

    def chosen(self):
        """The answer, once the program has ended."""
        end = time.monotonic() + PATIENCE
        while self.process.poll() is None and time.monotonic() < end:
            time.sleep(0.05)
        if self.process.returncode != 0:
            self.shoot("no-answer")
            raise AssertionError(f"{self.kind}: exit status {self.process.returncode}")
        with open(self.answer, encoding="utf-8") as file:
            return file.read().splitlines()

    def stop(self):
        # The emulator passes this signal on to the program.
        if self.process.poll() is None:
            self.process.terminate()
        self.process.wait()


def run(desktop, program, folder, clips, kind, act):
    """What the chooser returned after `act`, without the drive."""
    chooser = Chooser(desktop, program, folder, clips, kind)
    try:
        chooser.open()
        chooser.shoot("open")
        act(chooser)
        return [path.split(":", 1)[-1] for path in chooser.chosen()]
    finally:
        chooser.stop()


def choose(names):
    def act(chooser):
        chooser.type(names)
        chooser.shoot("typed")
        chooser.key("Return")
    return act


def cancel(chooser):
    chooser.key("Escape")


def choose_what_is_missing(chooser):
    """The chooser refuses it with a message of its own and stays open."""
    chooser.type("missing.mp4")
    chooser.key("Return")
    chooser.until(lambda: chooser.active() not in ["", *chooser.windows(TITLE)],
                  "message")
    chooser.settle()
    chooser.shoot("refused")
    chooser.key("Return")
    chooser.open()
    chooser.key("Escape")


def main():
    program, folder = sys.argv[1], os.path.abspath(sys.argv[2])
    shutil.rmtree(folder, ignore_errors=True)
    clips = os.path.join(folder, "Видео clips")
    os.makedirs(clips)
    names = ["a.mp4", "b.mp4", "c.mp4"]
    for name in [*names, "notes.txt"]:
        with open(os.path.join(clips, name), "wb"):
            pass
    paths = [f"{clips}/{name}" for name in names]
    quoted = " ".join(f'"{name}"' for name in names)
    with Desktop(folder) as desktop:
        for kind, act, wanted in (("one", choose("b.mp4"), paths[1:2]),
                                  ("one-with-a-relative-path", choose(r".\c.mp4"), paths[2:]),
                                  ("several", choose(quoted), paths),
                                  ("several-one", choose("a.mp4"), paths[:1]),
                                  ("cancelled", cancel, []),
                                  ("missing", choose_what_is_missing, [])):
            found = run(desktop, program, folder, clips, kind, act)
            assert found == wanted, f"{kind}: {found} instead of {wanted}"
            print(f"{kind}: {found}")


main()
