#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""check_page.py FOLDER: lint of the page: syntax of its scripts where Node is there, and what must not be in it."""
import re
import shutil
import subprocess
import sys
from pathlib import Path

FORBIDDEN = {
    ".js": [
        (r"\binnerHTML\b|\bouterHTML\b|insertAdjacentHTML|document\.write", "text becomes mark-up"),
        (r"\beval\s*\(|new Function\b", "text becomes code"),
        (r"\bvar\s", "var"),
        (r"[^=!]==[^=]|!=[^=]", "comparison that converts"),
        (r"\bfetch\s*\(|XMLHttpRequest|sendBeacon|\bimport\s*\(", "goes to a network"),
        (r"https?://(?!www\.w3\.org/2000/svg)", "address of a server"),
        (r"console\.|debugger", "left from a search for a fault"),
    ],
    ".html": [
        (r"\son\w+\s*=", "script in an attribute"),
        (r"\sstyle\s*=|<style", "style in the page"),
        (r"<script(?![^>]*\bsrc=)", "script in the page"),
        (r"https?://", "address of a server"),
    ],
    ".css": [(r"@import|url\(", "fetches something"), (r"!important(?! *; *})", "overrides")],
}


def faults_of(path, text):
    for pattern, reason in FORBIDDEN[path.suffix]:
        for match in re.finditer(pattern, text):
            yield f"{path}:{text.count(chr(10), 0, match.start()) + 1}: {reason}: {match.group(0).strip()}"


def names_faults(folder):
    """Names that the script looks up and the page does not have, and the other way round."""
    html = (folder / "index.html").read_text(encoding="utf-8")
    script = (folder / "page.js").read_text(encoding="utf-8")
    style = (folder / "style.css").read_text(encoding="utf-8")
    texts = (folder.parent / "welcomepage.cpp").read_text(encoding="utf-8")
    ids = set(re.findall(r'\bid="([^"]+)"', html))
    for name in set(re.findall(r'byId\("([^"]+)"\)', script)) - ids:
        yield f"page.js: no element has the id {name}"
    used = set(re.findall(r'\btext\("([^"]+)"', script)) | set(re.findall(r'data-(?:text|label)="([^"]+)"', html))
    known = set(re.findall(r'^    \{"(\w+)",\s*QT_TRANSLATE_NOOP', texts, re.MULTILINE)) | {"title"}
    for name in used - known:
        yield f"page.js, index.html: the program has no text {name}"
    given = set(re.findall(r'QStringLiteral\("([\w-]+)"\), (?:mixed|\w+\.name|palette\.color)', texts)) | {"font"}
    for name in set(re.findall(r"var\(--([\w-]+)\)", style)) - given:
        yield f"style.css: the program gives no colour {name}"
    if "default-src 'none'" not in html:
        yield "index.html: no policy"


def check_rules():
    """Each rule finds what it is for."""
    samples = {
        ".js": ["a.innerHTML = b", "eval (x)", "var a", "a == b", "fetch('x')", "'http://x'", "console.log(1)"],
        ".html": ['<p onclick="x">', '<p style="x">', "<script>", "https://x"],
        ".css": ["@import x", "a { color: red !important; b: c }"],
    }
    for suffix, texts in samples.items():
        for (pattern, reason), text in zip(FORBIDDEN[suffix], texts, strict=True):
            if not re.search(pattern, text):
                yield f"rule: {reason} is not found in {text}"


def main(folder):
    faults = [*check_rules(), *names_faults(folder)]
    for path in sorted(folder.iterdir()):
        if path.suffix in FORBIDDEN:
            faults += faults_of(path, path.read_text(encoding="utf-8"))
    node = shutil.which("node")
    if node:
        check = subprocess.run([node, "--check", str(folder / "page.js")], capture_output=True, text=True)
        faults += [check.stderr] if check.returncode else []
    print("\n".join(faults) or f"clean{'' if node else ', syntax not checked: no Node'}")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(Path(sys.argv[1]).resolve()))
