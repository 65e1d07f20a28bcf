"""Short journeys on desktops that differ from the usual one."""

import subprocess

SCREEN = (1920, 1080)
# A pixel of the library's thumbnail on a screen of this scale is two pixels of the clip, which is one stripe of it.
SCALE = 2
STRIPED_SIZE = (752, 424)


def make_striped(path):
    """A still video of black and white stripes, each two pixels wide."""
    width, height = STRIPED_SIZE
    subprocess.run(["ffmpeg", "-loglevel", "error", "-y", "-f", "lavfi", "-i",
                    f"nullsrc=size={width}x{height}:rate=25:duration=1,format=gray,"
                    "geq=lum='if(lt(mod(X,4),2),20,235)',format=yuv420p",
                    "-c:v", "libx264", "-crf", "4", path], check=True)


def contrast(rows):
    """The mean difference of brightness between neighbouring columns."""
    steps = [abs(row[column][1] - row[column + 1][1]) for row in rows for column in range(len(row) - 1)]
    return sum(steps) / len(steps)


def run_on_a_dense_screen(screen):
    """Everything is on a screen of 960 x 540 widget pixels, and thumbnails are as sharp as the screen."""
    screen.find("StatusBar_text", text="1 video · 1 selected")
    report = screen.find_report(lambda now: screen.first(now, "TopBar_reframe", "enabled"), "the video to be open")
    assert report["platform"] == "xcb", report["platform"]
    for name in ("MainWindow", "TopBar_import", "TopBar_reframe", "ExportPanel", "StatusBar"):
        x, y, width, height = screen.first(report, name, "rect")
        is_inside = x >= 0 and y >= 0 and x + width <= SCREEN[0] and y + height <= SCREEN[1]
        assert is_inside, f"{name} at {x}, {y}, {width} x {height} is not on the screen of {SCREEN}"

    card = screen.steady(lambda now: next((item["rect"] for item in screen.first(now, "MediaLibrary", "items") or []),
                                          None), "the card")
    middle = (card[0] + card[2] // 2, card[1] + card[3] // 3)
    seen = []

    def is_sharp():
        seen.append(contrast(screen.pixels((middle[0] - 30, middle[1] - 10, 60, 20))))
        return seen[-1] > 100
    screen.until(is_sharp, "a thumbnail that shows every stripe", fresh=False)
    screen.shoot("dense-screen")
    print(f"neighbouring columns of the thumbnail differ by {seen[-1]:.0f} of 255")


def run_without_compositor(journey):
    """Analysis, crop and reframed preview where no window can be translucent."""
    screen = journey.screen
    screen.find("StatusBar_text", text="1 video · 1 selected")
    journey.open_dialog()
    screen.press("KrAutoReframePropertyPanel_analyze")
    screen.find("KrAutoReframePropertyPanel_restart", enabled=True)
    journey.pause()
    journey.expect_video_under_crop()
    screen.shoot("crop-over-the-video")
    screen.press("KrAutoReframePropertyPanel_previewSwitch")
    screen.find("KrAutoReframePropertyPanel_previewSwitch", checked=False)
    journey.expect_video("KxMediaPlayerWidget")
    screen.shoot("reframed-preview")
    journey.close_with_title_bar()
    journey.quit()
