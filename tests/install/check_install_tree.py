#!/usr/bin/env python3
"""Installs the build into a scratch prefix and checks what a desktop needs.

usage: check_install_tree.py BUILD_DIR PREFIX
"""
import configparser
import os
import shutil
import struct
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET

APP_ID = "org.supervraskplus.Vrask"
ICON_SIZES = (16, 24, 32, 48, 64, 128, 256)
HELP_PAGE = "vrask zorvex help.htm"

problems = []


def check(ok, what):
    if not ok:
        problems.append(what)
    return ok


def png_size(path):
    with open(path, "rb") as f:
        head = f.read(24)
    if head[:8] != b"\x89PNG\r\n\x1a\n" or head[12:16] != b"IHDR":
        return None
    return struct.unpack(">II", head[16:24])


def validate(tool, *args):
    """Runs a validator when the machine has it; its complaints are problems."""
    if shutil.which(tool) is None:
        print(f"{tool} not found: skipped")
        return
    run = subprocess.run([tool, *args], capture_output=True, text=True)
    check(run.returncode == 0, f"{tool} {' '.join(args)}:\n{run.stdout}{run.stderr}")


def check_desktop_entry(prefix, share):
    path = os.path.join(share, "applications", APP_ID + ".desktop")
    if not check(os.path.isfile(path), f"no desktop entry {path}"):
        return
    validate("desktop-file-validate", path)
    entry = configparser.ConfigParser(interpolation=None)
    entry.optionxform = str
    entry.read(path, encoding="utf-8")
    desktop = entry["Desktop Entry"]
    categories = desktop.get("Categories", "").split(";")
    check("Game" in categories and "BoardGame" in categories, f"categories {categories}")
    program = desktop.get("Exec", "").split()[0]
    check(os.access(os.path.join(prefix, "bin", program), os.X_OK), f"Exec {program} not installed")
    check(desktop.get("Icon") == APP_ID, f"Icon {desktop.get('Icon')}")


def check_metainfo(share):
    path = os.path.join(share, "metainfo", APP_ID + ".metainfo.xml")
    if not check(os.path.isfile(path), f"no metainfo {path}"):
        return
    validate("appstreamcli", "validate", "--no-net", path)
    root = ET.parse(path).getroot()
    check(root.findtext("id") == APP_ID, f"metainfo id {root.findtext('id')}")
    check(root.findtext("launchable") == APP_ID + ".desktop", "metainfo launchable")


def check_icons(share):
    hicolor = os.path.join(share, "icons", "hicolor")
    svg = os.path.join(hicolor, "scalable", "apps", APP_ID + ".svg")
    if check(os.path.isfile(svg), f"no icon {svg}"):
        check(ET.parse(svg).getroot().tag.endswith("svg"), "the scalable icon is no SVG")
    for size in ICON_SIZES:
        png = os.path.join(hicolor, f"{size}x{size}", "apps", APP_ID + ".png")
        if check(os.path.isfile(png), f"no icon {png}"):
            check(png_size(png) == (size, size), f"{png} is {png_size(png)}")


def check_manual(share):
    for page in ("vrask.6", "vrask-cli.6"):
        path = os.path.join(share, "man", "man6", page)
        if check(os.path.isfile(path), f"no manual page {path}") and shutil.which("groff"):
            run = subprocess.run(["groff", "-man", "-ww", "-z", path], capture_output=True, text=True)
            check(run.returncode == 0 and not run.stderr, f"groff on {page}: {run.stderr}")


def check_programs(prefix, share):
    check(os.path.isfile(os.path.join(share, "vrask", HELP_PAGE)), "no help page in the data folder")
    with tempfile.TemporaryDirectory() as elsewhere:
        script = "open Form1large\nclick Label2 41\nexpect var.sqdone(41) == 1\n"
        run = subprocess.run([os.path.join(prefix, "bin", "vrask-cli")], input=script,
                             capture_output=True, text=True, cwd=elsewhere, timeout=60)
        check(run.returncode == 0, f"installed vrask-cli: {run.returncode} {run.stderr}")
        # The window program runs until it is stopped.
        try:
            run = subprocess.run([os.path.join(prefix, "bin", "vrask")], cwd=elsewhere,
                                 capture_output=True, text=True, timeout=3)
            check(False, f"installed vrask ended at once: {run.returncode} {run.stderr}")
        except subprocess.TimeoutExpired:
            pass


def main():
    build, prefix = sys.argv[1], sys.argv[2]
    shutil.rmtree(prefix, ignore_errors=True)
    subprocess.run(["cmake", "--install", build, "--prefix", prefix], check=True,
                   stdout=subprocess.DEVNULL)
    share = os.path.join(prefix, "share")
    check_desktop_entry(prefix, share)
    check_metainfo(share)
    check_icons(share)
    check_manual(share)
    check_programs(prefix, share)
    for problem in problems:
        print("FAIL:", problem)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
