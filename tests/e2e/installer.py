#!/usr/bin/env python3
"""Installs and uninstalls the Windows program under Wine.

installer.py SETUP: installs over a folder that holds a user's own files, refuses while the program runs, installs over
itself, uninstalls, and looks at what stays: the user's files and data, nothing of the program's."""

import sys
import tempfile
from pathlib import Path

from desktop import Desktop, LONGEST_WAIT, wait_for, windows_path

UNINSTALL_KEY = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Mirrix"


class Installation:
    def __init__(self, desktop: Desktop, setup: Path, target: Path):
        self.desktop, self.setup, self.target = desktop, setup, target
        self.profile = next((desktop.folder / "wine/drive_c/users").glob("[!P]*"))
        self.shortcut = self.profile / "AppData/Roaming/Microsoft/Windows/Start Menu/Programs/Mirrix.lnk"
        self.own = {target / "notes.txt": b"mine", target / "own.dll": b"mine too", target / "platforms/own.txt": b"also"}
        for file, content in self.own.items():
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_bytes(content)

    def files(self) -> set[str]:
        return {str(file.relative_to(self.target)) for file in self.target.rglob("*") if file.is_file()}

    def install(self) -> int:
        return self.desktop.start(self.setup, "/S", f"/D={windows_path(self.target)}").wait(LONGEST_WAIT)

    def is_registered(self) -> bool:
        return self.desktop.start(Path("reg"), "query", UNINSTALL_KEY).wait(LONGEST_WAIT) == 0

    def check_installed(self):
        files = self.files()
        assert {"Mirrix.exe", "mirrix-cli.exe", "MediaInfo.dll", "platforms/qwindows.dll", "licences/Qt.txt",
                "Uninstall.exe"} <= files, files
        assert "Mirrix.portable" not in files
        assert self.shortcut.exists() and self.is_registered()
        assert self.desktop.output(self.target / "mirrix-cli.exe", "--version").strip() == "mirrix-cli 1.0.0"

    def run(self):
        assert self.install() == 0
        self.check_installed()
        program = self.desktop.start(self.target / "Mirrix.exe")
        wait_for("the window", lambda: self.desktop.xdotool("search", "--onlyvisible", "--name", "^Mirrix · ").split())
        assert self.install() == 2, "installed over a running program"
        program.kill()
        program.wait()
        data = self.profile / "AppData/Roaming/Mirrix/Mirrix/Mirrix"
        assert list(data.glob("*")), "no data of the program"
        wait_for("a second installation", lambda: self.install() == 0)
        self.check_installed()
        uninstall = self.desktop.start(self.target / "Uninstall.exe", "/S")
        assert uninstall.wait(LONGEST_WAIT) == 0
        wait_for("the end of the uninstaller", lambda: not (self.target / "Uninstall.exe").exists())
        assert self.files() == {str(file.relative_to(self.target)) for file in self.own}, self.files()
        assert all(file.read_bytes() == content for file, content in self.own.items())
        assert not self.shortcut.exists() and not self.is_registered()
        assert list(data.glob("*")), "the user's data are gone"


def main():
    setup = Path(sys.argv[1]).resolve()
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        desktop = Desktop(folder / "home", folder / "pictures")
        try:
            Installation(desktop, setup, folder / "我的-programs").run()
        finally:
            desktop.close()
    print("Installed, installed again and uninstalled; the user's files and data are still there")


if __name__ == "__main__":
    main()
