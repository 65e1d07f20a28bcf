"""What the dialog's extensions add: doubtful shots, edits that survive, a crop that the arrow keys move."""

import subprocess

import follow_journey
import footage

SHOT_SECONDS = 4
SHOT_FRAMES = SHOT_SECONDS * footage.RATE
EDITED = (0xFF, 0x8B, 0x55)
HINT = "KrAutoReframePropertyPanel_hint"
SHOTS = "KrAutoReframePropertyPanel_shots"
PREVIEW = "KrAutoReframePropertyPanel_previewSwitch"
RATIO = "KrAutoReframePropertyPanel_aspectRatio"


def make_shots(path):
    """Three shots: a figure that walks, and two empty pictures."""
    size = f"{footage.WIDTH}x{footage.HEIGHT}:rate={footage.RATE}:duration={SHOT_SECONDS}"
    subprocess.run(
        ["ffmpeg", "-loglevel", "error", "-y",
         "-f", "lavfi", "-i", f"color=c=0x506070:size={size}",
         "-f", "lavfi", "-i", f"color=c=red:size=70x300:rate={footage.RATE}:duration={SHOT_SECONDS}",
         "-f", "lavfi", "-i", f"color=c=0xb0b0b0:size={size}", "-f", "lavfi", "-i", f"color=c=0x305030:size={size}",
         "-filter_complex", "[0][1]overlay=x='300+60*t':y=160:eval=frame[walk];[walk][2][3]concat=n=3[v]",
         "-map", "[v]", "-c:v", "libx264", "-crf", "16", "-preset", "veryfast", "-pix_fmt", "yuv420p", path], check=True)


class ExtensionJourney:
    def __init__(self, journey):
        self.journey = journey
        self.screen = journey.screen

    def choose_ratio(self, text):
        self.choose_from(RATIO, text)

    def choose_from(self, name, text):
        screen = self.screen
        screen.press(name)
        item = screen.steady(lambda report: next((item["rect"] for widget in report["widgets"]
                                                  for item in widget.get("items") or []
                                                  if item.get("text") == text and widget["window"] != "MainWindow"), None),
                             f"{text} in the list")
        screen.click(item)
        screen.find(name, text=text)

    def look_at_doubtful_shots(self):
        screen, journey = self.screen, self.journey
        journey.open_dialog()
        screen.press("KrAutoReframePropertyPanel_analyze")
        journey.shadow()
        journey.pause()
        journey.go_to(0.1)
        screen.find(SHOTS, text="2 of 3 shots to look at")
        screen.shoot("doubtful-shots")
        screen.press("KrAutoReframe_nextDoubt")
        journey.expect_frame(SHOT_FRAMES)
        screen.find(SHOTS, text="1 of 3 shots to look at")
        screen.shoot("one-seen")
        screen.key("n")
        journey.expect_frame(2 * SHOT_FRAMES)
        screen.find(SHOTS, text="All doubtful shots seen")
        screen.key("shift+n")
        journey.expect_frame(SHOT_FRAMES)
        slider = screen.find("KrUIStyle_ToolBarSlider")["rect"]
        screen.move(slider[0] + slider[2] * 5 // 6, slider[1] + slider[3] // 2)
        screen.find("qtooltip_label", text="Shot 3 of 3: nothing stands out")
        screen.shoot("reason")

    def move_by_keys(self):
        screen, journey = self.screen, self.journey
        frame = journey.go_to(0.15)
        before = journey.outline(journey.ACCENT)[0]
        x, y, width, height = journey.shadow()
        crop = (x + int((before + 0.15) * width), y + height // 2)
        screen.move(*crop)
        screen.tool("click", 1)
        screen.until(lambda report: report["focus"] == "KxMediaPlayerWidget", "the picture to have the focus")
        for _ in range(6):
            screen.key("shift+Right")
        screen.find("KrAutoReframe_undo", enabled=True)
        moved = journey.outline(EDITED)[0] - before
        assert abs(moved - 60 / footage.WIDTH) < 0.01, f"60 pixels by keys, {moved * footage.WIDTH:.1f} on the screen"
        screen.key("shift+Tab", "Tab")
        screen.until(lambda report: report["focus"] == "KxMediaPlayerWidget", "the picture to have the focus again")
        screen.shoot("moved-by-keys")
        return frame

    def keep_the_edit(self, frame):
        screen, journey = self.screen, self.journey
        left, right = journey.outline(EDITED)
        self.choose_ratio("1:1")
        screen.find(HINT, text="Settings changed: analyze again")
        screen.shoot("settings-changed")
        screen.press("KrAutoReframePropertyPanel_restart")
        screen.gone(HINT)
        journey.expect_frame(frame)
        screen.until(lambda: journey.outline(EDITED)[1] - journey.outline(EDITED)[0] > right - left + 0.1,
                     "the edit in the wider crop", fresh=False)
        wide = journey.outline(EDITED)
        assert abs((wide[0] + wide[1]) - (left + right)) < 0.02, f"{left}..{right} became {wide}"
        screen.shoot("edit-in-another-ratio")

    def open_again(self, frame):
        screen, journey = self.screen, self.journey
        journey.close_with_title_bar()
        journey.open_dialog()
        screen.find("KrAutoReframePropertyPanel_restart", enabled=True)
        screen.find(RATIO, text="1:1")
        screen.find(SHOTS, text="All doubtful shots seen")
        screen.press("KrAutoReframe_next")
        journey.expect_frame(frame)
        journey.outline(EDITED)
        screen.shoot("opened-again")

    def follow_a_box(self):
        """Draws a box around the figure with the right button, and follows it."""
        screen, journey = self.screen, self.journey
        journey.go_to(0.1)
        follow_journey.follow(journey, (0.30, 0.25, 0.55, 0.90))
        screen.find("KrAutoReframe_undo", enabled=True)
        journey.shadow()
        screen.shoot("followed")

    def show_whole_picture(self):
        """The first shot is shown completely, over its own blurred picture."""
        screen, journey = self.screen, self.journey
        journey.go_to(0.1)
        x, y, width, height = journey.shadow()
        screen.move(x + width // 2, y + height // 2)
        screen.tool("click", 3)
        menu = screen.find("KrAutoReframe_followMenu")
        screen.steady(lambda report: str(screen.first(report, "KrAutoReframe_followMenu", "rect")), "the menu")
        screen.shoot("menu-after-click")
        screen.click(next(item["rect"] for item in menu["items"]
                          if item["text"] == "Show the Whole Picture in This Shot"))
        screen.gone("KrAutoReframe_followMenu")
        left, right = journey.outline(journey.ACCENT)
        assert right - left > 0.98, f"the crop is {left}..{right}"
        screen.shoot("whole-picture-to-adjust")
        screen.press(PREVIEW)
        screen.until(lambda report: not any(widget["class"] == "ShadowForm" for widget in report["widgets"]),
                     "the overlay to disappear")

        def red():
            """Where the figure is in the preview: left, right, top, bottom in pixels."""
            player = next(widget["rect"] for widget in screen.report()["widgets"]
                          if widget["class"] == "KxMediaPlayerWidget")
            rows = screen.pixels(player)
            found = [(column, row) for row, line in enumerate(rows) for column, pixel in enumerate(line)
                     if pixel[0] > 180 and pixel[1] < 60 and pixel[2] < 60]
            if not found:
                return None
            columns, lines = [place[0] for place in found], [place[1] for place in found]
            return max(columns) - min(columns) + 1, max(lines) - min(lines) + 1
        size = screen.until(red, "the figure in the preview", fresh=False)
        assert abs(size[0] / size[1] - 70 / 300) < 0.03, f"the figure is stretched: {size}"
        screen.shoot("whole-picture-in-the-preview")
        screen.press(PREVIEW)
        journey.shadow()

    def choose_guides(self, *names):
        """Each choice closes the menu."""
        screen = self.screen
        for name in names:
            screen.press("KrAutoReframe_view")
            menu = screen.find("KrAutoReframe_viewMenu")
            screen.steady(lambda report: str(screen.first(report, "KrAutoReframe_viewMenu", "rect")), "the menu")
            screen.click(next(item["rect"] for item in menu["items"] if item["text"] == name))
            screen.gone("KrAutoReframe_viewMenu")

    def see_before_exporting(self):
        """Guides over the crop and over the result; the file that is exported has none of them."""
        screen, journey = self.screen, self.journey
        self.choose_ratio("9:16")
        screen.press("KrAutoReframePropertyPanel_restart")
        screen.gone(HINT)
        screen.find("KrAutoReframe_outputSize", text="Output: 304 × 540")
        self.choose_from("KrAutoReframe_output", "720 × 1280")
        screen.find("KrAutoReframe_outputSize", text="Output: 720 × 1280, enlarged")
        screen.shoot("output-size")
        self.choose_from("KrAutoReframe_output", "As large as the crop")
        screen.find("KrAutoReframe_outputSize", text="Output: 304 × 540")
        self.choose_guides("Safe Zones", "Thirds", "Headroom")
        journey.shadow()
        screen.shoot("guides-over-crop")
        screen.press("KrAutoReframe_view")
        screen.find("KrAutoReframe_viewMenu")
        screen.shoot("view-menu")
        screen.key("Escape")
        screen.gone("KrAutoReframe_viewMenu")
        screen.press(PREVIEW)
        screen.until(lambda report: not any(widget["class"] == "ShadowForm" for widget in report["widgets"]),
                     "the overlay to disappear")
        screen.shoot("guides-over-result")
        self.choose_guides("Thirds", "Headroom")
        screen.shoot("safe-zones-over-result")
        screen.press(PREVIEW)
        journey.shadow()

    def compare_ratios(self):
        screen, journey = self.screen, self.journey
        screen.press("KrAutoReframe_view")
        menu = screen.find("KrAutoReframe_viewMenu")
        screen.steady(lambda report: str(screen.first(report, "KrAutoReframe_viewMenu", "rect")), "the menu")
        screen.shoot("view-menu-to-compare")
        screen.click(next(item["rect"] for item in menu["items"] if item["text"].startswith("Compare")))
        for caption in ("9:16 · 304 × 540", "1:1 · 540 × 540", "4:5 · 432 × 540"):
            screen.until(lambda report, caption=caption: any(widget.get("text") == caption
                                                             for widget in report["widgets"]), caption)
        screen.shoot("ratios-side-by-side")
        screen.key("Escape")
        screen.gone("KrAutoReframe_ratioComparison")

    def follow_the_export(self):
        screen, journey = self.screen, self.journey
        journey.order_export("a-rather-long-name-of-a-video-of-a-walk")
        screen.find("KrAutoReframe_exportFile")
        screen.shoot("export-begins")
        screen.find("KrAutoReframe_exportState", text="Exported")
        screen.find("KrAutoReframe_showInFolder", enabled=True)
        screen.shoot("exported")
        assert len(journey.results()) == 1, journey.results()

    def run(self):
        self.screen.find("StatusBar_text", text="1 video · 1 selected")
        self.look_at_doubtful_shots()
        frame = self.move_by_keys()
        self.keep_the_edit(frame)
        self.open_again(frame)
        self.follow_a_box()
        self.see_before_exporting()
        self.compare_ratios()
        self.follow_the_export()
        self.show_whole_picture()
        self.journey.close_with_title_bar()
        self.journey.quit()
