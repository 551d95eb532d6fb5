#!/usr/bin/env python3
"""`vrask-cli duel` on 20 games of 5 by 5 Ombrel with a small time budget: the
games are the same every run, and the expert wins most of them. Times are not
checked. A board or game that is not there is refused."""
import os
import re
import subprocess
import sys

cli = sys.argv[1]
env = dict(os.environ, VRASK_EXPERT_MS="5")
run = subprocess.run([cli, "duel", "--board", "Form1large", "--game", "Ombrel", "--size", "5",
                      "--games", "20"], capture_output=True, text=True, timeout=600, env=env)
tally = re.search(r"^expert: +(\d+) wins, (\d+) losses, (\d+) ties", run.stdout, re.M)
if run.returncode != 0 or run.stderr or tally is None:
    sys.exit(f"duel failed ({run.returncode}):\n{run.stdout}{run.stderr}")
wins, losses, ties = map(int, tally.groups())
if wins + losses + ties != 20 or wins + ties / 2 < 15:
    sys.exit("the expert did not win most games:\n" + run.stdout)

for args in (["--board", "nosuch", "--game", "Ombrel"], ["--board", "Form1large", "--game", "Dots"]):
    bad = subprocess.run([cli, "duel", *args], capture_output=True, text=True, timeout=60)
    if bad.returncode != 1 or not bad.stderr.startswith("duel: no "):
        sys.exit(f"duel {' '.join(args)} is not refused: {bad.returncode} {bad.stderr}")
