#!/usr/bin/env python3
"""Checks the help page PATH: well-formed and self-contained, a section per board and
topic, diagram numbers that follow each board's numbering, and headless chromium renders it."""
import html.parser
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

BOARDS = ["board-square", "board-zorvex", "board-triangular", "board-quennel", "board-wall",
          "board-4d", "board-hypercube"]
SECTIONS = BOARDS + ["contents", "family", "line-games", "vrask-games", "vrask-move",
                     "bubbleland", "square-modes", "vs-computer", "two-players", "distance",
                     "sudden-death", "show-grid"]
VOID = {"area", "base", "br", "col", "embed", "hr", "img", "input", "link", "meta", "source",
        "track", "wbr"}


class Page(html.parser.HTMLParser):
    """Structure faults, ids, in-page links and the numbered labels (figure, attrs, text)."""

    def __init__(self, text):
        super().__init__(convert_charrefs=True)
        self.stack, self.faults, self.ids, self.links, self.labels = [], [], set(), [], []
        self.figure = self.label = None
        self.feed(text)
        self.close()
        self.faults += [f"<{tag}> of line {line} is never closed" for tag, line in self.stack]

    def handle_starttag(self, tag, attrs, closes_itself=False):
        a, line = dict(attrs), self.getpos()[0]
        if "id" in a:
            if a["id"] in self.ids:
                self.faults.append(f"line {line}: id {a['id']!r} used twice")
            self.ids.add(a["id"])
        if tag in ("script", "link", "iframe", "object", "embed", "img") or any(
                re.match(r"(https?:|ftp:|//|file:)", a.get(k) or "", re.I)
                for k in ("src", "href", "xlink:href")):
            self.faults.append(f"line {line}: <{tag} {a}> reaches outside the page")
        if tag == "a" and (a.get("href") or "").startswith("#"):
            self.links.append(a["href"][1:])
        self.figure = a.get("id") if tag == "svg" else self.figure
        if tag == "text" and any(k.startswith("data-") for k in a):
            self.label = [self.figure, a, ""]
        if not closes_itself and tag not in VOID:
            self.stack.append((tag, line))

    def handle_startendtag(self, tag, attrs):
        self.handle_starttag(tag, attrs, closes_itself=True)

    def handle_endtag(self, tag):
        if tag in VOID:
            return
        opened = self.stack.pop() if self.stack else ("nothing", 0)
        if opened[0] != tag:
            self.faults.append(f"line {self.getpos()[0]}: </{tag}> closes <{opened[0]}>")
        if tag == "text" and self.label:
            self.labels.append((self.label[0], self.label[1], self.label[2].strip()))
            self.label = None
        self.figure = None if tag == "svg" else self.figure

    def handle_data(self, data):
        if self.label:
            self.label[2] += data


# Each board's numbering: a label's attributes -> the number it must show.
def n(a, key):
    return int(a.get(key, 0))


def square(a):
    r, c = n(a, "data-r"), n(a, "data-c")
    if "data-square" in a:
        return (r - 1) * 9 + c
    return (c - 1) * 9 + r if a["data-kind"] == "v" else 90 + (r - 1) * 9 + c


def zorvex(a):
    x, y, z = n(a, "data-x"), n(a, "data-y"), n(a, "data-z")
    if "data-square" in a:
        return {"h": 4 * z + 2 * x + y + 1, "y": 13 + 4 * y + 2 * z + x,
                "x": 25 + 4 * (2 - x) + 2 * z + y}[a["data-family"]]
    return {"y": 1 + 2 * x + y, "x": 7 + 3 * x + y, "v": 13 + 3 * x + y}[a["data-kind"]] + 21 * z


def triangular(a):
    if "data-cell" in a:
        return [1, 8, 17, 28, 39, 48][n(a, "data-band")] + n(a, "data-i")
    if a["data-kind"] == "h":
        return [1, 4, 8, 13, 19, 24, 28][n(a, "data-row")] + n(a, "data-j")
    return [31, 39, 49, 61, 73, 83][n(a, "data-band")] + n(a, "data-j")


def wall(a):
    if "data-square" in a:
        return (5 * n(a, "data-r") + 1 if a["data-kind"] == "front" else 51 + 5 * n(a, "data-i")
                ) + n(a, "data-j")
    first, step = {"front-upright": (1, 6), "depth": (61, 6), "front-level": (97, 5),
                   "back-level": (127, 5)}[a["data-kind"]]
    return first + step * n(a, "data-a") + n(a, "data-j")


EDGES = ["backtop", "lefttop", "righttop", "fronttop", "rightback", "leftback", "backbottom",
         "leftbottom", "rightbottom", "leftfront", "rightfront", "frontbottom"]
FACES = ["back", "top", "right", "bottom", "left", "front"]
RULES = {"fig-square-corner": square, "fig-square-whole": square, "fig-zorvex-layer0": zorvex,
         "fig-zorvex-layer1": zorvex, "fig-zorvex-layer2": zorvex, "fig-zorvex-planes": zorvex,
         "fig-triangular": triangular, "fig-wall-front": wall, "fig-wall-level": wall,
         "fig-tetra4d": lambda a: EDGES.index(a["data-edge"]) + 1,
         "fig-hypercube-cube": lambda a: 6 * n(a, "data-cube") + FACES.index(a["data-face"]) + 1
         if "data-square" in a else 12 * n(a, "data-cube") + n(a, "data-e") + 1}


def cells(lo, hi):
    return {f"c{i}" for i in range(lo, hi + 1)}


# Figures that show every number of a range exactly once (cN: a square or cell).
COMPLETE = {"fig-triangular": set(range(1, 91)) | cells(1, 54), "fig-quennel": set(range(1, 40)),
            "fig-zorvex-planes": cells(13, 36), "fig-tetra4d": set(range(1, 13)),
            "fig-wall-front": set(range(1, 31)) | set(range(61, 127)) | cells(1, 25),
            "fig-hypercube-cube": set(range(1, 13)) | {"c2", "c3", "c6"},
            "fig-zorvex-layer": set(range(1, 55)) | cells(1, 12)}


# The ring of four cubes: the first line and first square of each step between two cubes.
RING_STEPS = {"White-Red": (49, 25), "Red-Black": (57, 37), "Black-Blue": (65, 49),
              "Blue-White": (73, 61)}


def ring_range(a):
    c = n(a, "data-cube")  # a cube's 12 lines or 6 squares
    if "data-cube" in a:
        return (12 * c + 1, 12) if "data-lines" in a else (6 * c + 1, 6)
    first_line, first_square = RING_STEPS[a["data-step"]]  # a step's 8 lines or 12 squares
    return (first_line, 8) if "data-lines" in a else (first_square, 12)


def check_numbers(page):
    faults, seen = [], {}
    for fig, a, shown in page.labels:
        want = None
        if fig in RULES and {"data-line", "data-square", "data-cell"} & set(a):
            want = str(RULES[fig](a))
        elif fig == "fig-tetra4d" and "data-k" in a:
            want = " · ".join(str(first + n(a, "data-k")) for first in (13, 21, 29))
        elif fig == "fig-hypercube-ring":
            first, count = ring_range(a)
            if not shown.endswith(f"{first}–{first + count - 1}"):
                faults.append(f"{fig}: {shown!r} {a} should end {first}–{first + count - 1}")
        if want is not None and shown != want:
            faults.append(f"{fig}: label {shown!r} {a} should read {want!r}")
        if {"data-line", "data-square", "data-cell"} & set(a):
            key = fig[:-1] if fig.startswith("fig-zorvex-layer") else fig
            seen.setdefault(key, []).append(int(shown) if "data-line" in a else f"c{shown}")
    for fig, want in COMPLETE.items():
        got = seen.get(fig, [])
        if sorted(map(str, got)) != sorted(map(str, want)):
            faults.append(f"{fig}: missing {sorted(map(str, want - set(got)))}, unexpected "
                          f"{sorted(map(str, set(got) - want))}, {len(got)} labels")
    rings = sum(fig == "fig-hypercube-ring" for fig, _, _ in page.labels)
    return faults + ([f"ring: {rings} labelled ranges, 16 expected"] if rings != 16 else [])


def check_structure(page):
    figures = {fig for fig, _, _ in page.labels}
    return (page.faults + [f"link to #{t}, which is not on the page"
                           for t in page.links if t not in page.ids] +
            [f"no section #{s}" for s in SECTIONS if s not in page.ids] +
            [f"the contents don't link #{b}" for b in BOARDS if b not in page.links] +
            [f"diagram {f} has no numbered labels" for f in
             list(RULES) + ["fig-quennel", "fig-hypercube-ring"] if f not in figures])


def check_rendering(path, page):
    browser = shutil.which(os.environ.get("VRASK_CHROMIUM") or "chromium")
    if not browser:
        return ["chromium is not installed (apt-get install -y chromium, or set VRASK_CHROMIUM)"]
    with tempfile.TemporaryDirectory() as profile:
        run = subprocess.run([browser, "--headless", "--no-sandbox", "--disable-gpu",
                              "--no-first-run", "--disable-background-networking",
                              f"--user-data-dir={profile}", "--dump-dom",
                              pathlib.Path(path).resolve().as_uri()],
                             capture_output=True, text=True, timeout=150)
    if run.returncode != 0 or "<body" not in run.stdout:
        return [f"chromium failed ({run.returncode}): {run.stderr[-800:]}"]
    dom = Page(run.stdout)
    return [f"rendered page lacks #{s}" for s in SECTIONS if s not in dom.ids] + (
        [f"rendered page has {len(dom.labels)} labels, the file {len(page.labels)}"]
        if len(dom.labels) != len(page.labels) else [])


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    page = Page(pathlib.Path(sys.argv[1]).read_text(encoding="utf-8"))
    faults = check_structure(page) + check_numbers(page) + check_rendering(sys.argv[1], page)
    for fault in faults:
        print("FAULT:", fault)
    print(f"{len(page.labels)} diagram labels checked, {len(faults)} faults")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
