#!/usr/bin/env python3
"""report.py: prints figures on the source tree. Lines of code are neither blank nor comments."""
import re
import statistics
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
# The first line of a function's definition outside a class, as clang-format writes it.
BEGIN = re.compile(r"^(?!namespace|class|struct|enum|union)\S.*\).*\{$")
LAYER = re.compile(r"tavrelkin_layer\(tavrelkin_(\w+)(.*?)\)", re.DOTALL)


def files(folder, *endings):
    return sorted(path for path in (ROOT / folder).rglob("*") if path.suffix in endings)


def lines_of(path):
    return [line for line in path.read_text(encoding="utf-8").splitlines() if line.strip()]


def is_comment(line):
    return line.lstrip().startswith(("//", "# ", "#!"))


def count_code(folder, *endings):
    return sum(not is_comment(line) for path in files(folder, *endings) for line in lines_of(path))


def functions(path):
    """The length and position of each function that is defined outside a class."""
    begin = None
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        if begin is None and BEGIN.match(line):
            begin = number
        elif begin is not None and line == "}":
            yield number - begin - 1, f"{path.relative_to(ROOT)}:{begin}"
            begin = None


def arrows(path):
    """The libraries that a CMakeLists.txt defines, each with the libraries that it uses."""
    for name, rest in LAYER.findall(path.read_text(encoding="utf-8")):
        used = re.findall(r"tavrelkin_(\w+)", rest.partition("USES")[2].partition("PRIVATE")[0])
        yield f"{name} -> {', '.join(used)}" if used else name


def main():
    found = sorted(function for path in files("src", ".cpp", ".h") for function in functions(path))
    lengths = [length for length, _ in found]
    print(f"      functions  median {statistics.median(lengths):.0f} lines, 90th percentile "
          f"{lengths[len(lengths) * 9 // 10]}, longest {found[-1][0]} ({found[-1][1]})")
    sizes = [len(path.read_text(encoding="utf-8").splitlines()) for path in files("src", ".cpp")]
    print(f"      files      median {statistics.median(sizes):.0f} lines (.cpp)")
    headers = [line for path in files("src", ".h") for line in lines_of(path)]
    print(f"      headers    {100 * sum(map(is_comment, headers)) / len(headers):.0f} % comments")
    tests = count_code("tests", ".cpp", ".h", ".py", ".sh")
    print(f"      tests      {100 * tests / (tests + count_code('src', '.cpp', '.h')):.1f} % of src and tests")
    libraries = [arrow for path in files("src", ".txt") for arrow in arrows(path)]
    print("      libraries  " + "\n                 ".join(libraries))


if __name__ == "__main__":
    main()
