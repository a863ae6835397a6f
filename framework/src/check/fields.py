#!/usr/bin/env python3
"""Writes what the public headers say, from Doxygen's XML of them: fields.inc, the records' fields and their meanings,
and getters.inc, the getters of the factory settings.

usage: fields.py XML-FOLDER FOLDER

A field or getter without a docstring ends the run: it would be a gap in the reference.
"""
import json
import pathlib
import sys
import xml.etree.ElementTree as ElementTree

NAMESPACE = "LCD::MainConfig::"
SETTINGS = "ILcdConfig"
MADE = "// Made by fields.py from the docstrings of the public headers (./dev reference). Not edited by hand.\n"


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


def read_getters(folder):
    """The getters of the settings in the order of the header: name, name of the first parameter, meaning. What one
    gives without a store, and what it locks, is of no use to those who write a file."""
    compound = ElementTree.parse(next(folder.glob(f"class*{SETTINGS}.xml"))).getroot().find("compounddef")
    return [(member.findtext("name"), member.findtext("param/declname") or "", text_of(member).split(" No store:")[0])
            for member in compound.iter("memberdef") if member.findtext("name").startswith(("get", "is"))]


def rows_of(records):
    for record in sorted(records, key=lambda key: records[key][0]):
        name, bases, members = records[record]
        rows = "".join(f"\n    .basedOn<{records[base][0]}>()" for base in bases if base in records)
        rows += "".join(f"\n    .add(&{name}::{member}, \"{member}\", {json.dumps(meaning)})"
                        for member, meaning in members)
        yield f"Rows<{name}>(table, \"{name}\"){rows};\n"


def main():
    source, target = map(pathlib.Path, sys.argv[1:])
    records = read(source)
    getters = read_getters(source)
    bare = [f"{name}::{member}" for name, _, members in records.values() for member, meaning in members if not meaning]
    bare += [f"{SETTINGS}::{name}" for name, _, meaning in getters if not meaning]
    if bare or not records or not getters:
        sys.exit("without a docstring: " + ", ".join(bare) if bare else "no records or no getters found")
    (target / "fields.inc").write_text(MADE + "".join(rows_of(records)))
    (target / "getters.inc").write_text(MADE + "".join(
        f"{{\"{name}\", \"{argument}\", {json.dumps(meaning)}, asking(&{SETTINGS}::{name})}},\n"
        for name, argument, meaning in getters))


main()
