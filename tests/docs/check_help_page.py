#!/usr/bin/env python3
"""Checks the help page: well-formed, self-contained, complete, its diagrams' numbers
agree with the numbering rules of each board, and a headless browser renders it.

Usage: check_help_page.py PATH_TO_PAGE
"""
import html.parser
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

VOID = {"area", "base", "br", "col", "embed", "hr", "img", "input", "link", "meta", "source",
        "track", "wbr"}
BOARDS = ["board-square", "board-zorvex", "board-triangular", "board-quennel", "board-wall",
          "board-4d", "board-hypercube"]
TOPICS = ["contents", "family", "line-games", "vrask-games", "vrask-move", "bubbleland",
          "square-modes", "vs-computer", "two-players", "distance", "sudden-death", "show-grid"]


class Page(html.parser.HTMLParser):
    """Collects structure faults, ids, links and the numbered labels of the diagrams."""

    def __init__(self):
        super().__init__(convert_charrefs=True)
        self.stack, self.faults, self.ids, self.links = [], [], {}, []
        self.labels = []  # (figure id, attributes, shown text)
        self.figure, self.label = None, None

    def where(self):
        return f"line {self.getpos()[0]}"

    def handle_starttag(self, tag, attrs):
        self.open_tag(tag, dict(attrs), closes_itself=False)

    def handle_startendtag(self, tag, attrs):
        self.open_tag(tag, dict(attrs), closes_itself=True)

    def open_tag(self, tag, attrs, closes_itself):
        if "id" in attrs:
            if attrs["id"] in self.ids:
                self.faults.append(f"{self.where()}: id {attrs['id']!r} used twice")
            self.ids[attrs["id"]] = tag
        self.check_self_contained(tag, attrs)
        if tag == "a" and attrs.get("href", "").startswith("#"):
            self.links.append((attrs["href"][1:], self.where()))
        if tag == "svg":
            self.figure = attrs.get("id")
        if tag == "text" and any(k.startswith("data-") for k in attrs):
            self.label = [self.figure, attrs, ""]
        if not closes_itself and tag not in VOID:
            self.stack.append((tag, self.where()))

    def check_self_contained(self, tag, attrs):
        if tag in ("script", "link", "iframe", "object", "embed", "img"):
            self.faults.append(f"{self.where()}: <{tag}> (the page must stand alone)")
        for name in ("src", "href", "xlink:href"):
            value = attrs.get(name, "")
            if re.match(r"^(https?:|ftp:|//|file:)", value, re.I):
                self.faults.append(f"{self.where()}: external {name}={value!r}")

    def handle_endtag(self, tag):
        if tag in VOID:
            return
        if not self.stack:
            self.faults.append(f"{self.where()}: </{tag}> closes nothing")
            return
        open_tag, opened_at = self.stack.pop()
        if open_tag != tag:
            self.faults.append(f"{self.where()}: </{tag}> closes <{open_tag}> of {opened_at}")
        if tag == "text" and self.label:
            self.labels.append(tuple(self.label))
            self.label = None
        if tag == "svg":
            self.figure = None

    def handle_data(self, data):
        if self.label:
            self.label[2] += data

    def close(self):
        super().close()
        for tag, opened_at in self.stack:
            self.faults.append(f"<{tag}> of {opened_at} is never closed")


def parse(text):
    page = Page()
    page.feed(text)
    page.close()
    return page


# The numbering rules, one function per kind of label: attributes -> the number it must show.
def num(a, key):
    return int(a[key])


EDGE_NAMES = ["backtop", "lefttop", "righttop", "fronttop", "rightback", "leftback",
              "backbottom", "leftbottom", "rightbottom", "leftfront", "rightfront", "frontbottom"]
FACE_NAMES = ["back", "top", "right", "bottom", "left", "front"]
TRI_FIRST_H, TRI_FIRST_D, TRI_FIRST_CELL = [1, 4, 8, 13, 19, 24, 28], [31, 39, 49, 61, 73, 83], [
    1, 8, 17, 28, 39, 48]


def square_board(a):
    r, c = num(a, "data-r"), num(a, "data-c")
    if "data-square" in a:
        return (r - 1) * 9 + c
    return (c - 1) * 9 + r if a["data-kind"] == "v" else 90 + (r - 1) * 9 + c


def zorvex(a):
    x, y, z = (int(a.get(k, 0)) for k in ("data-x", "data-y", "data-z"))
    if "data-square" in a:
        return {"h": 4 * z + 2 * x + y + 1, "y": 13 + 4 * y + 2 * z + x,
                "x": 25 + 4 * (2 - x) + 2 * z + y}[a["data-family"]]
    return {"y": 1 + 2 * x + y, "x": 7 + 3 * x + y, "v": 13 + 3 * x + y}[a["data-kind"]] + 21 * z


def triangular(a):
    if "data-cell" in a:
        return TRI_FIRST_CELL[num(a, "data-band")] + num(a, "data-i")
    if a["data-kind"] == "h":
        return TRI_FIRST_H[num(a, "data-row")] + num(a, "data-j")
    return TRI_FIRST_D[num(a, "data-band")] + num(a, "data-j")


def wall(a):
    j = num(a, "data-j")
    if "data-square" in a:
        return 5 * num(a, "data-r") + j + 1 if a["data-kind"] == "front" else 51 + 5 * num(
            a, "data-i") + j
    first, step = {"front-upright": (1, 6), "depth": (61, 6), "front-level": (97, 5),
                   "back-level": (127, 5)}[a["data-kind"]]
    return first + step * num(a, "data-a") + j


def tetra4d(a):
    return EDGE_NAMES.index(a["data-edge"]) + 1


def hypercube(a):
    if "data-square" in a:
        return 6 * num(a, "data-cube") + FACE_NAMES.index(a["data-face"]) + 1
    return 12 * num(a, "data-cube") + num(a, "data-e") + 1


RULES = {"fig-square-corner": square_board, "fig-square-whole": square_board,
         "fig-zorvex-layer0": zorvex, "fig-zorvex-layer1": zorvex, "fig-zorvex-layer2": zorvex,
         "fig-zorvex-planes": zorvex, "fig-triangular": triangular, "fig-wall-front": wall,
         "fig-wall-level": wall, "fig-tetra4d": tetra4d, "fig-hypercube-cube": hypercube}

# Figures that show every number of a range, each exactly once.
COMPLETE = {"fig-triangular": set(range(1, 91)) | {f"c{n}" for n in range(1, 55)},
            "fig-quennel": set(range(1, 40)),
            "fig-zorvex-planes": {f"c{n}" for n in range(13, 37)},
            "fig-wall-front": set(range(1, 31)) | set(range(61, 127)) |
            {f"c{n}" for n in range(1, 26)},
            "fig-tetra4d": set(range(1, 13)),
            "fig-hypercube-cube": set(range(1, 13)) | {"c2", "c3", "c6"},
            "zorvex layers": set(range(1, 55)) | {f"c{n}" for n in range(1, 13)}}


def check_numbers(page):
    faults, seen = [], {}
    for fig, attrs, shown in page.labels:
        shown = shown.strip()
        rule = RULES.get(fig)
        if rule and any(k in attrs for k in ("data-line", "data-square", "data-cell")):
            want = rule(attrs)
            if shown != str(want):
                faults.append(f"{fig}: label {shown!r} {attrs} should read {want}")
        if fig == "fig-tetra4d" and "data-k" in attrs:
            k = num(attrs, "data-k")
            want = f"{13 + k} · {21 + k} · {29 + k}"
            if shown != want:
                faults.append(f"{fig}: corner {k} reads {shown!r}, should read {want!r}")
        for key, mark in (("data-line", ""), ("data-square", "c"), ("data-cell", "c")):
            if key in attrs:
                seen.setdefault(fig, []).append(f"{mark}{shown}" if mark else int(shown))
    seen["zorvex layers"] = sum((seen.get(f"fig-zorvex-layer{z}", []) for z in range(3)), [])
    for fig, want in COMPLETE.items():
        got = seen.get(fig, [])
        if sorted(map(str, got)) != sorted(map(str, want)):
            missing = sorted(map(str, want - set(got)))
            extra = sorted(str(n) for n in set(got) - want)
            twice = sorted({str(n) for n in got if got.count(n) > 1})
            faults.append(f"{fig}: missing {missing}, unexpected {extra}, twice {twice}")
    return faults


def check_ring(page):
    """The HyperCube ring figure: each cube's and each ring step's ranges."""
    faults = []
    lines_of_cube = {c: (12 * c + 1, 12 * c + 12) for c in range(4)}
    squares_of_cube = {c: (6 * c + 1, 6 * c + 6) for c in range(4)}
    steps = {"White-Red": (49, 25), "Red-Black": (57, 37), "Black-Blue": (65, 49),
             "Blue-White": (73, 61)}
    found = 0
    for fig, a, shown in page.labels:
        if fig != "fig-hypercube-ring":
            continue
        found += 1
        if "data-cube" in a:
            c = num(a, "data-cube")
            want = lines_of_cube[c] if "data-lines" in a else squares_of_cube[c]
        else:
            first_line, first_square = steps[a["data-step"]]
            want = (first_line, first_line + 7) if "data-lines" in a else (first_square,
                                                                          first_square + 11)
        if not shown.endswith(f"{want[0]}–{want[1]}"):
            faults.append(f"ring: {shown!r} {a} should end with {want[0]}–{want[1]}")
    if found != 16:
        faults.append(f"ring: {found} labelled ranges, 16 expected")
    return faults


def check_structure(page):
    faults = list(page.faults)
    for target, where in page.links:
        if target not in page.ids:
            faults.append(f"{where}: link to #{target}, which is not on the page")
    for section in BOARDS + TOPICS:
        if section not in page.ids:
            faults.append(f"no section #{section}")
    for board in BOARDS:
        if board not in [t for t, _ in page.links]:
            faults.append(f"the contents don't link #{board}")
    figures = {fig for fig, _, _ in page.labels}
    for fig in list(RULES) + ["fig-quennel", "fig-hypercube-ring"]:
        if fig not in figures:
            faults.append(f"diagram {fig} is missing or has no numbered labels")
    return faults


def find_browser():
    for name in (os.environ.get("VRASK_CHROMIUM", ""), "chromium", "chromium-browser"):
        if name and shutil.which(name):
            return shutil.which(name)
    return None


def check_rendering(path, page):
    browser = find_browser()
    if not browser:
        return ["chromium is not installed, so the page can't be rendered: install it "
                "(apt-get install -y chromium) or point VRASK_CHROMIUM at a chromium binary"]
    with tempfile.TemporaryDirectory() as profile:
        run = subprocess.run(
            [browser, "--headless", "--no-sandbox", "--disable-gpu", "--disable-quic",
             "--no-first-run", "--disable-background-networking", "--disable-component-update",
             "--disable-sync", f"--user-data-dir={profile}", "--dump-dom",
             pathlib.Path(path).resolve().as_uri()],
            capture_output=True, text=True, timeout=150)
    if run.returncode != 0 or "<body" not in run.stdout:
        return [f"chromium failed ({run.returncode}): {run.stderr[-800:]}"]
    dom = parse(run.stdout)
    faults = [f"rendered page lacks #{s}" for s in BOARDS + TOPICS if s not in dom.ids]
    if len(dom.labels) != len(page.labels):
        faults.append(f"rendered page has {len(dom.labels)} diagram labels, "
                      f"the file {len(page.labels)}")
    if "<title>Super Vrask Plus 2014 Desktop" not in run.stdout:
        faults.append("rendered page lost its title")
    return faults


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    path = sys.argv[1]
    page = parse(pathlib.Path(path).read_text(encoding="utf-8"))
    faults = check_structure(page) + check_numbers(page) + check_ring(page)
    faults += check_rendering(path, page)
    for fault in faults:
        print("FAULT:", fault)
    print(f"{len(page.labels)} diagram labels checked, {len(faults)} faults")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
