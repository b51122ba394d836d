# SPDX-License-Identifier: MIT
"""What a test cannot do without."""
import os
import shutil
import unittest


def needs(*things):
    """Skips a test, or a class of them, where a program, file or folder is not installed."""
    missing = [thing for thing in things if not shutil.which(thing) and not os.path.exists(thing)]
    return unittest.skipIf(missing, f"not installed: {', '.join(missing)}")
