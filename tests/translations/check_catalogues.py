#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""check_catalogues.py ROOT: fails on a text of the sources that a catalogue leaves untranslated, and on a
translation that lost what the program puts into it or relies on."""
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from collections import Counter
from pathlib import Path

# Command ids that are texts: menus and plug-ins know the command by them.
IDS = {"File.New"}

MNEMONIC = re.compile(r"&(?!&)\S")


def places(text):
    return Counter(re.findall(r"%L?(?:\d+|n)", text))


def patterns(text):
    return re.findall(r"\([^()]*\*[^()]*\)", text)


def ends_with(text, endings):
    return text.rstrip().endswith(endings)


def objections(source, text, numerus):
    """What is wrong with one translation of one source text."""
    if not text:
        yield "is not translated"
        return
    if source in IDS and text != source:
        yield f"is a command id and must stay, not {text!r}"
    if places(source) != places(text) and not (numerus and places(text) <= places(source)):
        yield f"has other places: {text!r}"
    if len(MNEMONIC.findall(source)) != len(MNEMONIC.findall(text)):
        yield f"has another number of keys marked with &: {text!r}"
    if patterns(source) != patterns(text):
        yield f"has other file patterns: {text!r}"
    if ends_with(source, "...") != ends_with(text, ("...", "\u2026", "...)", "\u2026)")):
        yield f"must end with dots as the source does: {text!r}"
    if ends_with(source, ":") != ends_with(text, (":", "\uff1a")):
        yield f"must end with a colon as the source does: {text!r}"
    if source.count("\n") != text.count("\n"):
        yield f"has other line ends: {text!r}"


def faults(catalogue):
    for context in ElementTree.parse(catalogue).getroot().findall("context"):
        for message in context.findall("message"):
            source = message.findtext("source")
            translation = message.find("translation")
            forms = translation.findall("numerusform") or [translation]
            unfinished = translation.get("type") == "unfinished"
            for form in forms:
                text = "" if unfinished else form.text or ""
                for objection in objections(source, text, message.get("numerus") == "yes"):
                    yield f"{catalogue.name}: {context.findtext('name')}: {source!r} {objection}"


def check_rules():
    """The rules themselves: what must pass, and what must not."""
    rows = [
        ("&Open", "\u00d6&ffnen", True), ("&Open...", "\u958b\u304f(&O)...", True), ("%1 of %2", "%2: %1", True),
        ("File.New", "File.New", True), ("File.New", "Datei.Neu", False), ("Open", "", False),
        ("%1 of %2", "%1", False), ("&Open", "Open", False), ("Open", "&Open", False), ("Open...", "Open", False),
        ("Name:", "Name", False), ("Images (*.png)", "Bilder (*.jpg)", False), ("a\nb", "a b", False),
    ]
    return [
        f"rule: {source!r} -> {text!r} should be {'allowed' if allowed else 'refused'}"
        for source, text, allowed in rows
        if (not list(objections(source, text, False))) != allowed
    ]


def main(root):
    found = check_rules()
    with tempfile.TemporaryDirectory() as folder:
        catalogues = [shutil.copy(file, folder) for file in sorted((root / "translations").glob("app_*.ts"))]
        subprocess.run([root / "scripts" / "update-translations", folder], check=True)
        for catalogue in catalogues:
            found.extend(faults(Path(catalogue)))
    if not catalogues:
        found.append(f"{root}: no catalogue found, wrong folder?")
    print("\n".join(found) or f"{len(catalogues)} catalogues, all complete")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(Path(sys.argv[1]).resolve()))
