"""A program that a journey starts, kills and starts again, with data of its own."""

import os

from screen import Screen


class RestartedProgram:
    def __init__(self, desktop, folder, program, environment, make_journey):
        self.desktop = desktop
        self.folder = folder
        self.program = program
        self.make_journey = make_journey
        self.data = os.path.join(folder, "data")
        self.environment = dict(environment, KX_DATA=self.data, KX_CACHE=os.path.join(folder, "cache"))
        self.screen = None
        self.journey = None
        self.shots = 0

    def start(self, *files):
        self.screen = Screen(self.desktop, self.folder, self.program, files, self.environment)
        self.screen.shots = self.shots
        self.journey = self.make_journey(self.screen)
        return self.screen

    def kill(self):
        self.shots = self.screen.shots
        self.screen.stop()

    def quit(self):
        self.journey.quit()
        self.shots = self.screen.shots
