"""Many videos at once: chosen with the mouse and keys, reframed unattended, interrupted, and looked at."""

import json
import os
import subprocess
import xml.etree.ElementTree

import extension_journey
import footage
from restarted_program import RestartedProgram

SHOTS = "KrAutoReframePropertyPanel_shots"
RATIO = "KrAutoReframePropertyPanel_aspectRatio"


def make_short(path):
    """Too short to be analyzed."""
    subprocess.run(["ffmpeg", "-loglevel", "error", "-y", "-f", "lavfi", "-i",
                    f"color=c=0x304060:size={footage.WIDTH}x{footage.HEIGHT}:rate={footage.RATE}", "-frames:v", "20",
                    "-c:v", "libx264", "-pix_fmt", "yuv420p", path], check=True)


def make_folder(folder):
    os.makedirs(os.path.join(folder, "second day"))
    footage.make(os.path.join(folder, "walk.mp4"))
    extension_journey.make_shots(os.path.join(folder, "second day", "meeting.mp4"))
    make_short(os.path.join(folder, "blink.mp4"))
    for name in ("notes.txt", "second day/cover.png"):
        with open(os.path.join(folder, name), "w", encoding="utf-8") as file:
            file.write("not a video")


class BatchJourney(RestartedProgram):
    def __init__(self, desktop, folder, program, environment, make_journey):
        super().__init__(desktop, folder, program, environment, make_journey)
        self.clips = os.path.join(folder, "clips")
        self.output = os.path.join(folder, "exports")

    def run(self):
        make_folder(self.clips)
        self.import_folder()
        self.select()
        self.order()
        self.pause_and_die()
        self.resume()
        self.look()
        self.save_track()
        self.export_for_shotcut()
        self.open_track()
        self.read_help()
        self.import_recent_folder()
        self.journey.quit()

    def import_folder(self):
        screen = self.start(self.clips)
        screen.find("StatusBar_text", text="3 videos · 3 selected")
        screen.find("StatusBar_skipped", text="2 files that are no videos were skipped")
        screen.find("TopBar_reframeAll", enabled=True)
        screen.shoot("folder-imported")

    def cards(self):
        return self.screen.steady(lambda report: [item["rect"] for item in self.screen.first(report, "MediaLibrary", "items")
                                                  or []][:3], "the cards")

    def select(self):
        """One by a click, another with Ctrl, a range with Shift, all with Ctrl+A."""
        screen = self.screen
        first, second, third = self.cards()
        screen.click(first)
        screen.find("StatusBar_text", text="3 videos · 1 selected")
        screen.click_with("ctrl", third)
        screen.find("StatusBar_text", text="3 videos · 2 selected")
        screen.click(second)
        screen.find("StatusBar_text", text="3 videos · 1 selected")
        screen.click_with("shift", third)
        screen.find("StatusBar_text", text="3 videos · 2 selected")
        screen.key("ctrl+a")
        screen.find("StatusBar_text", text="3 videos · 3 selected")
        screen.shoot("all-selected")

    def order(self):
        screen = self.screen
        screen.press("TopBar_reframeAll")
        screen.find("BatchDialog_9x16", checked=True)
        screen.press("BatchDialog_1x1")
        screen.press("BatchDialog_16x9")
        pattern = screen.find("BatchDialog_name")
        screen.click(pattern["rect"], repeat=3)
        screen.key("ctrl+a")
        screen.type("{name} {size}")
        screen.find("BatchDialog_accept", enabled=False)
        screen.shoot("unknown-placeholder")
        screen.key("ctrl+a")
        screen.type("{name}-{ratio}")
        screen.find("BatchDialog_accept", enabled=True)
        field = screen.find("KxOpenFileLineEdit_edit")
        screen.click(field["rect"], repeat=3)
        screen.key("ctrl+a")
        screen.type(self.output)
        # They are 16:9 already, so that ratio is left out.
        screen.find("BatchDialog_message", text="6 files: blink-9x16.mp4, blink-1x1.mp4, meeting-9x16.mp4, …")
        screen.shoot("reframe-all")
        screen.press("BatchDialog_accept")
        screen.gone("BatchDialog_accept")

    def pause_and_die(self):
        screen = self.screen
        screen.until(lambda report: "2 failed" in (screen.first(report, "QueueBar_text", "text") or ""), "the short one to fail")
        screen.press("QueueBar_pause")
        screen.find("QueueBar_timeLeft", text="Paused")
        done = screen.find("QueueBar_text")["text"]
        screen.shoot("paused")
        assert screen.find("QueueBar_text")["text"] == done, "nothing is done while it is paused"
        self.kill()

    def resume(self):
        screen = self.start()
        screen.find("ExportPanel_resume")
        screen.shoot("offered-again")
        screen.press("ExportPanel_resume")
        screen.gone("ExportPanel_resumeBar")
        screen.until(lambda report: "Analyzing" in str(screen.all(report, "ExportCard_status"))
                     or "%" in str(screen.all(report, "ExportCard_status")), "work to go on")
        screen.shoot("resumed")
        screen.find("QueueBar_text", text="4 done, 2 failed, 2 to look at")
        screen.shoot("summary")
        sizes = {}
        for name in sorted(os.listdir(self.output)):
            video = footage.stream(os.path.join(self.output, name), "video")
            sizes[name] = (video["width"], video["height"])
        assert sizes == {"meeting-1x1.mp4": (540, 540), "meeting-9x16.mp4": (304, 540),
                         "walk-1x1.mp4": (540, 540), "walk-9x16.mp4": (304, 540)}, sizes

    def look(self):
        screen, journey = self.screen, self.journey
        screen.press("QueueBar_look")
        journey.wait_for_dialog()
        screen.find("KrAutoReframePropertyPanel_restart", enabled=True)
        screen.find(RATIO, text="9:16")
        journey.expect_frame(extension_journey.SHOT_FRAMES)
        screen.find(SHOTS, text="1 of 3 shots to look at")
        screen.shoot("looking")
        screen.key("n")
        screen.find(SHOTS, text="All doubtful shots seen")
        journey.close_with_title_bar()
        screen.find("QueueBar_text", text="4 done, 2 failed")
        screen.shoot("looked-at")

    def entry(self, menu, text):
        """The place of an entry that can be chosen."""
        screen = self.screen
        return screen.steady(lambda report: next((item["rect"] for item in screen.first(report, menu, "items") or []
                                                  if item["text"] == text and item["enabled"]), None), text)

    def choose(self, entry):
        screen = self.screen
        screen.press("TopBar_menu")
        item = self.entry("MainMenu", entry)
        screen.shoot("menu")
        screen.click(item)

    def save_track(self):
        screen = self.screen
        screen.click(self.cards()[2])
        screen.find("StatusBar_text", text="3 videos · 1 selected")
        self.choose("Save Crop Track…")
        screen.find("CropTrackDialog_name", text="walk-9x16")
        screen.shoot("save-crop-track")
        screen.press("CropTrackDialog_accept")
        screen.find("KxMessageBox_text", text="The crop track was saved.")
        screen.shoot("crop-track-saved")
        screen.press("KxMessageBox_refuse", text="Close")
        screen.gone("KxMessageBox_refuse")
        with open(os.path.join(self.output, "walk-9x16.json"), encoding="utf-8") as file:
            track = json.load(file)
        assert len(track["frames"]) == footage.FRAMES and track["aspect"] == [9, 16], track["aspect"]

    def export_for_shotcut(self):
        screen = self.screen
        screen.press("TopBar_menu")
        screen.click(self.entry("MainMenu", "Export for"))
        entry = self.entry("ExportForMenu", "Shotcut (.mlt)…")
        screen.shoot("export-for")
        screen.click(entry)
        screen.find("CropTrackDialog_name", text="walk-9x16")
        screen.press("CropTrackDialog_accept")
        screen.find("KxMessageBox_text", text="The file for Shotcut was saved.")
        screen.press("KxMessageBox_refuse", text="Close")
        screen.gone("KxMessageBox_refuse")
        project = xml.etree.ElementTree.parse(os.path.join(self.output, "walk-9x16.mlt"))
        profile = project.find("profile")
        assert (profile.get("width"), profile.get("height")) == ("304", "540"), profile.attrib

    def open_track(self):
        screen, journey = self.screen, self.journey
        self.choose("Open Crop Track…")
        screen.choose_file("walk-9x16.json")
        journey.wait_for_dialog()
        screen.find("KrAutoReframePropertyPanel_export", enabled=True)
        screen.find(RATIO, text="9:16")
        journey.pause()
        screen.shoot("crop-track-shown")
        screen.key("F1")
        screen.find("HelpDialog_close")
        screen.shoot("shortcuts-over-dialog")
        screen.key("Escape")
        screen.gone("HelpDialog_close")
        journey.order_export("walk as opened")
        journey.close_with_title_bar()
        again = os.path.join(self.output, "walk as opened-AutoReframe-9 16.mp4")
        screen.until(lambda: os.path.exists(again), again, fresh=False)
        assert footage.stream(again, "video")["nb_read_frames"] == str(footage.FRAMES)
        screen.until(lambda report: len([card for card in screen.all(report, "ExportCard_status")
                                         if card["text"].startswith("Done")]) == 5, "five finished exports")

    def read_help(self):
        screen = self.screen
        screen.key("F1")
        screen.find("HelpDialog_close")
        screen.steady(lambda report: screen.first(report, "HelpDialog", "rect"), "the list of shortcuts")
        screen.shoot("shortcuts")
        screen.key("Escape")
        screen.gone("HelpDialog_close")
        self.choose("About Auto Reframe")
        versions = screen.find("AboutDialog_versions")["text"]
        assert all(name in versions for name in ("Qt ", "FFmpeg ", "OpenCV ", "SQLite ")), versions
        screen.steady(lambda report: screen.first(report, "AboutDialog", "rect"), "the dialog")
        screen.shoot("about")
        screen.press("AboutDialog_close")
        screen.gone("AboutDialog_close")

    def import_recent_folder(self):
        """The folder was imported in the first run."""
        screen = self.screen
        extension_journey.make_shots(os.path.join(self.clips, "new.mp4"))
        screen.press("TopBar_menu")
        screen.click(self.entry("MainMenu", "Open Recent"))
        folder = self.entry("RecentMenu", os.path.basename(self.clips))
        screen.shoot("recent-folders")
        screen.click(folder)
        screen.find("StatusBar_text", text="4 videos · 4 selected")
