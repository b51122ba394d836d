# SPDX-License-Identifier: MIT
"""run.py <module>.<class>: runs the tests of the class; ends with 77 if all of them were skipped."""
import sys
import unittest

SKIPPED = 77

try:
    result = unittest.main(module=None, verbosity=2, exit=False).result
except unittest.SkipTest as reason:  # of the module as a whole
    print(f"skipped: {reason}")
    sys.exit(SKIPPED)
for reason in sorted({reason for _, reason in result.skipped}):
    print(f"skipped: {reason}")
if not result.wasSuccessful():
    sys.exit(1)
sys.exit(SKIPPED if len(result.skipped) == result.testsRun else 0)
