"""A screen of its own, and the real DOSBox on it, for the tests beside this file.

Nothing here touches the user's files: every program gets a home in the temporary folder, and of the
environment only PATH.
"""

import os
import pathlib
import struct
import subprocess
import sys
import tempfile
import time

REPOSITORY = pathlib.Path(__file__).resolve().parents[2]
MAPPER = REPOSITORY / "mapper/mapper_default.txt"


def run_in_temporary_folder(run):
    """The main program of a test: run(temporary folder, *folders of the command line)."""
    with tempfile.TemporaryDirectory() as folder:
        run(pathlib.Path(folder), *(pathlib.Path(name).resolve() for name in sys.argv[1:]))


def note_level(number, file):
    """Lines of a batch file that write the errorlevel, 0 to 3, into a file."""
    # A redirection behind "if" makes its file in any case: jump.
    lines = [f"if errorlevel {level} goto case{number}is{level}" for level in (3, 2, 1)]
    for level in (0, 1, 2, 3):
        lines += [f":case{number}is{level}", f"echo {level} > {file}", f"goto end{number}"]
    return [*lines, f":end{number}"]


def wait_until(condition, seconds, what):
    """Polls until the condition gives something, and returns that."""
    end = time.monotonic() + seconds
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > end:
            raise AssertionError(f"not within {seconds} s: {what}")
        time.sleep(0.05)


class Screen:
    """Xvfb on the first free display, and openbox. To be used as a context."""

    def __init__(self, folder):
        home, runtime = folder / "home", folder / "run"
        home.mkdir()
        runtime.mkdir(mode=0o700)
        self.env = {
            "PATH": os.environ["PATH"],
            "HOME": str(home),
            "XDG_RUNTIME_DIR": str(runtime),
            "SDL_AUDIODRIVER": "dummy",
        }
        self.programs = []

    def __enter__(self):
        try:
            self._start()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *unused):
        for program in reversed(self.programs):
            if program.poll() is None:
                program.terminate()
            try:
                program.wait(5)
            except subprocess.TimeoutExpired:
                program.kill()
                program.wait()

    def _start(self):
        reader, writer = os.pipe()
        server = ["Xvfb", "-displayfd", str(writer), "-screen", "0", "1024x768x24", "-noreset"]
        self.start(server + ["-nolisten", "tcp"], pass_fds=[writer])
        os.close(writer)
        with os.fdopen(reader) as pipe:
            number = pipe.readline().strip()
        assert number, "Xvfb does not start"
        self.env["DISPLAY"] = ":" + number
        # A window that asks to be shown while openbox still starts may be forgotten, and SDL then
        # waits for ever. What --startup names runs when it is done; its properties come earlier.
        ready = pathlib.Path(self.env["HOME"]) / "openbox-ready"
        self.start(["openbox", "--sm-disable", "--startup", f"touch '{ready}'"])
        wait_until(ready.exists, 10, "openbox manages the screen")

    def start(self, command, **more):
        """Starts a program that ends with the screen at the latest."""
        quiet = {"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}
        program = subprocess.Popen(command, env=self.env, **{**quiet, **more})
        self.programs.append(program)
        return program

    def run(self, command):
        """What a short command prints; nothing when it fails."""
        done = subprocess.run(command, env=self.env, capture_output=True, timeout=20, check=False)
        return done.stdout.decode("utf-8", "replace") if done.returncode == 0 else ""

    def key(self, *keys):
        """Types keys into the window that has the focus."""
        self.run(["xdotool", "key", "--delay", "60", *keys])

    def pixels(self, window):
        """What a window shows: a number a pixel, row by row; nothing when it can't be read."""
        command = ["xwd", "-silent", "-id", window]
        done = subprocess.run(command, env=self.env, capture_output=True, timeout=20, check=False)
        dump = done.stdout
        if len(dump) < 100:
            return ()
        header = struct.unpack(">25I", dump[:100])
        order, bits, line_bytes, entries = header[7], header[11], header[12], header[19]
        assert bits == 32, "a screen of 24 bits has pixels of 32"
        pixels = dump[header[0] + 12 * entries :][: line_bytes * header[5]]
        numbers = struct.unpack(("<", ">")[order] + f"{len(pixels) // 4}I", pixels)
        return tuple(number & 0xFFFFFF for number in numbers)

    def colours(self, window):
        """The colours that a window shows, as numbers; black is 0."""
        return set(self.pixels(window))


class Dosbox:
    """DOSBox in a folder laid out as an installation: DOSBox/0.74, Dos, mapper, Games."""

    def __init__(self, screen, conf_folder):
        self.screen = screen
        self.output = conf_folder / "output.txt"
        with open(self.output, "wb") as output:
            command = ["dosbox", "-conf", "dosbox.conf"]
            self.process = screen.start(
                command, cwd=conf_folder, stdin=subprocess.DEVNULL, stdout=output, stderr=output
            )

    def window(self):
        """The id of its window, which then has the focus."""
        search = ["xdotool", "search", "--onlyvisible", "--class", "dosbox"]
        ids = wait_until(lambda: self.screen.run(search).split(), 10, "DOSBox shows its window")
        self.screen.run(["xdotool", "windowactivate", "--sync", ids[-1]])
        return ids[-1]

    def ended(self):
        return self.process.poll() is not None
