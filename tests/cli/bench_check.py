#!/usr/bin/env python3
"""`vrask-cli bench --games 2`, twice: every series plays its games through (26 in all),
and the moves and signature, which change only with behaviour, are the same both times."""
import subprocess
import sys

runs = [subprocess.run([sys.argv[1], "bench", "--games", "2"], capture_output=True, text=True,
                       timeout=600) for _ in range(2)]
for run in runs:
    if run.returncode != 0 or run.stderr or "games: 26" not in run.stdout.splitlines():
        sys.exit(f"bench failed ({run.returncode}):\n{run.stdout}{run.stderr}")
kept = [[l for l in run.stdout.splitlines() if " games, " in l or l.startswith(("moves:", "sig"))]
        for run in runs]
if kept[0] != kept[1]:
    sys.exit("bench differs between two runs:\n" + "\n".join(kept[0] + ["---"] + kept[1]))
