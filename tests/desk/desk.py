"""A user at a real desk: the program under a window manager, with a real mouse and keys. What is on the screen is found
as a screen reader finds it, by the names that the controls tell."""
import os
import resource
import shutil
import signal
import sqlite3
import subprocess
import tempfile
import time
import unittest

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
BUILD = os.environ["TORVANE_BUILD"]
PATIENCE = 20  # seconds until something that should come counts as missing
PROGRAM = "Torvane Construction Estimator"


def xdotool(*words):
    return subprocess.run(["xdotool", *map(str, words)], capture_output=True, text=True).stdout.strip()


def press(*keys):
    for key in keys:
        xdotool("key", key)


def write(text):
    xdotool("type", "--delay", 15, text)


def active():
    return xdotool("getactivewindow", "getwindowname")


def showing(control, state=Atspi.StateType.SHOWING):
    return control.get_state_set().contains(state)


def below(control):
    """What shows in a window, the window first."""
    yield control
    for i in range(control.get_child_count()):
        child = control.get_child_at_index(i)
        if child and showing(child):
            yield from below(child)


class DeskTest(unittest.TestCase):
    """Each test has a program folder of its own, with the sample business in it."""

    def setUp(self):
        self.home = tempfile.mkdtemp()
        self.addCleanup(shutil.rmtree, self.home)
        self.folder = self.home + "/program"
        subprocess.run([ROOT + "/scripts/stage.sh", BUILD, self.folder], check=True)
        shutil.copy(self.folder + "/Sample.bak", self.database())

    def database(self):
        return self.folder + "/Larkfen.mdb"

    def rows(self, statement):
        with sqlite3.connect(self.database()) as store:
            return store.execute(statement).fetchall()

    def start(self, largest_file=None):
        """Starts the program; `largest_file`: no file may grow beyond so many bytes, as on a full disk."""

        def limit():
            signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
            if largest_file is not None:
                resource.setrlimit(resource.RLIMIT_FSIZE, (largest_file, largest_file))

        home = {"HOME": self.home, "XDG_CONFIG_HOME": self.home, "XDG_DATA_HOME": self.home, "QT_QPA_PLATFORM": "xcb",
                "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
        self.program = subprocess.Popen([self.folder + "/torvane"], env=os.environ | home, preexec_fn=limit)
        self.addCleanup(self.program.wait)
        self.addCleanup(self.program.kill)

    def ends_with(self, status):
        self.assertEqual(self.program.wait(PATIENCE), status)

    def until(self, condition, what):
        """What the condition gives, as soon as that is something."""
        end = time.monotonic() + PATIENCE
        while True:
            try:
                found = condition()
            except GLib.Error:  # it went while it was looked at
                found = None
            if found:
                return found
            if time.monotonic() > end:
                self.fail(f"{what}; in front is {active()!r} with {self.in_front()}")
            time.sleep(0.03)

    def windows(self):
        desktop = Atspi.get_desktop(0)
        for i in range(desktop.get_child_count()):
            application = desktop.get_child_at_index(i)
            if application and application.get_process_id() == self.program.pid:
                application.clear_cache()
                yield from (application.get_child_at_index(k) for k in range(application.get_child_count()))

    def window(self, title):
        """The one with this title; a box before the window that it stands over."""
        here = [one for one in self.windows() if one and showing(one) and one.get_name() == title]
        return max(here, key=lambda one: one.get_role_name() == "alert", default=None)

    def comes(self, title):
        """The window has come and has the keys."""
        self.until(lambda: self.window(title) and active() == title, f"{title!r} does not come")

    def goes(self, title):
        self.until(lambda: not self.window(title), f"{title!r} does not go")

    def shown(self, title):
        top = self.window(title)
        return list(below(top)) if top else []

    def control(self, name, window=None, role=None):
        title = window or active()
        return self.until(lambda: next((one for one in self.shown(title) if one.get_name() == name and
                                        role in (None, one.get_role_name())), None), f"no {name!r} in {title!r}")

    def in_front(self):
        return [f"{one.get_role_name()} {one.get_name()!r}" for one in self.shown(active()) if one.get_name()]

    def reads(self, name, text):
        """A box shows this text."""
        box = self.control(name, role="text")
        self.until(lambda: Atspi.Text.get_text(box, 0, -1) == text, f"{name!r} does not read {text!r}")

    def focused(self):
        """The name of what has the keys."""
        return next((one.get_name() for one in self.shown(active()) if showing(one, Atspi.StateType.FOCUSED)), None)

    def click(self, name, window=None, role=None, times=1):
        place = self.control(name, window, role).get_extents(Atspi.CoordType.SCREEN)
        xdotool("mousemove", place.x + place.width // 2, place.y + place.height // 2,
                "click", "--repeat", times, "--delay", 60, 1)

    def enter(self, name, text):
        """Replaces what stands in a box."""
        self.click(name, role="text")
        press("ctrl+a")
        write(text)

    def bring(self, title):
        """A window that stands behind others, as the task bar does it."""
        xdotool("search", "--name", f"^{title}$", "windowactivate")
        self.comes(title)

    def choose(self, *entries):
        """Entries of the main window's menus, from the bar down."""
        self.until(lambda: self.window("Main Menu"), "no main window")
        self.bring("Main Menu")
        for entry in entries:
            self.click(entry, "Main Menu", "menu item")

    def box(self, title, text, answer):
        """A message box comes over all, says this, and is answered by a key."""
        def said():
            box = self.window(title)
            return box and any(one.get_name() == text for one in below(box)) and active() == title and box

        box = self.until(said, f"no box {text!r}")
        press(answer)
        self.until(lambda: not showing(box) or self.window(title) != box, f"the box {text!r} does not go")
