#!/usr/bin/env python3
"""Runs vrask-cli on each case of a .cases file; checks exit status, stdout and stderr exactly.

    === what the case shows
    script lines             given to vrask-cli as a file
    --- args -               run with these arguments instead; script lines go to stdin
    --- exit 1               the exit status (0 when left out)
    --- stdout [contains]    the output up to the next marker (empty when left out); with
    --- stderr [contains]    `contains`, lines that must each stand somewhere in it
    !!! line | line => ERROR line N: reason      a script error: exit 2, nothing on stdout
"""
import subprocess
import sys
import tempfile


def new_case(name, script=(), exit=0, stderr=()):
    return {"name": name, "script": list(script), "args": None, "exit": exit, "stdout": [],
            "stderr": list(stderr), "contains": set()}


def parse(path):
    cases, case, section = [], None, None
    for line in open(path, encoding="utf-8").read().splitlines():
        if line.startswith("!!! "):
            script, _, error = line[4:].partition(" => ")
            cases.append(new_case(line, [s.strip() for s in script.split("|")], 2, [error]))
            case = None
        elif line.startswith("=== "):
            case, section = new_case(line[4:]), "script"
            cases.append(case)
        elif case is not None and line.startswith("--- "):
            word, _, rest = line[4:].partition(" ")
            if word == "args":
                case["args"] = rest.split()
            elif word == "exit":
                case["exit"] = int(rest)
            else:
                section = word
                case["contains"] |= {word} if rest == "contains" else set()
        elif case is not None:
            case[section].append(line)
    return cases


def text(lines):
    return "\n".join(lines).rstrip("\n") + "\n" if any(lines) else ""


def main():
    cli, failures = sys.argv[1], 0
    with tempfile.TemporaryDirectory() as workdir:
        for case in parse(sys.argv[2]):
            script, args = text(case["script"]), case["args"]
            if args is None:
                with open(f"{workdir}/case.vrask", "w", encoding="utf-8") as f:
                    f.write(script)
                args, script = [f"{workdir}/case.vrask"], ""
            done = subprocess.run([cli] + args, input=script, capture_output=True, text=True,
                                  cwd=workdir, timeout=120)
            wrong = [(label, got, want) for label, got, want in
                     [("exit", done.returncode, case["exit"]),
                      ("stdout", done.stdout, text(case["stdout"])),
                      ("stderr", done.stderr, text(case["stderr"]))]
                     if not (all(l in got for l in want.splitlines())
                             if label in case["contains"] else got == want)]
            failures += bool(wrong)
            for label, got, want in wrong:
                print(f"FAILED: {case['name']}\n  {label}: expected\n{want!r}\n  got\n{got!r}")
    sys.exit(1 if failures else 0)


if __name__ == "__main__":
    main()
