"""A screen of its own, a fresh Wine folder, and what a user has: eyes (tesseract), a mouse and keys (xdotool)."""

import os
import re
import subprocess
import time
from pathlib import Path

WINE = "/usr/lib/wine/wine64"  # the wrapper asks for a 32-bit part that is not needed
LONGEST_WAIT = 60.0  # seconds for any one condition

# A screen of 200 %, and a font for Windows' own: letters that can be read by a program.
REGISTRY = """REGEDIT4
[HKEY_CURRENT_USER\\Control Panel\\Desktop]
"LogPixels"=dword:000000c0
[HKEY_CURRENT_USER\\Software\\Wine\\Fonts\\Replacements]
"MS Shell Dlg"="DejaVu Sans"
"MS Shell Dlg 2"="DejaVu Sans"
"Tahoma"="DejaVu Sans"
"Segoe UI"="DejaVu Sans"
"""


def windows_path(path: Path) -> str:
    return "Z:" + str(path).replace("/", "\\")


def wait_for(what: str, condition, longest: float = LONGEST_WAIT):
    """The first true value of condition(); fails with `what` when there is none in time."""
    end = time.monotonic() + longest
    while time.monotonic() < end:
        value = condition()
        if value:
            return value
        time.sleep(0.1)  # between two looks
    raise AssertionError(f"waited {longest:.0f} s in vain for {what}")


class Desktop:
    def __init__(self, folder: Path, pictures: Path):
        """`folder` becomes the user's home; pictures of the screen go to `pictures`."""
        self.folder, self.pictures = folder, pictures
        (folder / ".local/share").mkdir(parents=True)  # else Wine's recycle bin deletes
        pictures.mkdir(parents=True, exist_ok=True)
        reading, writing = os.pipe()
        self.screen = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", "2560x1700x24", "-nolisten", "tcp"],
            pass_fds=[writing], stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as answer:
            display = ":" + answer.readline().strip()
        kept = {name: os.environ[name] for name in ("PATH", "LANG", "TMPDIR") if name in os.environ}
        self.environment = kept | {"HOME": str(folder), "DISPLAY": display, "WINEPREFIX": str(folder / "wine"),
                                   "WINEDEBUG": "-all", "WINEDLLOVERRIDES": "mscoree,mshtml="}

        settings = folder / "settings.reg"
        settings.write_text(REGISTRY)
        self.start(Path("regedit"), "/S", windows_path(settings)).wait(LONGEST_WAIT)

    def close(self):
        subprocess.run(["wineserver", "-k"], env=self.environment | {"PATH": "/usr/lib/wine:" + os.environ["PATH"]},
                       check=False, capture_output=True)
        self.screen.terminate()
        self.screen.wait()

    def start(self, program: Path, *arguments: str, **options) -> subprocess.Popen:
        silence = {stream: subprocess.DEVNULL for stream in ("stdin", "stdout", "stderr")}
        return subprocess.Popen([WINE, str(program), *arguments], env=self.environment, **(silence | options))

    def output(self, program: Path, *arguments: str) -> str:
        with self.start(program, *arguments, stdout=subprocess.PIPE) as process:
            return process.communicate(timeout=LONGEST_WAIT)[0].decode()

    def xdotool(self, *arguments: str) -> str:
        return subprocess.run(["xdotool", *arguments], env=self.environment, capture_output=True, text=True).stdout

    def window(self, title: str) -> str | None:
        """The visible window of exactly this title."""
        found = self.xdotool("search", "--onlyvisible", "--name", f"^{re.escape(title)}$").split()
        return found[-1] if found else None

    def await_window(self, title: str) -> str:
        return wait_for(f"a window “{title}”", lambda: self.window(title))

    def await_no_window(self, title: str):
        wait_for(f"the end of “{title}”", lambda: not self.window(title))

    def key(self, *keys: str):
        self.xdotool("key", *keys)

    def write(self, text: str):
        self.xdotool("type", text)

    def picture(self, name: str) -> Path:
        path = self.pictures / f"{name}.png"
        subprocess.run(["import", "-window", "root", str(path)], env=self.environment, check=True)
        return path

    def words(self) -> list[tuple[str, int, int]]:
        """The words on the screen in reading order, without the points around them, and their middles."""
        picture = self.picture("looking")
        table = subprocess.run(["tesseract", str(picture), "-", "--psm", "11", "tsv"], capture_output=True, check=True,
                               text=True, env=os.environ | {"OMP_THREAD_LIMIT": "1"}).stdout
        picture.unlink()
        rows = [line.split("\t") for line in table.splitlines()[1:]]
        return [(row[11].strip(".,:·-…"), int(row[6]) + int(row[8]) // 2, int(row[7]) + int(row[9]) // 2)
                for row in rows if len(row) == 12 and row[11].strip()]

    def place_of(self, text: str) -> tuple[int, int] | None:
        """The middle of the last place where these words stand in a row."""
        wanted, words = text.split(), self.words()
        for first in range(len(words) - len(wanted), -1, -1):
            found = words[first:first + len(wanted)]
            if [word for word, _, _ in found] == wanted and abs(found[0][2] - found[-1][2]) < 16:
                return (found[0][1] + found[-1][1]) // 2, found[0][2]
        return None

    def await_text(self, text: str) -> tuple[int, int]:
        return wait_for(f"“{text}” on the screen", lambda: self.place_of(text))

    def click(self, text: str):
        x, y = self.await_text(text)
        self.xdotool("mousemove", str(x), str(y), "click", "1")
