# SPDX-License-Identifier: MIT
"""Headless Chromium on a page of noVNC."""
import base64
import io
import os
import tempfile

import numpy
from PIL import Image
from selenium import webdriver
from selenium.common.exceptions import WebDriverException
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.action_chains import ActionChains
from selenium.webdriver.common.by import By

CHROMIUM = "/usr/bin/chromium"
DRIVER = "/usr/bin/chromedriver"

# No talk with the world outside, and room for the whole screen without scrolling.
ARGUMENTS = [
    "--headless", "--disable-gpu", "--disable-quic", "--no-first-run", "--disable-background-networking",
    "--disable-component-update", "--disable-sync", "--force-device-scale-factor=1", "--window-size=1600,1200"]

PICTURE = "return arguments[0].toDataURL('image/png')"


class Browser:
    def __init__(self):
        self.profile = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        options = webdriver.ChromeOptions()
        options.binary_location = CHROMIUM
        for argument in [*ARGUMENTS, f"--user-data-dir={self.profile.name}"]:
            options.add_argument(argument)
        if os.geteuid() == 0:
            options.add_argument("--no-sandbox")
        self.driver = webdriver.Chrome(service=Service(DRIVER), options=options)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.driver.quit()
        self.profile.cleanup()

    def open(self, url):
        self.driver.get("about:blank")  # another fragment alone would not load the page anew
        self.driver.get(url)

    def is_connected(self):
        return "noVNC_connected" in self.driver.find_element(By.TAG_NAME, "html").get_attribute("class")

    def message(self):
        return self.driver.find_element(By.ID, "noVNC_status").get_attribute("textContent")

    def canvas(self):
        return self.driver.find_element(By.CSS_SELECTOR, "#noVNC_container canvas")

    def picture(self):
        """The screen's red, green and blue, by row and column; None before there is one."""
        try:
            data = self.driver.execute_script(PICTURE, self.canvas())
        except WebDriverException:
            return None
        picture = Image.open(io.BytesIO(base64.b64decode(data.partition(",")[2]))).convert("RGB")
        return numpy.asarray(picture, dtype=numpy.float32)

    def tap(self, column, row):
        canvas = self.canvas()
        size = canvas.size  # offsets count from the middle
        ActionChains(self.driver).move_to_element_with_offset(
            canvas, column - size["width"] // 2, row - size["height"] // 2).click().perform()

    def type(self, keys):
        ActionChains(self.driver).send_keys(keys).perform()

    def press_with_alt(self, key, alt):
        ActionChains(self.driver).key_down(alt).send_keys(key).key_up(alt).perform()
