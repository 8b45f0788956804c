#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""check_layers.py ROOT: fails on an include that points upward, from a layer to one that builds on it."""
import re
import sys
from pathlib import Path

# What each module may include besides itself.
MODULES = {
    "extensionsystem": set(),
    "core": {"extensionsystem"},
    "plugins": {"extensionsystem", "core"},
    "app": {"extensionsystem"},
    "tools": set(),
}

# The layers inside the core, lowest first; files in its own folder are shared helpers unless named here.
CORE_FOLDERS = {"imagefiles": 0, "actionmanager": 1, "document": 1, "webchannel": 1, "appearance": 1, "ui": 2,
                "updater": 2, "webview": 2}
CORE_FILES = {"mainwindow": 3, "projectcontroller": 3, "coreplugin": 4}
LAYER_NAMES = ["shared helpers", "managers", "ui and updater", "main window", "plug-in entry"]

# Files below the main window that include its header all the same, and what for.
WINDOW_USERS = {
    "core/icore.cpp": "hands the window out as a widget",
    "core/ui/imainmdiarea.cpp": "puts the home page's bridge on the window's channel, opens its projects there",
    "core/ui/imainmenuwidget.cpp": "shows what the window's signals say",
    "core/ui/kphtmlexposingwelcome.cpp": "leaves the window's channel",
}

INCLUDE = re.compile(r'^\s*#\s*include\s*["<]([^">]+)[">]', re.MULTILINE)


def core_layer(path):
    """Layer of a file below core/, given as path relative to it; None for an unknown folder."""
    if len(path.parts) > 1:
        return CORE_FOLDERS.get(path.parts[0])
    return CORE_FILES.get(path.stem.split("_")[0], 0)


def objection(source, target):
    """Why `source` must not include `target` (both relative to the root), or None."""
    ours, theirs = source.parts[0], target.parts[0]
    if ours != theirs:
        return None if theirs in MODULES[ours] else f"{ours} must not depend on {theirs}"
    if ours == "plugins" and source.parts[1] != target.parts[1]:
        return "one plug-in must not depend on another's files"
    if ours != "core" or (target == Path("core/mainwindow.h") and str(source) in WINDOW_USERS):
        return None
    layers = [core_layer(Path(*path.parts[1:])) for path in (source, target)]
    if None in layers:
        return "folder without a layer: name it in CORE_FOLDERS"
    if layers[1] > layers[0]:
        return f"the {LAYER_NAMES[layers[0]]} must not depend on the {LAYER_NAMES[layers[1]]}"
    return None


def resolve(root, source, name):
    """The file of ours that an include names, relative to the root; None for a system or generated header."""
    for folder in (source.parent, root, root / "core"):
        path = (folder / name).resolve()
        if path.is_file() and path.is_relative_to(root) and path.relative_to(root).parts[0] in MODULES:
            return path.relative_to(root)
    return None


def sources(root):
    for module in MODULES:
        for path in sorted((root / module).rglob("*")):
            if path.suffix in (".h", ".cpp") and "tests" not in path.relative_to(root).parts:
                yield path


def check_rules():
    """The rules themselves: what must pass, and what must not."""
    rows = [
        ("core/icore.cpp", "extensionsystem/pluginmanager.h", True),
        ("core/document/idocument.cpp", "core/iui.h", True),
        ("core/icore.cpp", "core/mainwindow.h", True),
        ("core/projectcontroller.cpp", "core/ui/icreatedocumentdlg.h", True),
        ("plugins/stage/stageplugin.cpp", "core/icore.h", True),
        ("core/iui.cpp", "core/mainwindow.h", False),
        ("core/icore.h", "core/mainwindow.h", False),
        ("core/icore.cpp", "core/document/idocument.h", False),
        ("core/document/idocument.cpp", "core/ui/imainmdiarea.h", False),
        ("core/mainwindow.cpp", "core/coreplugin.h", False),
        ("core/newfolder/a.cpp", "core/icore.h", False),
        ("extensionsystem/pluginmanager.cpp", "core/icore.h", False),
        ("app/main.cpp", "core/icore.h", False),
        ("plugins/a/a.cpp", "plugins/b/b.h", False),
    ]
    return [
        f"rule: {source} -> {target} should be {'allowed' if allowed else 'refused'}"
        for source, target, allowed in rows
        if (objection(Path(source), Path(target)) is None) != allowed
    ]


def main(root):
    faults = check_rules()
    includes = 0
    for source in sources(root):
        for name in INCLUDE.findall(source.read_text(encoding="utf-8")):
            target = resolve(root, source, name)
            if target is None:
                continue
            includes += 1
            reason = objection(source.relative_to(root), target)
            if reason:
                faults.append(f"{source.relative_to(root)} includes {target}: {reason}")
    faults += [f"{user}: no longer includes mainwindow.h, take it out of WINDOW_USERS" for user in WINDOW_USERS
               if '"mainwindow.h"' not in (root / user).read_text(encoding="utf-8")]
    if includes == 0:
        faults.append(f"{root}: no include found, wrong folder?")
    print("\n".join(faults) or f"{includes} includes, all of them downward")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(Path(sys.argv[1]).resolve()))
