"""Tries the mutants of this folder: see scripts/mutants.

    run.py PROJECT [--dry-run] [NAME...]
"""

import collections
import itertools
import json
import os
import pathlib
import re
import subprocess
import sys

#: The delivered code, which is the only place of mutants.
CODE = re.compile(r"(?!(tests|bench|fuzz|demo)/).*\.(cpp|h|sql)")

#: Seconds that one test function may take.
PATIENCE = 120

KILLED = "killed"
SURVIVED = "survived"
DOES_NOT_APPLY = "does not apply"
DOES_NOT_BUILD = "does not build"
TEST_FAILS = "test fails"
APPLIES = "applies"


class Failure(Exception):
    """The reason why no mutant can be tried."""


class Mutant:
    """One entry of a list.

        name: what-it-is-called
        behaviour: What the code does, in a sentence.
        test: tst_program function
         a line that stays
        -a line that goes
        +a line that comes

    The lines that stay and go must be found once in all of the code, in whichever file; how they
    are broken and indented does not count.
    """

    def __init__(self, source, text):
        self.list = source.stem
        headers, lines = {}, []
        for line in text.splitlines():
            if line[0] in " -+":
                lines.append(line)
            else:
                key, _, value = line.partition(": ")
                headers[key] = value
        if set(headers) != {"name", "behaviour", "test"} or all(line[0] == " " for line in lines):
            raise Failure(f"{source} has an entry that is no mutant:\n{text}")
        self.name = headers["name"]
        self.behaviour = headers["behaviour"]
        self.test = headers["test"]
        self.program, _, self.function = self.test.partition(" ")
        self.pattern = pattern("\n".join(line[1:] for line in lines if line[0] != "+"))
        self.replacement = "\n".join(line[1:] for line in lines if line[0] != "-").strip()
        self.path = None  #: of the file in which it was found
        self.mutated = None  #: that file's text with the mutant in it

    def find(self, code):
        """Finds the place in the code; returns the paths in which it occurs."""
        found = [(path, match) for path, text in code.items()
                 for match in self.pattern.finditer(text)]
        if len(found) == 1:
            self.path, match = found[0]
            text = code[self.path]
            self.mutated = text[:match.start()] + self.replacement + text[match.end():]
        return [path for path, match in found]


def pattern(text):
    """A regular expression for a piece of code, whatever its layout."""
    tokens = re.findall(r"\w+|[^\w\s]", text)
    expression = ""
    for before, token in zip([None] + tokens, tokens):
        if before:
            expression += r"\s+" if is_word(before) and is_word(token) else r"\s*"
        expression += re.escape(token)
    return re.compile((r"\b" if is_word(tokens[0]) else "") + expression
                      + (r"\b" if is_word(tokens[-1]) else ""))


def is_word(token):
    return re.match(r"\w", token) is not None


def read_lists(folder):
    mutants = [Mutant(source, entry) for source in sorted(folder.glob("*.txt"))
               for entry in re.split(r"\n\s*\n", source.read_text(encoding="utf-8").strip())]
    names = collections.Counter(mutant.name for mutant in mutants)
    names.update({mutant.list for mutant in mutants})
    twice = sorted(name for name, count in names.items() if count > 1)
    if twice:
        raise Failure("there is more than one " + ", ".join(twice))
    return mutants


def choose(mutants, names):
    unknown = set(names) - {mutant.name for mutant in mutants} - {mutant.list for mutant in mutants}
    if unknown:
        raise Failure("there is no mutant and no list " + ", ".join(sorted(unknown)))
    return [mutant for mutant in mutants
            if not names or mutant.name in names or mutant.list in names]


def dry_run(project, mutants):
    """Reports the mutants whose text or whose test is not there."""
    listed = subprocess.run(["git", "-C", project, "ls-files", "-z"], check=True,
                            stdout=subprocess.PIPE, text=True).stdout
    paths = [path for path in listed.split("\0") if (project / path).is_file()]
    code = {path: (project / path).read_text(encoding="utf-8")
            for path in paths if CODE.fullmatch(path)}
    tests = {pathlib.Path(path).stem: (project / path).read_text(encoding="utf-8")
             for path in paths if re.fullmatch(r"tests/.*/tst_\w+\.cpp", path)}
    outcomes = collections.Counter()
    for mutant in mutants:
        found = mutant.find(code)
        function = mutant.function.partition(":")[0]
        applies = len(found) == 1 and f"::{function}(" in tests.get(mutant.program, "")
        outcomes[APPLIES if applies else DOES_NOT_APPLY] += 1
        if not applies:
            print(f"{mutant.list}: {mutant.name} does not apply: {mutant.test}, found in "
                  + (", ".join(found) or "no file"))
    return outcomes


class Copy:
    """A copy of the project, with a build of its own. A file is written only when it differs, so
    that little is rebuilt."""

    def __init__(self, project, folder):
        self.folder = folder
        listed = subprocess.run(
            ["git", "-C", project, "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
            check=True, stdout=subprocess.PIPE, text=True).stdout
        self.paths = sorted({path for path in listed.split("\0") if (project / path).is_file()})
        for path in self.files() - set(self.paths):
            (folder / path).unlink()
        for path in self.paths:
            self.write(path, (project / path).read_bytes())
            (folder / path).chmod((project / path).stat().st_mode)
        self.commands = self.configure()

    def files(self):
        """The copied files of an earlier run."""
        found = set()
        for parent, folders, names in os.walk(self.folder):
            if pathlib.Path(parent) == self.folder and "build" in folders:
                folders.remove("build")
            found |= {str((pathlib.Path(parent) / name).relative_to(self.folder))
                      for name in names}
        return found

    def write(self, path, content):
        target = self.folder / path
        if not target.exists() or target.read_bytes() != content:
            target.parent.mkdir(parents=True, exist_ok=True)
            target.write_bytes(content)

    def configure(self):
        """The commands of the tests by their names."""
        configured = self.run("cmake", "--preset", "dev")
        if configured.returncode != 0:
            raise Failure("the copy cannot be configured:\n" + configured.stdout)
        listed = self.run("ctest", "--preset", "dev", "--show-only=json-v1").stdout
        return {test["name"]: test["command"] for test in json.loads(listed)["tests"]
                if "command" in test}

    def code(self):
        return {path: (self.folder / path).read_text(encoding="utf-8")
                for path in self.paths if CODE.fullmatch(path)}

    def run(self, *command, **options):
        return subprocess.run(command, cwd=self.folder, stdin=subprocess.DEVNULL, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, **options)

    def build(self, program):
        return self.run("cmake", "--build", "--preset", "dev", "--target", program)

    def passes(self, program, functions):
        try:
            return self.run(*self.commands[program], *functions,
                            timeout=PATIENCE * len(functions)).returncode == 0
        except subprocess.TimeoutExpired:
            return False


class Trial:
    def __init__(self, copy):
        self.copy = copy
        self.outcomes = collections.Counter()

    def run(self, mutants):
        code = self.copy.code()
        for mutant in mutants:
            paths = mutant.find(code)
            if len(paths) != 1:
                self.report(mutant, DOES_NOT_APPLY, ["found in: " + (", ".join(paths) or "no file")])
        # One test program after the other, and for each one file after the other: most of what the
        # next mutant needs is then built.
        found = sorted((mutant for mutant in mutants if mutant.path),
                       key=lambda mutant: (mutant.program, mutant.path))
        for program, group in itertools.groupby(found, lambda mutant: mutant.program):
            self.run_program(program, list(group), code)

    def run_program(self, program, mutants, code):
        failing = self.failing(program, sorted({mutant.function for mutant in mutants}))
        for mutant in mutants:
            if mutant.function in failing:
                self.report(mutant, TEST_FAILS)
                continue
            self.copy.write(mutant.path, mutant.mutated.encode())
            self.try_out(mutant)
            self.copy.write(mutant.path, code[mutant.path].encode())

    def failing(self, program, functions):
        """The functions that fail without any mutant, or do not exist."""
        if program not in self.copy.commands:
            return functions
        built = self.copy.build(program)
        if built.returncode != 0:
            raise Failure(f"{program} cannot be built:\n{built.stdout}")
        if self.copy.passes(program, functions):
            return []
        return [function for function in functions if not self.copy.passes(program, [function])]

    def try_out(self, mutant):
        built = self.copy.build(mutant.program)
        if built.returncode != 0:
            self.report(mutant, DOES_NOT_BUILD, re.findall(r".*error:.*", built.stdout)[:3])
        elif self.copy.passes(mutant.program, [mutant.function]):
            self.report(mutant, SURVIVED)
        else:
            self.report(mutant, KILLED)

    def report(self, mutant, outcome, details=()):
        self.outcomes[outcome] += 1
        lines = [f"{outcome:14}  {mutant.list}: {mutant.name}"]
        if outcome != KILLED:
            lines += [f"{'':16}{line}" for line in (mutant.behaviour, mutant.test, *details)]
        print(*lines, sep="\n", flush=True)


def main(project, *names):
    project = pathlib.Path(project)
    try:
        if "--dry-run" in names:
            mutants = choose(read_lists(project / "tests/mutants"), set(names) - {"--dry-run"})
            return 0 if dry_run(project, mutants)[APPLIES] == len(mutants) else 1
        mutants = choose(read_lists(project / "tests/mutants"), names)
        trial = Trial(Copy(project, project / "build/mutants"))
        trial.run(mutants)
    except Failure as failure:
        sys.exit(f"mutants: {failure}")
    counts = ", ".join(f"{count} {outcome}" for outcome, count in trial.outcomes.most_common())
    print(f"{len(mutants)} mutants: {counts}")
    return 0 if trial.outcomes[KILLED] == len(mutants) else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
