# SPDX-License-Identifier: MIT
"""The page that scripts/demo --web tells of, worked in a browser as an operator does."""
import os
import subprocess
import tempfile
import unittest

from needs import needs
from virtual_screen import DEMO, VirtualScreen
from waiting import wait_for

try:
    from selenium.common.exceptions import WebDriverException
    from selenium.webdriver.common.keys import Keys

    import pictures
    from browser import CHROMIUM, DRIVER, Browser
except ModuleNotFoundError as error:
    raise unittest.SkipTest(f"not installed: Python's {error.name} of Debian") from error

# Pictures of the scripted session of panel 8, which does the same.
START, OPENED, TYPED, ENTERED = (
    "01-position-page", "05-y-keypad-opens", "06-y-12.5-typed", "08-y-entered")

# Points on the panel's screen, 800 x 480 pixels.
Y_FIELD = 240, 230
NO_FIELD = 400, 20
KEYS = [(label, (80 + 160 * column, 124 + 79 * row))
        for row, labels in enumerate((("A", "1", "2", "3", "ESC"), ("B", "4", "5", "6", "BSP"),
                                      ("C", "7", "8", "9", "+/-"), ("D", "E", "F", "0", "."),
                                      ("←", "→", "", "Enter", "Enter")))
        for column, label in enumerate(labels)]

TRUE_PIXELS = 1.0  # what the compression may change; a shift by one pixel makes more than 3


@needs("Xtigervnc", "tigervncpasswd", "xauth", "websockify", "/usr/share/novnc/vnc.html", CHROMIUM, DRIVER)
class Page(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([DEMO, "--script", folder], check=True, stdout=subprocess.DEVNULL,
                           env={**os.environ, "QT_QPA_PLATFORM": "offscreen"})
            cls.pictures = {name: pictures.load(f"{folder}/{name}.png") for name in (START, OPENED, TYPED, ENTERED)}

    def setUp(self):
        self.screen = self.enterContext(VirtualScreen())
        self.browser = self.enterContext(Browser())

    def find_panel(self):
        """Where the panel's screen lies on the screen in the browser, once it is seen in true pixels."""
        part = self.pictures[START]

        def look():
            picture = self.browser.picture()
            if picture is None or any(more < length for more, length in zip(picture.shape, part.shape)):
                return None
            place = pictures.locate(part, picture)
            return (place,) if pictures.difference(part, picture, place) < TRUE_PIXELS else None
        self.place, = wait_for("the panel in the browser", look)

    def tap(self, point):
        self.browser.tap(*(origin + offset for origin, offset in zip(self.place, point)))

    def wait_for_picture(self, name):
        def look():
            picture = self.browser.picture()
            return min(self.pictures,
                       key=lambda other: pictures.difference(self.pictures[other], picture, self.place)) == name
        wait_for(f"picture {name}", look)

    def open(self):
        self.browser.open(self.screen.url())
        wait_for("the connection", self.browser.is_connected)
        self.find_panel()

    def test_taps(self):
        self.open()
        self.tap(Y_FIELD)
        self.wait_for_picture(OPENED)
        for key in "1", "2", ".", "5":
            self.tap(dict(KEYS)[key])
        self.wait_for_picture(TYPED)
        self.assertIsNone(self.screen.find("Y = "))
        self.tap(dict(KEYS)["+/-"])
        self.tap(dict(KEYS)["Enter"])
        self.screen.wait_for_line(r"^Y = -12\.5$")
        self.wait_for_picture(ENTERED)

    def test_keyboard(self):
        self.open()
        self.tap(Y_FIELD)
        self.wait_for_picture(OPENED)
        self.browser.type("12.5")
        self.wait_for_picture(TYPED)
        self.browser.type(Keys.ENTER)
        self.screen.wait_for_line(r"^Y = 12\.5$")

    def test_wrong_password(self):
        right = self.screen.password()
        wrong = right[:-1] + ("a" if right[-1] != "a" else "b")
        self.browser.open(self.screen.url().replace(right, wrong))
        wait_for("the refusal", lambda: "Authentication failure" in self.browser.message())
        self.assertFalse(self.browser.is_connected())
        self.assertIsNone(self.browser.picture())
        self.open()

    def close_window(self):
        """Whether it is closed; not at the first time, if the manager has not given it the focus yet."""
        try:
            self.tap(NO_FIELD)  # the manager gives the focus to what is clicked
            self.browser.press_with_alt(Keys.F4, Keys.ALT)
        except WebDriverException:  # without the connection there is no canvas
            pass
        return self.screen.process.poll() is not None

    @needs("openbox")
    def test_window_closed(self):
        self.open()
        surroundings = self.screen.program_surroundings()
        holdings = self.screen.holdings()
        with tempfile.TemporaryDirectory() as folder:
            manager = subprocess.Popen(
                ["openbox", "--sm-disable", "--startup", f"touch {folder}/ready"],
                env={**os.environ, **{name: surroundings[name] for name in ("DISPLAY", "XAUTHORITY")}},
                stderr=subprocess.DEVNULL)
            wait_for("the window manager", lambda: os.path.exists(f"{folder}/ready"))
            wait_for("the end of the window", self.close_window)
            self.assertEqual(0, self.screen.status())
            manager.wait()
        wait_for("an empty list of what is left", lambda: not holdings.left())
        wait_for("the page's word of the end", lambda: not self.browser.is_connected())
