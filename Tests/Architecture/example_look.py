"""Opens README's example on a screen of its own and compares its dialog with example_look.png.

example_look.py PROGRAM FOLDER [--update]: what was seen is kept in FOLDER. With --update it replaces the picture, and the run
fails, so that nobody forgets that the picture was not compared.
"""

import os
import shutil
import subprocess
import sys
import time

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "E2e"))

from desktop import Desktop  # noqa: E402

EXPECTED = os.path.join(HERE, "example_look.png")
# Letters may be drawn a little differently by another version of the font library; an unstyled dialog differs everywhere.
ALIKE = "6%"
MOST_DIFFERENT = 0.01
PATIENCE = float(os.environ.get("KR_E2E_PATIENCE", "120"))


def settled_window(environment, program):
    """The number of the dialog's window, once it is on the screen and its picture does not change any more."""
    pictures = []
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        if program.poll() is not None:
            sys.exit(f"The example ended ({program.returncode}) before it showed its dialog.")
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "^Auto Reframe$"], env=environment,
                               capture_output=True, text=True).stdout.split()
        if found:
            pictures.append(subprocess.run(["import", "-window", found[0], "rgb:-"], env=environment,
                                           capture_output=True).stdout)
            if len(pictures) > 3 and pictures[-1] and pictures[-1] == pictures[-2] == pictures[-3]:
                return found[0]
        time.sleep(0.05)
    sys.exit(f"The example showed no dialog within {PATIENCE} s.")


def difference(seen, expected):
    """The share of pixels that differ; all of them where the sizes differ."""
    result = subprocess.run(["compare", "-metric", "AE", "-fuzz", ALIKE, seen, expected, "null:"],
                            capture_output=True, text=True)
    size = subprocess.run(["identify", "-format", "%w %h", expected], capture_output=True, text=True, check=True)
    width, height = (int(part) for part in size.stdout.split())
    try:
        return float(result.stderr.split()[0]) / (width * height)
    except (ValueError, IndexError):
        return 1.0


def main():
    program, folder = sys.argv[1:3]
    os.makedirs(folder, exist_ok=True)
    seen = os.path.join(folder, "seen.png")
    with Desktop(folder) as desktop:
        example = subprocess.Popen([program], env=desktop.environment)
        try:
            window = settled_window(desktop.environment, example)
            subprocess.run(["import", "-window", window, seen], env=desktop.environment, check=True)
        finally:
            example.kill()
            example.wait()
    if "--update" in sys.argv:
        shutil.copy(seen, EXPECTED)
        sys.exit("The picture was replaced, not compared.")
    share = difference(seen, EXPECTED)
    if share > MOST_DIFFERENT:
        sys.exit(f"{share:.1%} of the dialog's pixels differ: compare {seen} with {EXPECTED}.")
    print(f"{share:.2%} of the dialog's pixels differ")


main()
