"""The program is killed and started again: library, edits and exports are still there."""

import os
import sqlite3

from restarted_program import RestartedProgram


class KeptJourney(RestartedProgram):
    def __init__(self, desktop, folder, program, clip, environment, make_journey):
        super().__init__(desktop, folder, program, environment, make_journey)
        self.clip = clip

    def saved(self, statement):
        """The first value of a query in the library's file; None while there is no such table."""
        try:
            with sqlite3.connect(os.path.join(self.data, "library.db"), timeout=10) as connection:
                row = connection.execute(statement).fetchone()
        except sqlite3.OperationalError:
            return None
        return row[0] if row else None

    def wait_until_saved(self, statement, value):
        self.screen.until(lambda: self.saved(statement) == value, f"{value} from {statement}", fresh=False)

    def card(self, text):
        def look(report):
            return next((item for item in self.screen.first(report, "MediaLibrary", "items") or []
                         if item["text"] == text), None)
        return self.screen.steady(look, f"the card {text}")

    def run(self):
        frame, left = self.edit_and_die()
        self.find_edits_again(frame, left)
        self.export_and_die()
        self.resume()
        self.find_renamed_file()
        self.miss_file()

    def edit_and_die(self):
        screen = self.start(self.clip)
        screen.find("StatusBar_text", text="1 video · 1 selected")
        self.journey.open_dialog()
        screen.press("KrAutoReframePropertyPanel_analyze")
        screen.find("KrAutoReframePropertyPanel_restart", enabled=True)
        self.journey.pause()
        frame = self.journey.go_to(0.3)
        left = self.journey.drag_crop(0.1)
        self.wait_until_saved("SELECT count(*) FROM edits", 1)
        self.kill()
        assert self.saved("PRAGMA integrity_check") == "ok"
        return frame, left

    def find_edits_again(self, frame, left):
        screen = self.start()
        screen.find("StatusBar_text", text="1 video · 1 selected")
        screen.shoot("restored")
        self.journey.open_dialog()
        # The service still knows the video, so the result is there without another click.
        screen.find("KrAutoReframePropertyPanel_restart", enabled=True)
        self.journey.pause()
        if self.journey.frame_of(screen.report()) > frame:
            screen.press("KrAutoReframe_pre")
        elif self.journey.frame_of(screen.report()) < frame:
            screen.press("KrAutoReframe_next")
        self.journey.expect_frame(frame)
        self.journey.expect_edit_at(left)
        screen.shoot("edit-restored")

    def export_and_die(self):
        for name in ("one", "two", "three"):
            self.journey.order_export(name)
        self.wait_until_saved("SELECT count(*) FROM exports", 3)
        self.kill()
        assert self.saved("PRAGMA integrity_check") == "ok"
        assert self.saved("SELECT count(*) FROM exports WHERE state IN ('waiting', 'running')") > 0

    def resume(self):
        screen = self.start()
        screen.find("ExportPanel_resume")
        self.card("walk.mp4")
        screen.shoot("exports-offered")
        screen.press("ExportPanel_resume")
        screen.gone("ExportPanel_resumeBar")
        self.journey.wait_for_exports(3)
        screen.shoot("exports-resumed")
        assert len(self.journey.results()) == 3, self.journey.results()
        assert not [name for name in os.listdir(self.journey.output) if name.endswith(".part")]
        self.quit()

    def find_renamed_file(self):
        renamed = os.path.join(self.folder, "a long walk through the old town at noon, second take & more.mp4")
        os.rename(self.clip, renamed)
        self.clip = renamed
        screen = self.start()
        self.card(os.path.basename(renamed))
        screen.press("TopBar_menu")
        screen.find("MainMenu")
        recent = next(item for item in screen.find("MainMenu")["items"] if item["text"] == "Open Recent")
        screen.click(recent["rect"])
        screen.find("RecentMenu")
        screen.shoot("renamed-and-menu")
        screen.key("Escape", "Escape", "Escape")
        self.quit()

    def miss_file(self):
        elsewhere = os.path.join(self.folder, "elsewhere")
        os.makedirs(elsewhere, exist_ok=True)
        moved = os.path.join(elsewhere, os.path.basename(self.clip))
        os.rename(self.clip, moved)
        screen = self.start()
        screen.find("TopBar_reframe", enabled=False)
        card = self.card(os.path.basename(self.clip))
        screen.shoot("missing")
        screen.click(card["rect"], button=3)
        entry = next(item for item in screen.find("MediaLibraryMenu")["items"] if item["text"] == "Find File…")
        screen.shoot("missing-menu")
        screen.key("Escape")
        assert entry["enabled"]
        self.quit()
