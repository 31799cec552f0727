#!/usr/bin/env python3
"""Works the real program as a screen reader sees it, on a display of its own.

    check_accessibility.py PROGRAM CLI

Whatever a page shows and one can work must have a name that tells it from its neighbours; each open page is a tab
that can be chosen; a record can be added by names alone. Exit code 77 where a tool for this is missing.
"""
import collections
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time

SKIPPED = 77
PATIENCE = 20  # seconds, for what should happen at once

TOOLS = ["Xvfb", "openbox", "xdotool", "dbus-run-session"]
PAGES = ["Products Catalog", "Counterparties", "Units", "Product Journal", "Sales for a Period", "Balance Sheet",
         "Purchase", "Sale", "Warehouses"]
WORKED = {"push button", "toggle button", "check box", "radio button", "text", "combo box", "table", "tree",
          "tree table", "page tab", "slider", "spin button", "date editor", "menu item"}


def skip(reason):
    print(f"skipped: {reason}")
    sys.exit(SKIPPED)


def wait_for(what, ask):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        found = ask()
        if found:
            return found
        time.sleep(0.05)
    sys.exit(f"there is no {what}")


# --- outside: display, window manager and bus


def run_on_display(program, cli):
    with tempfile.TemporaryDirectory() as folder:
        project = pathlib.Path(folder, "shop.pdb")
        subprocess.run([cli, "create", project, "--currency", "EUR"], check=True, stdout=subprocess.DEVNULL)
        reading, writing = os.pipe()
        display = subprocess.Popen(["Xvfb", "-displayfd", str(writing), "-screen", "0", "1600x1000x24",
                                    "-nolisten", "tcp"], pass_fds=[writing], stderr=subprocess.DEVNULL)
        os.close(writing)
        number = os.fdopen(reading).readline().strip()
        if not number:
            skip("Xvfb does not start")
        runtime = pathlib.Path(folder, "runtime")
        runtime.mkdir(mode=0o700)
        environment = {key: value for key, value in os.environ.items() if key != "QT_QPA_PLATFORM"}
        environment |= {"DISPLAY": f":{number}", "XDG_CONFIG_HOME": f"{folder}/config", "XDG_DATA_HOME": f"{folder}/data",
                        "XDG_RUNTIME_DIR": str(runtime), "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
        manager = subprocess.Popen(["openbox"], env=environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            command = ["dbus-run-session", "--", sys.executable, __file__, "--inside", program, str(project)]
            return subprocess.run(command, env=environment).returncode
        finally:
            manager.terminate()
            manager.wait()
            display.terminate()
            display.wait()


# --- inside: the program by its names


Seen = collections.namedtuple("Seen", "node role name states")


class Screen:
    def __init__(self, pyatspi, application):
        from gi.repository import GLib

        self.pyatspi = pyatspi
        self.gone = GLib.Error  # what was there a moment ago
        self.application = application
        self.complaints = []

    def widgets(self, node=None):
        """All that is there, from the outside in."""
        try:
            node = node or self.application
            children = [child for child in node if child is not None]
            seen = Seen(node, node.getRoleName(), node.name, node.getState())
        except self.gone:
            return
        yield seen
        for child in children:
            yield from self.widgets(child)

    def showing(self):
        return [w for w in self.widgets() if w.states.contains(self.pyatspi.STATE_SHOWING)]

    def find(self, role, name):
        return next((w for w in self.showing() if (w.role, w.name) == (role, name)), None)

    def get(self, role, name):
        return wait_for(f"{role} '{name}'", lambda: self.find(role, name))

    def press(self, widget):
        widget.node.queryAction().doAction(0)

    def open_page(self, title):
        before = len(self.tabs())
        self.press(next(w for w in self.widgets() if (w.role, w.name) == ("menu item", title)))
        wait_for(f"tab of '{title}'", lambda: len(self.tabs()) > before)

    def tabs(self):
        return [w for w in self.widgets() if w.role == "page tab"]

    def answer_questions(self):
        """A question at the start is left unanswered by its last button."""
        box = next((w for w in self.showing() if w.role == "alert"), None)
        if box:
            self.press([w for w in self.widgets(box.node) if w.role == "push button"][-1])
            wait_for("end of the question", lambda: not any(w.role == "alert" for w in self.showing()))

    def is_named(self, widget):
        if widget.role != "combo box":
            return bool(widget.name)
        # The name of a chooser is what is chosen in it; what it is for is told beside it.
        relations = [relation.getRelationType() for relation in widget.node.getRelationSet()]
        return self.pyatspi.RELATION_LABELLED_BY in relations or bool(widget.node.description)

    def check_names(self, page):
        names = collections.Counter()
        for widget in self.showing():
            if widget.role not in WORKED:
                continue
            if not self.is_named(widget):
                parent = widget.node.parent
                self.complaints.append(f"{page}: a {widget.role} '{widget.name}' that nothing says the use of, "
                                       f"in the {parent.getRoleName()} '{parent.name}'")
            elif widget.role != "combo box" and widget.states.contains(self.pyatspi.STATE_FOCUSABLE):
                names[widget.role, widget.name] += 1
        self.complaints += [f"{page}: {count} times a {role} '{name}'" for (role, name), count in names.items()
                            if count > 1]


def add_warehouse(screen):
    screen.press(screen.get("push button", "Add"))
    name = screen.get("text", "Warehouse Name")
    wait_for("cursor in the name", lambda: name.node.getState().contains(screen.pyatspi.STATE_FOCUSED))
    subprocess.run(["xdotool", "type", "--delay", "20", "Main"], check=True)
    wait_for("typed name", lambda: name.node.queryText().getText(0, -1) == "Main")
    screen.check_names("form of a warehouse")
    screen.press(screen.get("push button", "OK"))
    wait_for("row of the new warehouse", lambda: screen.find("table cell", "Main"))


def check(program, project):
    import pyatspi
    with subprocess.Popen([program, project], stdin=subprocess.DEVNULL) as running:
        try:
            application = wait_for("program", lambda: next(
                (a for a in pyatspi.Registry.getDesktop(0) if a is not None and a.name == "Zelvor"), None))
            screen = Screen(pyatspi, application)
            screen.get("tree", "Menu")
            time.sleep(0.5)
            screen.answer_questions()
            for page in PAGES:
                screen.open_page(page)
                screen.check_names(page)
            add_warehouse(screen)
            if len(screen.tabs()) != len(PAGES):
                screen.complaints.append(f"{len(screen.tabs())} tabs for {len(PAGES)} pages")
            screen.press(screen.tabs()[0])
            screen.get("tree", "Products Catalog")
        finally:
            running.send_signal(signal.SIGTERM)
        if running.wait(PATIENCE) != 0:
            screen.complaints.append(f"the program ended with {running.returncode}")
    print("\n".join(screen.complaints) or f"{len(PAGES)} pages, every widget has its name")
    return 1 if screen.complaints else 0


def main():
    if sys.argv[1:2] == ["--inside"]:
        sys.exit(check(*sys.argv[2:]))
    missing = [tool for tool in TOOLS if not shutil.which(tool)]
    if missing:
        skip(f"{', '.join(missing)} not installed")
    try:
        import pyatspi  # noqa: F401
    except ImportError:
        skip("this Python has no pyatspi")
    sys.exit(run_on_display(*sys.argv[1:]))


if __name__ == "__main__":
    main()
