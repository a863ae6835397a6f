#!/usr/bin/env python3
"""The table of all public records: size, and offset and type of each member, as the compiler laid them out.

    layout.py VERSION TABLE OBJECT...            fails when the objects disagree, or the table is not what they say
    layout.py --refresh VERSION TABLE OBJECT...  writes the table; refuses to when the version stayed the same

The objects hold debug information of the public headers, each compiled under other settings. A row of the table is
record, member, offset in bytes and type, with tabs between; "(size)" and "(base)" stand for members.
"""
import difflib
import re
import subprocess
import sys
import xml.etree.ElementTree as ElementTree
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

NAMESPACES = ("LCD::MainConfig", "kpm")
RAISE = "A host built before would crash: raise PLUGIN_VERSION in include/lcdmainconfig/version.h, then ./dev layout"


def shortened(name):
    """A type as one writes it, without what the standard library adds."""
    name = name.replace("std::__cxx11::", "std::")
    name = re.sub(r"std::basic_string<char, std::char_traits<char>, std::allocator<char> ?>", "std::string", name)
    name = re.sub(r", std::allocator<[\w:]+ ?>", "", name)
    return re.sub(r" +>", ">", name)


class Types:
    """What the tool tells of one object: the names of all types, and the records of our namespaces."""

    def __init__(self, root):
        self.names, self.records, self.derived = {}, {}, {}
        self.walk(root, "")

    def walk(self, scope, prefix):
        for element in scope:
            name = prefix + element.get("name", "")
            if "id" in element.attrib:
                self.names[element.get("id")] = name
                self.derived[element.get("id")] = element
            if element.tag == "namespace-decl":
                self.walk(element, name + "::")
            elif element.tag in ("abi-instr", "member-type"):
                self.walk(element, prefix)
            elif element.tag == "class-decl":
                self.walk(element, name + "::")
                if prefix.startswith(tuple(space + "::" for space in NAMESPACES)) and "size-in-bits" in element.attrib:
                    self.records[name] = element

    def name(self, type_id):
        kind = self.derived[type_id]
        if kind.tag in ("pointer-type-def", "reference-type-def"):
            return self.name(kind.get("type-id")) + ("*" if kind.tag.startswith("pointer") else "&")
        if kind.tag == "qualified-type-def":
            name = self.name(kind.get("type-id"))
            return name + " const" if name.endswith("*") else "const " + name
        if kind.tag == "array-type-def":
            return f"{self.name(kind.get('type-id'))}[{kind.find('subrange').get('length')}]"
        if kind.tag == "function-type":
            return "function"
        return shortened(self.names[type_id])

    def rows(self):
        for name, record in sorted(self.records.items()):
            yield name, "(size)", int(record.get("size-in-bits")) // 8, ""
            for part in record:
                offset = int(part.get("layout-offset-in-bits", "-8")) // 8
                if part.tag == "base-class":
                    yield name, "(base)", offset, self.name(part.get("type-id"))
                elif part.tag == "data-member" and offset >= 0:
                    member = part.find("var-decl")
                    yield name, member.get("name"), offset, self.name(member.get("type-id"))


def table(version, unit):
    told = subprocess.run(["abidw", "--load-all-types", "--no-show-locs", unit], check=True, stdout=subprocess.PIPE)
    rows = [f"version\t{version}"]
    rows += ["\t".join(map(str, row)) for row in Types(ElementTree.fromstring(told.stdout)).rows()]
    return rows


def complain(text, old, new):
    print("\n".join(difflib.unified_diff(old, new, lineterm="", n=0)))
    sys.exit(text)


def main(arguments):
    refresh = arguments[0] == "--refresh"
    version, path, *units = arguments[refresh:]
    with ThreadPoolExecutor() as pool:
        current, *others = pool.map(lambda unit: table(version, unit), units)
    for other in others:
        if other != current:
            complain("The layout of the records depends on the settings of the compiler.", current, other)
    golden = Path(path).read_text(encoding="utf-8").splitlines() if Path(path).exists() else ["version"]
    if golden[1:] != current[1:] and golden[0] == current[0]:
        complain(RAISE, golden, current)
    if refresh:
        Path(path).write_text("\n".join(current) + "\n", encoding="utf-8")
    elif golden != current:
        complain("The version is another one: ./dev layout", golden, current)


main(sys.argv[1:])
