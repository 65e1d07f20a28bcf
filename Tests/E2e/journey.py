#!/usr/bin/env python3
"""Uses the desktop program as a person does, with a real mouse and real keys.

journey.py PROGRAM FOLDER NAME [VIDEO]: pictures of every step stay in FOLDER. The journeys by NAME:
  whole       import, analysis, edits, export and quitting, on footage made for it
  cancelling  analysis and export of VIDEO are cancelled, the program is interrupted
  plain       analysis and preview on a desktop without a compositor
  kept        the program is killed and started again, the video is renamed and moved
  dense       the first window on a screen of scale 2, in a session that also offers Wayland
  extended    the dialog's extensions; extended-dense: on a screen of scale 2
  batch       many videos at once; batch-dense: on a screen of scale 2
  followed    something in a long shot is followed, taken back meanwhile and followed again
  spoken      the dialog as a screen reader sees it
"""

import fcntl
import os
import shutil
import signal
import sys
import time

import batch_journey
import extension_journey
import follow_journey
import footage
import kept_journey
import short_journeys
import spoken_journey
from desktop import Desktop
from screen import Screen

ACCENT = (0x55, 0xE5, 0xC5)
EDITED = (0xFF, 0x8B, 0x55)
DIALOG = "KrAutoReframeDialog"
# Wine keeps the crop's overlay out of the window manager's hands, so that on the screen it covers the dialogs over the player, although the
# system holds them above it. There the dialogs are used without the overlay.
IS_EMULATED = bool(os.environ.get("KR_EMULATOR"))
# The faces of the player's button.
PAUSED, PLAYING = 0, 1


def near(a, b, slack=40):
    return all(abs(x - y) <= slack for x, y in zip(a, b))


class Journey:
    ACCENT = ACCENT

    def __init__(self, screen, folder, clip):
        self.screen = screen
        self.folder = folder
        self.clip = clip
        self.output = os.path.join(folder, "exports")
        os.makedirs(self.output, exist_ok=True)

    # Looking

    def shadow(self):
        """The rectangle of the crop's overlay once it is the same in several reports."""
        def read(report):
            found = [widget for widget in report["widgets"] if widget["class"] == "ShadowForm"]
            return found[0]["rect"] if found else None
        return self.screen.steady(read, "the crop's overlay")

    def outline_now(self, rect, colour):
        """Left and right edge of the crop's outline of that colour, in fractions of the picture in `rect`; or None."""
        x, y, width, height = rect
        rows = self.screen.pixels((x, y + height // 3, width, height // 3))
        columns = [column for column in range(width)
                   if sum(near(row[column], colour) for row in rows) > 0.7 * len(rows)]
        is_whole = columns and columns[-1] - columns[0] > 20
        return (columns[0] / width, (columns[-1] + 1) / width) if is_whole else None

    def outline(self, colour):
        """The same once it is steady."""
        rect = self.shadow()
        seen = []

        def look():
            seen.append(self.outline_now(rect, colour))
            return len(seen) >= 2 and seen[-1] is not None and seen[-1] == seen[-2]
        self.screen.until(look, "the crop's outline", fresh=False)
        return seen[-1]

    def frame_of(self, report):
        text = self.screen.first(report, "KrAutoReframe_time", "text")
        if not text:
            return None
        hours, minutes, seconds, frames = [int(part) for part in text.split(":")]
        return ((hours * 60 + minutes) * 60 + seconds) * footage.RATE + frames

    def results(self):
        return sorted(name for name in os.listdir(self.output) if name.endswith(".mp4"))

    # Steps

    def open_dialog(self):
        self.screen.press("TopBar_reframe")
        self.wait_for_dialog()

    def wait_for_dialog(self):
        self.screen.steady(lambda report: self.screen.first(report, DIALOG, "rect"), "the dialog")

    def open_with_double_click(self, card):
        """Repeated if no dialog opens: on a busy machine the clicks can be too far apart for a double click."""
        clicked_at = None

        def look(report):
            nonlocal clicked_at
            if self.screen.first(report, DIALOG, "rect"):
                return True
            if clicked_at is None or time.monotonic() - clicked_at > 10:
                self.screen.click(card, repeat=2)
                clicked_at = time.monotonic()
            return False
        self.screen.until(look, "the dialog after a double click")
        self.wait_for_dialog()

    def pause(self):
        """Playback may also have ended by itself."""
        button = self.screen.find("KxPlayerToolBar_play", enabled=True)
        if button["face"] == PLAYING:
            self.screen.click(button["rect"])
        self.screen.find("KxPlayerToolBar_play", face=PAUSED)

    def go_to(self, fraction):
        """Clicks the slider and returns the number of the frame that is shown then."""
        x, y, width, height = self.screen.find("KrUIStyle_ToolBarSlider")["rect"]
        self.screen.move(x + int(width * fraction), y + height // 2)
        self.screen.tool("click", 1)

        def read(report):
            frame = self.frame_of(report)
            is_there = frame is not None and abs(frame - fraction * footage.FRAMES) < 0.05 * footage.FRAMES
            return frame if is_there else None
        return self.screen.steady(read, f"the frame at {fraction} of the clip")

    def drag_crop(self, by):
        """Drags the crop sideways by a fraction of the picture; returns its new left edge."""
        x, y, width, height = self.shadow()
        left, right = self.outline(ACCENT)
        start = (x + int((left + right) / 2 * width), y + height // 2)
        self.screen.drag(start, (start[0] + int(by * width), start[1]))
        self.screen.find("KrAutoReframe_undo", enabled=True)
        landed = self.outline(EDITED)
        moved = landed[0] - left
        assert abs(moved - by) < 0.05, f"dragged by {by}, moved by {moved}"
        return landed[0]

    # Parts of the journeys

    def import_through_chooser(self):
        screen = self.screen
        screen.find("StatusBar_text", text="No videos yet")
        screen.shoot("empty")
        screen.press("TopBar_import")
        screen.choose_file("walk.mp4", shot="chooser")
        screen.find("StatusBar_text", text="1 video · 1 selected")
        screen.find("TopBar_reframe", enabled=True)
        screen.steady(lambda report: str(screen.all(report, "MediaLibrary")), "the library")
        screen.shoot("imported")

    def analyse(self):
        screen = self.screen
        self.open_dialog()
        screen.shoot("dialog")
        screen.press("KrAutoReframePropertyPanel_analyze")
        # A short clip can be analysed between two reports; the journey on real footage requires the progress dialog.
        screen.until(lambda report: report["window"] == "KxProgressDialog"
                     or screen.all(report, "KrAutoReframePropertyPanel_restart"), "the progress dialog, or the end")
        screen.shoot("analysing")
        self.shadow()
        screen.find("KrAutoReframePropertyPanel_restart", text="Analyze Again", enabled=True)
        screen.shoot("analysed")

    def edit(self):
        screen = self.screen
        # The preview plays after an analysis.
        self.pause()
        self.expect_video_under_crop()
        first = self.go_to(0.2)
        first_left = self.drag_crop(0.1)
        screen.shoot("first-edit")
        second = self.go_to(0.7)
        assert second > first, f"frames {first} and {second}"
        second_left = self.drag_crop(-0.15)
        screen.shoot("second-edit")

        screen.press("KrAutoReframe_undo")
        screen.find("KrAutoReframe_redo", enabled=True)
        self.outline(ACCENT)
        screen.shoot("undone")
        screen.press("KrAutoReframe_redo")
        screen.find("KrAutoReframe_redo", enabled=False)
        self.expect_edit_at(second_left)

        screen.press("KrAutoReframe_pre")
        self.expect_frame(first)
        self.expect_edit_at(first_left)
        screen.shoot("previous-edit-point")
        screen.press("KrAutoReframe_next")
        self.expect_frame(second)
        screen.press("KrAutoReframe_delete")
        screen.find("KrAutoReframe_delete", enabled=False)
        self.outline(ACCENT)
        screen.press("KrAutoReframe_pre")
        self.expect_frame(first)
        screen.shoot("one-deleted")
        return first, first_left

    def expect_frame(self, frame):
        self.screen.steady(lambda report: self.frame_of(report) == frame or None, f"frame {frame}")

    def expect_edit_at(self, left):
        self.screen.until(lambda: abs(self.outline(EDITED)[0] - left) < 0.01, f"an edited crop at {left}", fresh=False)

    def expect_video(self, name):
        """The player of that class shows the ramp of the footage: darker at its left than at its right."""
        def look(report):
            player = next((widget["rect"] for widget in report["widgets"] if widget["class"] == name), None)
            if player is None:
                return False
            x, y, width, height = player
            row = self.screen.pixels((x, y + height // 10, width, 1))[0]
            greys = [pixel[1] for pixel in row if max(pixel) - min(pixel) < 12 and pixel[1] > 35]
            fifth = len(greys) // 5
            return fifth > 10 and sum(greys[-fifth:]) - sum(greys[:fifth]) > 20 * fifth
        self.screen.until(look, "the video on the screen")

    def expect_video_under_crop(self):
        """The waves of the footage are visible inside the crop's outline."""
        x, y, width, height = self.shadow()
        left, right = self.outline(ACCENT)
        inside = (x + int(left * width) + 5, y + height // 10, int((right - left) * width) - 10, 1)

        def look():
            greys = [pixel[1] for pixel in self.screen.pixels(inside)[0]]
            return max(greys) - min(greys) > 30
        self.screen.until(look, "the video under the crop", fresh=False)

    PREVIEW_SWITCH = "KrAutoReframePropertyPanel_previewSwitch"

    def show_result(self):
        screen = self.screen
        screen.press(self.PREVIEW_SWITCH)
        screen.find(self.PREVIEW_SWITCH, checked=False)
        screen.until(lambda report: not any(widget["class"] == "ShadowForm" for widget in report["widgets"]),
                     "the overlay to disappear")

    def switch_preview(self):
        screen = self.screen
        self.show_result()
        screen.shoot("reframed-preview")
        screen.press(self.PREVIEW_SWITCH)
        screen.find(self.PREVIEW_SWITCH, checked=True)
        self.shadow()

    def open_export_dialog(self):
        """The system holds it above the crop's overlay."""
        screen = self.screen
        screen.press("KrAutoReframePropertyPanel_export")
        field = screen.find("KrAutoReframeExport_name", enabled=True)
        window = field["window"]
        screen.until(lambda report: screen.first(report, window, "top") == window, "the export dialog to be the topmost window")
        return field

    def order_export(self, name):
        screen = self.screen
        field = self.open_export_dialog()
        screen.click(field["rect"], repeat=3)
        screen.key("ctrl+a")
        screen.type(name)
        screen.find("KrAutoReframeExport_name", text=name)
        screen.shoot("export-dialog")
        screen.press("KrAutoReframeExport_export")
        screen.gone("KrAutoReframeExport_export")

    def close_with_escape(self):
        screen = self.screen
        screen.tool("mousemove", *screen.middle(screen.find("KxTopLevelWindowTitleBar_title", DIALOG)["rect"]))
        screen.key("Escape")
        screen.find("KxMessageBox_confirm", text="Exit")
        screen.find("KxMessageBox_refuse", text="No")
        screen.shoot("escape-question")
        screen.press("KxMessageBox_confirm")
        screen.gone(DIALOG)

    def wait_for_exports(self, count):
        def look(report):
            texts = [widget.get("text", "") for widget in self.screen.all(report, "ExportCard_status")]
            assert not any("Cannot" in text for text in texts), texts
            return len([text for text in texts if text.startswith("Done")]) == count
        self.screen.until(look, f"{count} finished exports")

    def check_result(self, name, frame, left):
        path = os.path.join(self.output, name)
        video = footage.stream(path, "video")
        assert (video["width"], video["height"]) == (304, 540), (video["width"], video["height"])
        assert int(video["nb_read_frames"]) == footage.FRAMES, video["nb_read_frames"]
        assert footage.stream(path, "audio")["codec_name"] == "aac"
        found, misfit = footage.cut_position(self.clip, path, frame, 304)
        wanted = left * footage.WIDTH
        print(f"{name}: frame {frame} was dragged to x = {wanted:.1f} and cut at {found} (misfit {misfit:.2f} of 255)")
        # A pixel of the preview is larger than one of the source.
        assert abs(found - wanted) <= 3, f"dragged to {wanted}, cut at {found}"
        assert misfit < 6, f"the picture differs by {misfit}"

    def cancel_an_analysis(self):
        """After some progress and before its end."""
        screen = self.screen
        screen.press("KrAutoReframePropertyPanel_analyze")
        screen.until(lambda report: (screen.first(report, "KxProgressDialog_bar", "value") or 0) >= 500, "some progress")
        screen.press("KxProgressDialog_cancel")
        screen.gone("KxProgressDialog_cancel")
        screen.find("KrAutoReframePropertyPanel_analyze", enabled=True)
        screen.find("KrAutoReframePropertyPanel_export", enabled=False)
        screen.shoot("analysis-cancelled")

    def cancel_an_export(self):
        screen = self.screen
        screen.until(lambda report: (screen.first(report, "ExportCard_progress", "value") or 0) >= 500, "some progress")
        screen.press("ExportCard_cancel")
        screen.find("ExportCard_status", text="Cancelled")
        screen.shoot("export-cancelled")
        assert os.listdir(self.output) == [], "a cancelled export leaves no file"
        screen.press("ExportCard_retry")

    def close_with_title_bar(self):
        screen = self.screen
        screen.press("KxTopLevelWindowTitleBar_close", DIALOG)
        screen.find("KxMessageBox_refuse", text="Cancel")
        screen.press("KxMessageBox_refuse")
        screen.gone("KxMessageBox_refuse")
        screen.press("KxTopLevelWindowTitleBar_close", DIALOG)
        screen.press("KxMessageBox_confirm", text="Exit")
        screen.gone(DIALOG)

    def interrupt(self):
        """In the middle of an export, as Ctrl-C in the terminal does."""
        self.screen.find("ExportCard_cancel", enabled=True)
        started = time.monotonic()
        self.screen.process.send_signal(signal.SIGINT)
        assert self.screen.wait_for_end() == 130
        print(f"interrupted while exporting, it ended after {time.monotonic() - started:.2f} s")
        assert os.listdir(self.output) == [], "an interrupted export leaves no file"

    def quit(self):
        self.screen.shoot("main-at-the-end")
        self.screen.click(self.screen.find("StatusBar")["rect"])
        self.screen.until(lambda report: report["window"] == "MainWindow", "the main window to be active")
        self.screen.key("ctrl+q")
        assert self.screen.wait_for_end() == 0, "the exit status is not 0"

    def run(self):
        self.import_through_chooser()
        self.analyse()
        frame, left = self.edit()
        self.switch_preview()
        if IS_EMULATED:
            self.open_export_dialog()
            self.screen.shoot("export-dialog-over-the-crop")
            self.screen.key("Escape")
            self.screen.gone("KrAutoReframeExport_export")
            self.show_result()
        self.order_export("walk")
        self.order_export("walk")
        self.close_with_escape()
        self.screen.shoot("exporting")
        self.wait_for_exports(2)
        self.screen.shoot("exported")
        names = ["walk-AutoReframe-9 16 (2).mp4", "walk-AutoReframe-9 16.mp4"]
        assert self.results() == names, self.results()
        for name in names:
            self.check_result(name, frame, left)
        self.open_dialog()
        if IS_EMULATED:
            self.show_result()
        self.close_with_title_bar()
        self.quit()

    def run_on_real_footage(self):
        screen = self.screen
        screen.find("StatusBar_text", text="1 video · 1 selected")
        card = screen.steady(lambda report: next((item["rect"] for item in screen.first(report, "MediaLibrary", "items")
                                                  or []), None), "the card")
        screen.find("TopBar_reframe", enabled=True)
        self.open_with_double_click(card)
        self.cancel_an_analysis()
        screen.press("KrAutoReframePropertyPanel_analyze")
        self.shadow()
        self.pause()
        screen.shoot("analysed")
        self.order_export("street")
        self.close_with_escape()
        self.cancel_an_export()
        self.interrupt()


def main():
    program, folder, name = sys.argv[1], os.path.abspath(sys.argv[2]), sys.argv[3]
    # Two journeys in one folder would read each other's reports.
    lock = open(folder + ".lock", "w", encoding="utf-8")
    fcntl.flock(lock, fcntl.LOCK_EX)
    shutil.rmtree(folder, ignore_errors=True)
    os.makedirs(folder)
    config = os.path.join(folder, "config.ini")
    with open(config, "w", encoding="utf-8") as file:
        file.write(f"[Auto%20Reframe]\nOutputPath={folder}/exports\n")
        # Not every system takes the folder of the person from HOME.
        file.write(f"[Import]\nFolder={folder}\n")
    clip = os.path.join(folder, "walk.mp4")
    environment = {"KX_CONFIG_FILE": config, "KX_DATA": os.path.join(folder, "data"), "HOME": folder}
    size = "1600x1000"
    if name == "cancelling":
        clip = os.path.abspath(sys.argv[4])
    elif name == "dense":
        short_journeys.make_striped(clip)
        size = f"{short_journeys.SCREEN[0]}x{short_journeys.SCREEN[1]}"
        environment.update(QT_SCALE_FACTOR=str(short_journeys.SCALE), QT_QPA_PLATFORM="", XDG_SESSION_TYPE="wayland")
    elif name.startswith("extended"):
        extension_journey.make_shots(clip)
    elif name == "followed":
        follow_journey.make_long_shot(clip)
    elif not name.startswith("batch"):
        footage.make(clip)
    if name in ("extended-dense", "batch-dense"):
        size = "3200x2000"
        environment.update(QT_SCALE_FACTOR="2")
    started = time.monotonic()
    bus = None
    with Desktop(folder, size, composites=name != "plain") as desktop:
        if name == "kept":
            kept = kept_journey.KeptJourney(desktop, folder, program, clip, environment,
                                            lambda screen: Journey(screen, folder, clip))
            run, stop = kept.run, lambda: kept.screen.stop()
        elif name.startswith("batch"):
            batch = batch_journey.BatchJourney(desktop, folder, program, environment,
                                               lambda screen: Journey(screen, folder, clip))
            run, stop = batch.run, lambda: batch.screen.stop()
        else:
            if name == "spoken":
                bus = spoken_journey.Bus(desktop.environment)
                environment.update(DBUS_SESSION_BUS_ADDRESS=bus.address, QT_ACCESSIBILITY="1",
                                   QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
            screen = Screen(desktop, folder, program, [] if name == "whole" else [clip], environment)
            journey = Journey(screen, folder, clip)
            run = {"whole": journey.run, "cancelling": journey.run_on_real_footage,
                   "extended": lambda: extension_journey.ExtensionJourney(journey).run(),
                   "extended-dense": lambda: extension_journey.ExtensionJourney(journey).run(),
                   "followed": lambda: follow_journey.FollowJourney(journey).run(),
                   "spoken": lambda: spoken_journey.SpokenJourney(journey).run(),
                   "plain": lambda: short_journeys.run_without_compositor(journey),
                   "dense": lambda: short_journeys.run_on_a_dense_screen(screen)}[name]
            stop = screen.stop
        try:
            run()
        finally:
            stop()
            if bus is not None:
                bus.stop()
            with open(os.path.join(folder, "program.log"), encoding="utf-8", errors="replace") as log:
                output = log.read()
            print(output, end="")
    # Qt warns when it asks the server about a window that has just gone, and when there is no sound server. Wine lacks a function, and names what the
    # machine lacks.
    usual = ("QXcbConnection: XCB error: 3", "PulseAudioService: pa_context_connect() failed", "EnableNonClientDpiScaling() failed",
             "ALSA lib ", "wine: Read access denied for device")
    complaints = [line for line in output.splitlines() if line.strip() and not any(text in line for text in usual)]
    assert not complaints, "the program wrote warnings"
    print(f"The journey took {time.monotonic() - started:.0f} s; its pictures are in {folder}")


if __name__ == "__main__":
    main()
