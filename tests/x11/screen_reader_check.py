"""What a screen reader hears, through AT-SPI on a private D-Bus session.

Run by screen_reader_bus.sh. Starts the screen-reader application (argument 1), finds it
through the registry as an assistive technology does, and checks: a list named after
each palette holding the Automatic and More Colors push buttons around named cells (an
unnamed colour reads its colour text), the honeycomb's named cells, and, for arrow keys
sent through the X server, a focus event naming the cell the key moved to.
Run with Debian's /usr/bin/python3 (python3-pyatspi). Exit status 0 when all holds.
"""
import os
import re
import subprocess
import sys
import tempfile
import time

try:
    import pyatspi
    from gi.repository import GLib
except ImportError as missing:
    sys.exit("pyatspi is missing (package python3-pyatspi): %s" % missing)

TIMEOUT = 20.0
COLOUR_TEXT = re.compile(r"^#[0-9A-F]{6}$", re.IGNORECASE)
failures = []
heard = []


def check(condition, message):
    if not condition:
        failures.append(message)
        print("FAIL: " + message, flush=True)
    return condition


def pump(seconds):
    """Lets the bus deliver events for a while."""
    context = GLib.MainContext.default()
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        while context.iteration(False):
            pass
        time.sleep(0.01)


def wait_for(find, what):
    end = time.monotonic() + TIMEOUT
    while time.monotonic() < end:
        found = find()
        if found:
            return found
        pump(0.2)
    check(False, "never appeared: " + what)
    return None


def application(name):
    desktop = pyatspi.Registry.getDesktop(0)
    for i in range(desktop.childCount):
        app = desktop.getChildAtIndex(i)
        if app is not None and app.name == name:
            return app
    return None


def lists(app):
    return pyatspi.findAllDescendants(app, lambda node: node.getRole() == pyatspi.ROLE_LIST)


def items(node):
    return [node.getChildAtIndex(i) for i in range(node.childCount)]


def check_palette(grid):
    children = items(grid)
    if not check(len(children) > 2, "%s lists %d items" % (grid.name, len(children))):
        return
    first, cells, last = children[0], children[1:-1], children[-1]
    check(first.getRole() == pyatspi.ROLE_PUSH_BUTTON and first.name == "Automatic",
          "%s: first item %s %r" % (grid.name, first.getRoleName(), first.name))
    check(last.getRole() == pyatspi.ROLE_PUSH_BUTTON and last.name == "More Colors...",
          "%s: last item %s %r" % (grid.name, last.getRoleName(), last.name))
    for cell in cells:
        colour = cell.description
        check(cell.getRole() == pyatspi.ROLE_LIST_ITEM and cell.name and COLOUR_TEXT.match(colour),
              "%s: cell %s %r %r" % (grid.name, cell.getRoleName(), cell.name, colour))


def on_focus(event):
    if event.type.startswith("focus") or event.detail1 == 1:
        heard.append(event.source)


def hear_moves(control, keys, expected):
    """Gives the control the keyboard, sends each key through the X server and expects a
    focus event on the control's item at the expected index, named as that item."""
    check(control.queryComponent().grabFocus(), "%s takes no focus" % control.name)
    pump(0.5)
    for key, index in zip(keys, expected):
        del heard[:]
        subprocess.run(["xdotool", "key", key], check=True)
        want = control.getChildAtIndex(index)
        got = wait_for(lambda: [s for s in heard if s.parent == control] or None,
                       "%s: a focus event after %s" % (control.name, key))
        if got:
            print("%s: %s -> %r" % (control.name, key, got[-1].name), flush=True)
            check(got[-1].getIndexInParent() == index and got[-1].name == want.name,
                  "%s: %s announced %r (item %d), expected %r (item %d)"
                  % (control.name, key, got[-1].name, got[-1].getIndexInParent(), want.name, index))


def main():
    app_path = sys.argv[1]
    names_file = tempfile.NamedTemporaryFile(delete=False)
    process = subprocess.Popen([app_path, names_file.name])
    try:
        pyatspi.Registry.registerEventListener(on_focus, "focus:", "object:state-changed:focused")
        app = wait_for(lambda: application("lumo-screen-reader-app"), "the application on the bus")
        if app is None:
            return 1
        palettes = [line.strip() for line in open(names_file.name) if line.strip()]
        check(len(palettes) > 0, "the application named no palettes")
        found = {node.name: node for node in lists(app)}
        for palette in palettes:
            if check(palette in found, "no list named " + palette):
                check_palette(found[palette])
        honeycomb = found.get("Honeycomb colour picker")
        if check(honeycomb is not None, "no honeycomb list"):
            cells = items(honeycomb)
            check(len(cells) > 0, "the honeycomb lists no cells")
            for cell in cells:
                check(cell.getRole() == pyatspi.ROLE_LIST_ITEM and cell.name.endswith("(%s)" % cell.description),
                      "honeycomb cell %r %r" % (cell.name, cell.description))
        # The grid's keyboard starts on Automatic: Right walks the cells in order. The
        # honeycomb's first key selects its first cell, and Right steps along the row.
        for palette in (palettes[0], palettes[-1]):
            if palette in found:
                hear_moves(found[palette], ["Right"] * 4, [1, 2, 3, 4])
        if honeycomb is not None:
            hear_moves(honeycomb, ["Right"] * 3, [0, 1, 2])
    finally:
        process.terminate()
        process.wait(timeout=10)
        os.unlink(names_file.name)
    print("%d failures" % len(failures), flush=True)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
