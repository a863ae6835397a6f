#!/usr/bin/env python3
"""Which branches of the library no test has taken, beside those that are known to be out of reach.

usage: coverage.py UNREACHED < (llvm-cov export)

UNREACHED has a line for each branch that no test can take: file, condition, the outcome that never comes, and why, with
tabs between them. A branch that is missing there is a failure, and so is a line whose branch was taken after all."""
import collections
import json
import os
import sys


def condition(lines, first, first_column, last, last_column):
    if first == last:
        return lines[first - 1][first_column - 1:last_column - 1]
    parts = [lines[first - 1][first_column - 1:], *lines[first:last - 1], lines[last - 1][:last_column - 1]]
    return " ".join(part.strip() for part in parts)


def branches(data):
    """How often each branch came out either way, by file and place, whatever the instance of a template."""
    counts = collections.defaultdict(lambda: [0, 0])
    for file in data["files"]:
        for *place, true, false, _, _, _ in file.get("branches", []):
            count = counts[(os.path.relpath(file["filename"]), *place)]
            count[0] += true
            count[1] += false
    return counts


def main():
    known = {}
    for line in open(sys.argv[1], encoding="utf-8"):
        file, text, outcome, _ = line.rstrip("\n").split("\t")
        known[(file, text, outcome)] = False
    taken = failures = 0
    counts = branches(json.load(sys.stdin)["data"][0])
    for (file, *place), outcomes in sorted(counts.items()):
        text = condition(open(file, encoding="utf-8").read().split("\n"), *place)
        for outcome, count in zip(("true", "false"), outcomes):
            key = (file, text, outcome)
            if count:
                taken += 1
            elif key in known:
                known[key] = True
            else:
                failures += 1
                print(f"{file}:{place[0]}:{place[1]}: never {outcome}: {text}")
    for key, met in known.items():
        if not met:
            failures += 1
            print("taken, or gone:", *key)
    total = 2 * len(counts)
    print(f"{taken} of {total} branches taken ({100 * taken / max(total, 1):.1f} %), {total - taken - failures} out of reach")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
