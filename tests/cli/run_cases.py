#!/usr/bin/env python3
"""Runs vrask-cli on the cases of a .cases file and checks the exit status,
stdout and stderr of each exactly.

A .cases file: free text up to the first case, then cases:

    === what the case shows
    script lines (given to vrask-cli as a file)
    --- args --help          run with these arguments; script lines go to stdin
    --- exit 2               the exit status (0 when left out)
    --- stdout               the exact output, up to the next marker
    --- stderr               likewise (empty when left out)
    --- stdout contains      each line that follows stands somewhere in stdout
"""
import os
import subprocess
import sys
import tempfile


def parse(path):
    cases, case, section = [], None, None
    with open(path, encoding="utf-8") as f:
        for raw in f:
            line = raw.rstrip("\n")
            if line.startswith("=== "):
                case = {"name": line[4:], "script": [], "args": None, "exit": 0,
                        "stdout": [], "stderr": [], "contains": set()}
                cases.append(case)
                section = "script"
            elif case is None:
                continue
            elif line.startswith("--- "):
                word, _, rest = line[4:].partition(" ")
                if word == "args":
                    case["args"] = rest.split()
                elif word == "exit":
                    case["exit"] = int(rest)
                elif word in ("stdout", "stderr"):
                    section = word
                    if rest == "contains":
                        case["contains"].add(word)
                else:
                    sys.exit(f"{path}: unknown marker {line!r}")
            else:
                case[section].append(line)
    return cases


def text(lines):
    while lines and lines[-1] == "":
        lines = lines[:-1]
    return "".join(l + "\n" for l in lines)


def run(cli, case, workdir):
    script = text(case["script"])
    if case["args"] is not None:
        command, stdin = [cli] + case["args"], script
    else:
        path = os.path.join(workdir, "case.vrask")
        with open(path, "w", encoding="utf-8") as f:
            f.write(script)
        command, stdin = [cli, path], ""
    done = subprocess.run(command, input=stdin, capture_output=True, text=True,
                          cwd=workdir, timeout=120)
    return done.returncode, done.stdout, done.stderr


def matches(case, label, got, want):
    if label in case["contains"]:
        return all(line in got for line in want.splitlines())
    return got == want


def main():
    cli, cases_file = os.path.abspath(sys.argv[1]), sys.argv[2]
    failures = 0
    with tempfile.TemporaryDirectory() as workdir:
        for case in parse(cases_file):
            status, out, err = run(cli, case, workdir)
            checks = [("exit", status, case["exit"]),
                      ("stdout", out, text(case["stdout"])),
                      ("stderr", err, text(case["stderr"]))]
            wrong = [c for c in checks if not matches(case, *c)]
            if not wrong:
                continue
            failures += 1
            print(f"FAILED: {case['name']}")
            for label, got, want in wrong:
                print(f"  {label}: expected\n{want!r}\n  got\n{got!r}")
    sys.exit(1 if failures else 0)


if __name__ == "__main__":
    main()
