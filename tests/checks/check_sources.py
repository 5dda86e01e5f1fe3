#!/usr/bin/env python3
"""Checks of the sources themselves: who includes whom, and what no text may hold.

Prints every offending line and fails if there is one. It first offends against each rule itself, so that a
rule that finds nothing is noticed."""

import pathlib
import posixpath
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]

# The house from the ground up. A floor uses itself and those below; "|" parts neighbours that do not know
# each other. The rooms of the widgets come from the folders of src/MFC.
LAYER = ["graphics", "display", "window", "controls", "classes"]
ROOMS = ["base", "drawn", "tips", "buttons|texts|ranges|edits|lists|menus", "containers", "dialog", "forms"]
FLOORS = LAYER + ["engine"] + ROOMS + ["testing"]

# Headers of the layer that belong above its lowest floor, and implementation headers without a source.
PLACES = {
    "platform/include/platform/OffscreenScreen.h": "display",
    "platform/include/platform/Window.h": "window",
    "platform/include/platform/Picture.h": "window",
    "platform/include/platform/SelfDrawn.h": "controls",
    "platform/include/platform/DialogManager.h": "controls",
    "platform/include/platform/Classes.h": "classes",
    "include/MFC/BaseImpl.h": "engine",
    "include/MFC/BuildStatistics.h": "dialog",
}

# What the engines and the public headers may use of the layer: values, and no windows.
WINDOWLESS = {"Types", "Geometry", "Region", "Font", "FontFamilies", "SystemColors", "WindowMessages",
              "WindowStyles", "VirtualKeys", "Bitmap"}

# Libraries, and the one folder that may see their headers.
LIBRARIES = {"xcb/": "platform/src/display/x11/", "X11/": "platform/src/display/x11/",
             "xkbcommon/": "platform/src/display/x11/", "cairo": "platform/src/graphics/",
             "pango/": "platform/src/graphics/", "fontconfig/": "platform/src/graphics/",
             "pixman": "platform/src/graphics/", "gdk-pixbuf/": "platform/src/graphics/"}

FORBIDDEN = [(r"\b(TOD[O]|FIXM[E]|XX[X]|HAC[K])\b", "finish it, or open an issue"),
             (r"\b([Ss]pe[c](ification)?s?\b|[P]art [0-9]+\.[0-9]|[I]ssue #?[0-9])",
              "say the thing itself: readers have this tree and nothing else"),
             (r"/(wor[k]|hom[e])/", "paths start at the project's root"),
             (r"[ \t\r]$", "white space at the end")]
TEXTS = {".h", ".cpp", ".md", ".txt", ".cmake", ".sh", ".ui", ".json", ".in", ".py"}


def files():
    for path in sorted(ROOT.rglob("*")):
        parts = path.relative_to(ROOT).parts
        if path.suffix in TEXTS and path.is_file() and not any(p.startswith((".", "build")) for p in parts[:-1]):
            yield path.relative_to(ROOT).as_posix()


FILES = list(files())
KNOWN = set(FILES)


def bare(path):
    """The family of a file: ButtonImplMFC.h and Button.cpp are one."""
    return re.sub(r"(Impl)?(MFC)?$", "", pathlib.PurePosixPath(path).stem)


ROOM_OF_FAMILY = {bare(path): path.split("/")[2] for path in FILES if re.match(r"src/MFC/\w+/.*\.cpp$", path)}


def room_of(path):
    if path in PLACES:
        return PLACES[path]
    if path.startswith("platform/src/"):
        return path.split("/")[2]
    if path.startswith("platform/include/"):
        return "graphics"
    if path.startswith("src/MFC/"):
        return path.split("/")[2]
    if path.startswith(("include/testing/", "src/testing/")):
        return "testing"
    if path.startswith("include/MFC/"):
        return ROOM_OF_FAMILY.get(bare(path), "a room without sources")
    return "engine" if path.startswith(("include/", "src/")) else None


def floor_of(room):
    return next((i for i, floor in enumerate(FLOORS) if room in floor.split("|")), None)


def broken_rule(source, target):
    """The rule that an include breaks, or None."""
    here, there = room_of(source), room_of(target)
    if here is None or there is None:
        return None
    if floor_of(here) is None or floor_of(there) is None:
        return f"no floor is known for {here if floor_of(here) is None else there}"
    if here != there and floor_of(there) >= floor_of(here):
        return f"{here} knows nothing of {there}"
    display = re.match(r"platform/src/display/(\w+)/", target)
    if display and not source.startswith((display[0], "platform/src/display/DisplayFactory.cpp")):
        return "only the display factory names a display"
    in_layer = source.startswith("platform/")
    if not in_layer and target.startswith("platform/src/"):
        return "the library knows the layer by platform/include only"
    if here == "engine" and target.startswith("platform/") and pathlib.PurePosixPath(target).stem not in WINDOWLESS:
        return "engines and public headers know no window"
    if source.startswith("include/") and not source.startswith("include/MFC/") and target.startswith("src/"):
        return "public headers show nothing of src"
    return None


def broken_library_rule(source, header):
    return next((f"{prefix} is used in {home} only" for prefix, home in LIBRARIES.items()
                 if header.startswith(prefix) and not source.startswith(home)), None)


def resolve(source, name):
    folders = [source.rpartition("/")[0] + "/", "platform/include/", "platform/src/", "include/", "src/"]
    paths = [posixpath.normpath(folder + name) for folder in folders]
    return next((path for path in paths if path in KNOWN), None)


def check_file(path, lines, complain):
    number_of_includes = 0
    for number, line in enumerate(lines, 1):
        for pattern, advice in FORBIDDEN:
            if re.search(pattern, line):
                complain(path, number, advice)
        include = re.match(r'#include (["<])([^">]+)', line)
        if not include or not path.startswith(("platform/", "include/", "src/")):
            continue
        number_of_includes += 1
        target = resolve(path, include[2]) if include[1] == '"' else None
        rule = broken_rule(path, target) if target else broken_library_rule(path, include[2])
        if rule:
            complain(path, number, rule)
        own = path.endswith(".cpp") and pathlib.PurePosixPath(path).stem
        if number_of_includes == 1 and own in HEADER_STEMS and pathlib.PurePosixPath(include[2]).stem != own:
            complain(path, number, "a source includes its own header first")


HEADER_STEMS = {pathlib.PurePosixPath(path).stem for path in FILES
                if path.endswith(".h") and path.startswith(("platform/", "include/", "src/"))}

OFFENCES = [("platform/src/window/Pen.cpp", '#include "Event.h"'),
            ("platform/src/window/Pen.cpp", '#include "display/offscreen/OffscreenDisplay.h"'),
            ("platform/src/window/Pen.cpp", "#include <xcb/xcb.h>"),
            ("src/layout/Box.cpp", '#include "platform/Classes.h"'),
            ("src/layout/Box.cpp", '#include "MFC/BaseImplMFC.h"'),
            ("include/Dialog.h", '#include "form/FormModel.h"'),
            ("src/MFC/base/Pen.cpp", '#include "MFC/dialog/BaseDialogMFC.h"'),
            ("src/MFC/texts/Pen.cpp", '#include "MFC/ButtonImplMFC.h"'),
            ("src/MFC/dialog/Pen.cpp", '#include "graphics/Surface.h"'),
            ("src/MFC/forms/Pen.cpp", '#include "testing/Robot.h"'),
            ("src/testing/Pen.cpp", '#include "display/offscreen/OffscreenDisplay.h"'),
            ("include/testing/Pen.h", '#include "../../src/KeyMap.h"'),
            ("src/MFC/buttons/Button.cpp", '#include "Edit.h"'),
            ("docs/a.md", "TOD" "O"), ("docs/a.md", "the spe" "c"), ("docs/a.md", "end ")]
INNOCENT = [("include/testing/Pen.h", '#include "../Dialog.h"'),
            ("src/testing/Pen.cpp", '#include "platform/Classes.h"'),
            ("src/MFC/dialog/Pen.cpp", '#include "platform/Classes.h"'),
            ("src/MFC/containers/Pen.cpp", '#include "MFC/drawn/HolderView.h"'),
            ("platform/src/display/DisplayFactory.cpp", '#include "display/offscreen/OffscreenDisplay.h"')]


def main():
    complaints = []

    def complain(path, number, text):
        complaints.append(f"{path}:{number}: {text}")

    for expected, cases in ((1, OFFENCES), (0, INNOCENT)):
        for path, line in cases:
            found = []
            check_file(path, [line], lambda *offence: found.append(offence))
            if len(found) != expected:
                complain("tests/checks/check_sources.py", 0, f"expected {expected} offence: {path}: {line}: {found}")

    for path in FILES:
        check_file(path, (ROOT / path).read_text(encoding="utf-8", errors="replace").split("\n"), complain)
    umbrella = set(re.findall(r'#include "(.+?)"', (ROOT / "include/Wexa.h").read_text()))
    for path in FILES:
        if re.fullmatch(r"include/\w+\.h", path) and path != "include/Wexa.h" and path[8:] not in umbrella:
            complain(path, 1, "Wexa.h names every public header")
    print("\n".join(complaints) or f"{len(FILES)} files are in order")
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
