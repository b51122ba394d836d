# SPDX-License-Identifier: MIT
"""Waiting for what will be so, however slow the machine is."""
import time

LIMIT = 120  # seconds, after which it is not believed to come


def wait_for(what, condition):
    """The condition's first value that is true."""
    end = time.monotonic() + LIMIT
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise AssertionError(f"{what}: not within {LIMIT} seconds")
        time.sleep(0.05)
