#!/usr/bin/env python3
"""Writes the table of the records' fields and their meanings, from Doxygen's XML of the public headers.

usage: fields.py XML-FOLDER > fields.inc

A field without a docstring ends the run: it would be a gap in the reference.
"""
import json
import pathlib
import sys
import xml.etree.ElementTree as ElementTree

NAMESPACE = "LCD::MainConfig::"


def text_of(member):
    parts = [" ".join("".join(node.itertext()).split()) for kind in ("briefdescription", "detaileddescription")
             for node in [member.find(kind)] if node is not None]
    return " ".join(part for part in parts if part)


def read(folder):
    """The records by id: name, ids of the bases, and (member, meaning) in order."""
    records = {}
    for path in sorted(folder.glob("struct*.xml")):
        compound = ElementTree.parse(path).getroot().find("compounddef")
        name = compound.findtext("compoundname")
        if not name.startswith(NAMESPACE):
            continue
        members = [(member.findtext("name"), text_of(member)) for member in compound.iter("memberdef")
                   if member.get("kind") == "variable" and member.get("static") == "no"]
        bases = [base.get("refid") for base in compound.findall("basecompoundref")]
        records[compound.get("id")] = (name[len(NAMESPACE):], bases, members)
    return records


def main():
    records = read(pathlib.Path(sys.argv[1]))
    bare = [f"{name}::{member}" for name, _, members in records.values() for member, meaning in members if not meaning]
    if bare or not records:
        sys.exit("fields without a docstring: " + ", ".join(bare) if bare else "no records found")
    print("// Made by fields.py from the docstrings of the public headers (./dev reference). Not edited by hand.")
    for record in sorted(records, key=lambda key: records[key][0]):
        name, bases, members = records[record]
        rows = "".join(f"\n    .basedOn<{records[base][0]}>()" for base in bases if base in records)
        rows += "".join(f"\n    .add(&{name}::{member}, \"{member}\", {json.dumps(meaning)})"
                        for member, meaning in members)
        print(f"Rows<{name}>(table, \"{name}\"){rows};")


main()
