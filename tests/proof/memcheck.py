# SPDX-License-Identifier: MIT
"""memcheck.py <source folder> <build folder> <folders of suites> [<suite>...]

Runs suites under Valgrind's memcheck, as CTest would run them, several at a time. Ends with 1 where one
of them failed or memcheck complained, whose report it prints.
"""

import concurrent.futures
import json
import os
import pathlib
import subprocess
import sys
import time

VALGRIND = (
    "valgrind", "--quiet", "--leak-check=full", "--show-leak-kinds=definite",
    "--errors-for-leak-kinds=definite", "--error-exitcode=99", "--num-callers=40",
    "--child-silent-after-fork=yes")
# Slow programs are no failures here.
PATIENCE = {"QTEST_FUNCTION_TIMEOUT": "3600000"}
LEFT_OUT = {
    "out_of_memory": "replaces the allocator, as memcheck does",
    "tst_FailingDictionary": "opens thousands of keypads",
}


def listed_tests(folder):
    """The tests of a folder of CTest's, as (name, command, environment)."""
    listing = subprocess.run(
        ["ctest", "--test-dir", folder, "--show-only=json-v1"],
        check=True, stdout=subprocess.PIPE).stdout
    for test in json.loads(listing)["tests"]:
        properties = {entry["name"]: entry["value"] for entry in test.get("properties", ())}
        surroundings = dict(line.split("=", 1) for line in properties.get("ENVIRONMENT", ()))
        if test["name"] in LEFT_OUT:
            print(f"{test['name']}: left out, as it {LEFT_OUT[test['name']]}", flush=True)
        else:
            yield test["name"], test["command"], surroundings


def is_program(path):
    """Whether a file is what the kernel runs itself, and no script of a shell."""
    with open(path, "rb") as file:
        return file.read(4) == b"\x7fELF"


class Memcheck:
    """Runs one test after the other and keeps what is said in files of their names."""

    def __init__(self, source, build):
        self.wrapper = str(source / "tests/support/with-totals")
        self.valgrind = [*VALGRIND, f"--suppressions={source}/tests/proof/memcheck.supp"]
        self.build = build
        self.logs = build / "memcheck"
        self.logs.mkdir(exist_ok=True)

    def command(self, name, command):
        """The command of a test with Valgrind before its program."""
        wrapper = []
        if command[0] == self.wrapper:
            wrapper, command = [self.wrapper, f"{self.logs}/{name}.log"], command[2:]
        program = pathlib.Path(command[0]).resolve()
        if self.build.resolve() not in program.parents or not is_program(program):
            sys.exit(f"{name} starts {command[0]}, which is not what was built to be looked at")
        return [*wrapper, *self.valgrind, f"--log-file={self.logs}/{name}.report", *command]

    def run(self, test):
        """Runs a test; true when nothing was found."""
        name, command, surroundings = test
        start = time.monotonic()
        run = subprocess.run(
            command, env={**os.environ, **surroundings, **PATIENCE},
            stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        report = (self.logs / f"{name}.report").read_text(errors="replace")
        is_clean = run.returncode == 0 and not report
        said = f"{name}: {'clean' if is_clean else 'NOT CLEAN'}, {time.monotonic() - start:.0f} s"
        if not is_clean:
            output = run.stdout.decode(errors="replace").splitlines()
            kept = [line for line in output if not line.startswith(("PASS ", "QWARN "))]
            said = "\n".join([said, f"status {run.returncode}", *kept[-40:], report])
        print(said, flush=True)
        return is_clean


def main():
    source, build = (pathlib.Path(argument) for argument in sys.argv[1:3])
    wanted = set(sys.argv[4:])
    tests = [test for folder in sys.argv[3].split()
             for test in listed_tests(build / "tests" / folder)
             if not wanted or test[0] in wanted]
    unknown = wanted - {name for name, _, _ in tests}
    if unknown or not tests:
        sys.exit(f"no such suite: {' '.join(sorted(unknown))}")
    memcheck = Memcheck(source, build)
    tests = [(name, memcheck.command(name, command), surroundings)
             for name, command, surroundings in tests]
    start = time.monotonic()
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        results = list(pool.map(memcheck.run, tests))
    print(f"{results.count(True)} of {len(results)} suites clean under memcheck, "
          f"in {(time.monotonic() - start) / 60:.0f} minutes")
    sys.exit(0 if all(results) else 1)


if __name__ == "__main__":
    main()
