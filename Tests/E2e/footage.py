"""Footage in which every column is different, and functions that find out what was cut out of it."""

import json
import subprocess

WIDTH, HEIGHT, RATE, FRAMES = 960, 540, 25, 400
# The rows above the figure.
TOP_ROWS = 60


def make(path):
    """A grey ramp with waves on it, a red figure that walks to the right, and a tone."""
    seconds = FRAMES / RATE
    subprocess.run(
        ["ffmpeg", "-loglevel", "error", "-y",
         "-f", "lavfi", "-i", f"nullsrc=size={WIDTH}x{HEIGHT}:rate=1:duration=1,format=gray,"
                              f"geq=lum='40+150*X/W+25*sin(X/9)',loop=loop={FRAMES}:size=1:start=0,"
                              f"setpts=N/{RATE}/TB,fps={RATE},format=yuv420p",
         "-f", "lavfi", "-i", f"color=c=red:size=70x300:rate={RATE}",
         "-f", "lavfi", "-i", "sine=frequency=440:sample_rate=48000",
         "-filter_complex", "[0][1]overlay=x='120+40*t':y=160:eval=frame:shortest=1[v]",
         "-map", "[v]", "-map", "2", "-t", str(seconds), "-frames:v", str(FRAMES), "-c:v", "libx264", "-crf", "16",
         "-preset", "veryfast", "-c:a", "aac", path], check=True)


def facts(path):
    answer = subprocess.run(["ffprobe", "-loglevel", "error", "-count_frames", "-show_streams", "-show_format", "-of",
                             "json", path], check=True, capture_output=True, text=True).stdout
    return json.loads(answer)


def stream(path, kind):
    return next(stream for stream in facts(path)["streams"] if stream["codec_type"] == kind)


def top_profile(path, frame, width):
    """The mean brightness of each column in the top rows of one frame."""
    raw = subprocess.run(["ffmpeg", "-loglevel", "error", "-i", path, "-vf",
                          f"select=eq(n\\,{frame}),crop={width}:{TOP_ROWS}:0:0", "-frames:v", "1", "-f", "rawvideo",
                          "-pix_fmt", "rgb24", "-"], check=True, capture_output=True).stdout
    assert len(raw) == 3 * width * TOP_ROWS, f"frame {frame} of {path} cannot be read"
    greens = raw[1::3]
    return [sum(greens[column::width]) / TOP_ROWS for column in range(width)]


def cut_position(source, result, frame, result_width):
    """The column of the source at the left edge of the result, and the mean difference there (0: identical)."""
    whole = top_profile(source, frame, WIDTH)
    part = top_profile(result, frame, result_width)
    best = min((sum(abs(whole[left + column] - part[column]) for column in range(8, result_width - 8)), left)
               for left in range(WIDTH - result_width + 1))
    return best[1], best[0] / (result_width - 16)
