"""Following something in a long shot: the crop is drawn while the thing is followed."""

import signal
import subprocess

import footage

SECONDS = 120
HINT = "KrAutoReframePropertyPanel_hint"
# In fractions of the picture, around the figure.
FIGURE = (0.70, 0.27, 0.84, 0.88)
# The automatic crop, at the card, ends left of this place; one at the figure begins right of it.
BETWEEN = 0.45


def make_long_shot(path):
    """A card with a grid at the left, which the analysis chooses, and a figure that sways at the right."""
    subprocess.run(
        ["ffmpeg", "-loglevel", "error", "-y",
         "-f", "lavfi", "-i", f"color=c=0x506070:size={footage.WIDTH}x{footage.HEIGHT}:rate={footage.RATE}:duration={SECONDS}",
         "-f", "lavfi", "-i", f"color=c=red:size=70x300:rate={footage.RATE}:duration={SECONDS}",
         "-f", "lavfi", "-i", f"color=c=0x909090:size=100x180:rate={footage.RATE}:duration={SECONDS},drawgrid=w=24:h=30:t=4:c=black",
         "-filter_complex", "[0][1]overlay=x='700+12*sin(t)':y=160:eval=frame[walk];[walk][2]overlay=x=70:y=180[v]",
         "-map", "[v]", "-c:v", "libx264", "-crf", "20", "-preset", "veryfast", "-pix_fmt", "yuv420p", path], check=True)


def follow(journey, box):
    """Draws a box, in fractions of the picture, with the right button, and follows what is in it."""
    screen = journey.screen
    x, y, width, height = journey.shadow()
    start = (x + int(box[0] * width), y + int(box[1] * height))
    end = (x + int(box[2] * width), y + int(box[3] * height))
    screen.move(*start)
    screen.tool("mousedown", 3)
    for step in range(1, 9):
        screen.move(start[0] + (end[0] - start[0]) * step // 8, start[1] + (end[1] - start[1]) * step // 8)
    screen.tool("mouseup", 3)
    menu = screen.find("KrAutoReframe_followMenu")
    screen.shoot("box-and-menu")
    screen.click(next(item["rect"] for item in menu["items"] if item["text"] == "Follow This"))
    screen.gone("KrAutoReframe_followMenu")


class FollowJourney:
    def __init__(self, journey):
        self.journey = journey
        self.screen = journey.screen

    def is_following(self, report):
        return (self.screen.first(report, HINT, "text") or "").startswith("Following: ")

    def frozen_outline(self, rect):
        """The crop's outline while the program stands still, however long looking takes."""
        self.screen.process.send_signal(signal.SIGSTOP)
        try:
            return self.journey.outline_now(rect, self.journey.ACCENT)
        finally:
            self.screen.process.send_signal(signal.SIGCONT)

    def expect_growth(self, rect):
        """The crop goes to the figure, and following continues after that."""
        def look():
            outline = self.frozen_outline(rect)
            assert self.is_following(self.screen.report()), f"following has ended, and the crop was at {outline} before"
            return outline is not None and outline[0] > BETWEEN
        self.screen.until(look, "the crop to be drawn while the figure is followed", fresh=False)

    def run(self):
        screen, journey = self.screen, self.journey
        screen.find("StatusBar_text", text="1 video · 1 selected")
        journey.open_dialog()
        screen.press("KrAutoReframePropertyPanel_analyze")
        rect = journey.shadow()
        journey.pause()
        assert journey.outline(journey.ACCENT)[1] < BETWEEN, "the analysis chooses the card"
        follow(journey, FIGURE)
        screen.find_report(self.is_following, "the progress of following")
        self.expect_growth(rect)
        screen.shoot("following")
        # The choice is taken back while it is followed.
        screen.press("KrAutoReframe_undo")
        screen.gone(HINT)
        assert journey.outline(journey.ACCENT)[1] < BETWEEN, "the crop returns to the card"
        screen.press("KrAutoReframe_redo")
        screen.find_report(self.is_following, "the progress of following")
        self.expect_growth(rect)
        screen.gone(HINT)
        assert journey.outline(journey.ACCENT)[0] > BETWEEN, "the crop stays at the figure"
        screen.shoot("followed")
        journey.close_with_title_bar()
        journey.quit()
