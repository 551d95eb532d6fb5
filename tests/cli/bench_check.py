#!/usr/bin/env python3
"""Runs `vrask-cli bench --games 2` twice: every series must play its games
through (exit 0, 26 games in all), and the signature and the moves of each
series must be the same both times, since they change only with behaviour.
The timings are not looked at."""
import subprocess
import sys


def run(cli):
    done = subprocess.run([cli, "bench", "--games", "2"], capture_output=True, text=True,
                          timeout=600)
    if done.returncode != 0 or done.stderr:
        sys.exit(f"bench failed ({done.returncode}):\n{done.stdout}{done.stderr}")
    lines = done.stdout.splitlines()
    if "games: 26" not in lines:
        sys.exit(f"bench did not play 26 games:\n{done.stdout}")
    return [l for l in lines if " games, " in l or l.startswith(("moves:", "signature:"))]


def main():
    first, second = run(sys.argv[1]), run(sys.argv[1])
    if first != second:
        sys.exit("bench differs between two runs:\n" + "\n".join(first) + "\n---\n" +
                 "\n".join(second))


if __name__ == "__main__":
    main()
