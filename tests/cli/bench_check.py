#!/usr/bin/env python3
"""`vrask-cli bench --games 2`, twice: every series of every board plays its games
through, and the moves and signature, which change only with behaviour, are the same
both times. The square board's series alone keep their signature, whichever boards the
suite has built; it moves only when the square board's behaviour changes."""
import re
import subprocess
import sys

SQUARE_BOARD_SIGNATURE = "53ef38217cb513f0"


def bench(*args):
    run = subprocess.run([sys.argv[1], "bench", "--games", "2", *args], capture_output=True,
                         text=True, timeout=900)
    series = [l for l in run.stdout.splitlines() if " games, " in l]
    if run.returncode != 0 or run.stderr or f"games: {2 * len(series)}" not in run.stdout:
        sys.exit(f"bench {' '.join(args)} failed ({run.returncode}):\n{run.stdout}{run.stderr}")
    return series + [l for l in run.stdout.splitlines() if l.startswith(("moves:", "sig"))]


runs = [bench(), bench()]
if runs[0] != runs[1]:
    sys.exit("bench differs between two runs:\n" + "\n".join(runs[0] + ["---"] + runs[1]))
square = bench("--board", "Form1large")
if f"signature: {SQUARE_BOARD_SIGNATURE}" not in square:
    sys.exit("the square board's games changed:\n" + "\n".join(square))
bad = subprocess.run([sys.argv[1], "bench", "--board", "nosuchboard"], capture_output=True,
                     text=True, timeout=60)
if bad.returncode != 1 or not re.search(r"no board nosuchboard", bad.stderr):
    sys.exit(f"an unknown board is not refused: {bad.returncode} {bad.stderr}")
