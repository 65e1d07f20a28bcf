"""A desktop for one program under test: X server, window manager, compositor; for a Windows program a Wine of its own. Ends what it started."""

import os
import shutil
import subprocess
import time


class Desktop:
    def __init__(self, folder, size="1600x1000", composites=True):
        self.folder = folder
        self.size = size
        self.composites = composites
        self.processes = []
        self.wine = None

    def __enter__(self):
        read_end, write_end = os.pipe()
        # The server chooses a free number and writes it when it accepts clients. Without -noreset it would restart, and
        # refuse clients meanwhile, whenever its last client leaves.
        self._start("Xvfb", ["-displayfd", str(write_end), "-noreset", "-screen", "0", self.size + "x24", "-dpi", "96"],
                    os.environ, (write_end,))
        os.close(write_end)
        with os.fdopen(read_end) as answer:
            number = answer.readline().strip()
        assert number, "Xvfb did not start"
        runtime = os.path.join(self.folder, "runtime")
        os.makedirs(runtime, mode=0o700, exist_ok=True)
        self.environment = dict(os.environ, DISPLAY=":" + number, XDG_RUNTIME_DIR=runtime, QT_QPA_PLATFORM="xcb",
                                QT_FONT_DPI="96", QT_ACCESSIBILITY="0", DBUS_SESSION_BUS_ADDRESS="disabled:")
        if os.environ.get("KR_EMULATOR"):
            self.environment.pop("QT_QPA_PLATFORM")
            self._make_wine()
        for name in ("QT_STYLE_OVERRIDE", "QT_QPA_PLATFORMTHEME", "QT_SCALE_FACTOR", "WAYLAND_DISPLAY", "XDG_SESSION_TYPE"):
            self.environment.pop(name, None)
        self._start("openbox", ["--sm-disable"], self.environment)
        self._wait_for("the window manager", ["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], "window id")
        if self.composites:
            self._start("picom", ["--backend", "xrender"], self.environment)
            self._wait_for("the compositor", ["xwininfo", "-root", "-tree"], '"picom"')
        return self

    def __exit__(self, *_):
        if self.wine:
            subprocess.run(["wineserver", "-k"], env=self.environment, check=False)
            shutil.rmtree(self.wine, ignore_errors=True)
        for process in reversed(self.processes):
            process.terminate()
        for process in reversed(self.processes):
            try:
                process.wait(10)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()

    def _make_wine(self):
        """A Wine that runs already keeps the screen that it was started with: without a display one of 1024 x 768, beyond which it ignores clicks."""
        folder = os.environ.get("AUTO_REFRAME_WINDOWS") or os.path.expanduser("~/.cache/auto-reframe-windows")
        self.wine = os.path.join(self.folder, "wine")
        shutil.rmtree(self.wine, ignore_errors=True)
        subprocess.run(["cp", "-a", "--reflink=auto", os.environ.get("WINEPREFIX") or os.path.join(folder, "wine"), self.wine], check=True)
        self.environment["WINEPREFIX"] = self.wine

    def _start(self, program, arguments, environment, passed=()):
        log = open(os.path.join(self.folder, program + ".log"), "wb")
        self.processes.append(subprocess.Popen([program] + arguments, env=environment, stdout=log, stderr=log,
                                               pass_fds=passed))

    def _wait_for(self, what, command, sign):
        for _ in range(300):
            if sign in subprocess.run(command, env=self.environment, capture_output=True, text=True).stdout:
                return
            time.sleep(0.1)
        raise AssertionError(what + " did not start")
