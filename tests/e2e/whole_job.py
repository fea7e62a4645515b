#!/usr/bin/env python3
"""Does a whole job with the packaged Windows program, as a user would, under Wine on a screen of its own.

whole_job.py ZIP [PICTURES]: ZIP is the portable package. It is unpacked into a folder with blanks and Chinese letters;
the program scans real files, ticks by rule, backs up, restores, exports and quits. What is checked is on the disk: the
files, the settings, the log. Pictures of each step go to PICTURES (default: build/e2e). Needs what
scripts/install-deps.sh --windows --e2e installs."""

import csv
import json
import os
import sys
import tempfile
import zipfile
from pathlib import Path

from desktop import Desktop, LONGEST_WAIT, wait_for, windows_path

ENGLISH_TITLE = "Mirrix · Find and clean up duplicate files"
CHINESE_TITLE = "Mirrix · 重复文件查找与清理"


def contents(folder: Path) -> dict[str, bytes]:
    return {str(file.relative_to(folder)): file.read_bytes() for file in folder.rglob("*") if file.is_file()}


def make_files(folder: Path) -> dict[str, bytes]:
    """Four contents in three folders, the last folder's the newest, and one that has no copy."""
    for age, name in enumerate(["newest", "ältere", "旧照片"]):
        (folder / name).mkdir(parents=True)
        for number in range(4):
            file = folder / name / f"照片 {number} ({name}).bin"
            file.write_bytes(bytes([number + 65]) * (100_000 + number))
            os.utime(file, (1_700_000_000 - age * 86_400, 1_700_000_000 - age * 86_400))
    (folder / "newest" / "alone.bin").write_bytes(b"alone" * 20_000)
    return contents(folder)


class Job:
    def __init__(self, desktop: Desktop, app: Path, files: Path):
        self.desktop, self.app, self.files = desktop, app, files
        self.data = app / "Data"
        self.before = make_files(files)
        self.process = None

    def run(self):
        self.start()
        for step in [self.scan, self.tick, self.back_up, self.restore, self.export]:
            size = self.log_size()
            step()
            wait_for(f"the log to grow in {step.__name__}", lambda: self.log_size() > size)
            self.desktop.picture(step.__name__)
        self.quit("Exit completely")
        self.check_settings_and_log()

    def log_size(self) -> int:
        return sum(file.stat().st_size for file in self.data.glob("*.enc"))

    def start(self):
        self.data.mkdir()
        (self.data / "settings.json").write_text(json.dumps({"uiLanguage": "en"}))
        self.process = self.desktop.start(self.app / "Mirrix.exe", "", windows_path(self.files))
        self.desktop.await_window(ENGLISH_TITLE)
        self.desktop.await_text("Choose a folder to start")
        self.desktop.picture("start")

    def scan(self):
        self.desktop.key("F5")
        self.desktop.await_window("Confirm scan")
        self.desktop.picture("confirm")
        self.desktop.key("Return")
        self.desktop.await_text("Scan complete")
        self.desktop.await_text("Dup groups 4")

    def tick(self):
        self.desktop.click("Auto-select by rule")
        self.desktop.await_text("8 files checked")

    def back_up(self):
        self.desktop.click("Move to backup folder")
        self.desktop.await_window("Confirm backup move")
        self.desktop.key("alt+y")
        self.desktop.await_window("Done")
        left = {path: bytes_ for path, bytes_ in self.before.items() if path.startswith("newest")}
        assert contents(self.files) == left, sorted(contents(self.files))
        moved = sorted(bytes_ for path, bytes_ in self.before.items() if not path.startswith("newest"))
        backup = [bytes_ for path, bytes_ in contents(self.data / "Backup").items() if path.endswith(".bin")]
        assert sorted(backup) == moved, f"{len(backup)} files in the backup folder"
        self.desktop.picture("backed up")
        self.desktop.key("Return")
        self.desktop.await_no_window("Done")

    def restore(self):
        self.desktop.key("alt+f")
        self.desktop.await_text("Restore backup")
        self.desktop.picture("menu")
        self.desktop.click("Restore backup")
        self.desktop.await_window("Restore backup")
        self.desktop.key("ctrl+a")
        self.desktop.picture("restoring")
        self.desktop.key("Return")
        self.desktop.await_window("Confirm restore")
        self.desktop.key("alt+y")
        self.desktop.await_window("Done")
        assert contents(self.files) == self.before, sorted(contents(self.files))
        self.desktop.key("Return")
        self.desktop.await_no_window("Done")

    def export(self):
        table = self.files.parent / "groups.csv"
        self.desktop.click("Export")
        self.desktop.await_window("Export scan results")
        self.desktop.key("Tab")
        self.desktop.write(windows_path(table))
        self.desktop.picture("exporting")
        self.desktop.key("Return")
        self.desktop.await_window("Done")
        rows = list(csv.reader(table.read_text(encoding="utf-8-sig").splitlines()))
        exported = {row[1].replace("\\", "/").removeprefix("Z:") for row in rows[1:]}
        assert exported == {str(self.files / path) for path in self.before if "alone" not in path}, exported
        self.desktop.key("Return")
        self.desktop.await_no_window("Done")

    def quit(self, entry: str | None):
        self.desktop.key("alt+f")
        if entry:
            self.desktop.click(entry)
        else:
            self.desktop.key("Up", "Return")  # the last entry of the menu
        status = self.process.wait(LONGEST_WAIT)
        assert status == 0, f"ended with status {status}"

    def check_settings_and_log(self):
        settings = json.loads((self.data / "settings.json").read_text(encoding="utf-8"))
        assert settings["uiLanguage"] == "en", settings
        assert [root.removeprefix("Z:") for root in settings["lastRoots"]] == [str(self.files)], settings
        log = json.loads(self.desktop.output(self.app / "mirrix-cli.exe", "log", "--format", "json"))
        actions = [entry["action"] for entry in sorted(log, key=lambda entry: entry["timeMs"])]
        assert actions == ["app_start", "scan_start", "scan_done", "auto_keep", "backup_batch", *["restore"] * 8, "export",
                           "app_quit"], actions

    def start_without_media_library(self):
        """In Chinese and dark: it starts, and nothing is said of the missing library."""
        (self.app / "MediaInfo.dll").unlink()
        settings = json.loads((self.data / "settings.json").read_text(encoding="utf-8"))
        (self.data / "settings.json").write_text(json.dumps(settings | {"uiLanguage": "zh_CN", "appTheme": "dark"}))
        self.process = self.desktop.start(self.app / "Mirrix.exe")
        window = self.desktop.await_window(CHINESE_TITLE)
        self.desktop.await_text("Program Files")
        self.desktop.picture("dark")
        windows = self.desktop.xdotool("search", "--onlyvisible", "--name", "^[^W]").split()  # without “Wine System Tray”
        assert windows == [window], [self.desktop.xdotool("getwindowname", other) for other in windows]
        self.quit(None)


def main():
    package = Path(sys.argv[1]).resolve()
    pictures = Path(sys.argv[2] if len(sys.argv) > 2 else Path(__file__).parents[2] / "build/e2e").resolve()
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        with zipfile.ZipFile(package) as archive:
            archive.extractall(folder / "我的 program folder")
        desktop = Desktop(folder / "home", pictures)
        try:
            job = Job(desktop, folder / "我的 program folder/Mirrix", folder / "my 文件")
            job.run()
            job.start_without_media_library()
        except BaseException:
            desktop.picture("failure")
            raise
        finally:
            desktop.close()
    print(f"The whole job is done; pictures in {pictures}")


if __name__ == "__main__":
    main()
