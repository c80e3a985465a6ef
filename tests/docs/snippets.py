#!/usr/bin/python3
"""Extracts the code from the guides and from the headers' comments, and checks it against the tree.

snippets.py extract OUT HEADER...    writes every C++, QML and CMake snippet into OUT, for the compiler, qmllint
                                     and CMake; prints the names of the C++ files: one for each guide, and one for
                                     the headers of each room, because most of the compile time goes into includes
snippets.py shell TOOL_FOLDER        checks the shell's snippets and runs those that call the tool
snippets.py links                    checks the guides' links to files and headings

The guides are every *.md in the root and in docs/. An example in a header is indented by four spaces within a "///"
comment. Below a guide's own #include lines a snippet has those of the snippets before it.
"""

import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
GUIDES = sorted([*ROOT.glob("*.md"), *ROOT.glob("docs/*.md")])
FENCE = re.compile(r"^```(\w+)\n(.*?)^```$", re.MULTILINE | re.DOTALL)
# Recognizes functions and types with their bodies. Other snippets are statements for a function's
# body.
DEFINITIONS = re.compile(r"^(?!if|for|while|switch)\w[^;=\[]*\)( const)? \{$|\A\s*(struct|class) .*^\};\s*\Z",
                         re.MULTILINE | re.DOTALL)
QML_IMPORTS = "import QtQuick\nimport QtQuick.Layouts\nimport QtQuick.Controls\nimport QuorixWidgets\n"


def snippets(guide, language):
    """The snippets of a guide in `language`, each with the line number of its start."""
    text = guide.read_text()
    return [(text.count("\n", 0, found.start(2)) + 1, found[2])
            for found in FENCE.finditer(text) if found[1] == language]


def examples(header):
    """The examples in a header's comments, each with the line number of its start."""
    found = []
    last = -1
    fenced = False  # inside the fenced output of a function
    for number, line in enumerate(header.read_text().splitlines(), 1):
        fenced ^= "/// ```" in line
        code = None if fenced else re.match(r" *///     ( *\S.*)", line)
        if not code:
            continue
        if number == last + 1:
            found[-1] = (found[-1][0], found[-1][1] + code[1] + "\n")
        else:
            found.append((number, code[1] + "\n"))
        last = number
    return found


def source(path, pieces, head, namespace):
    """A C++ file with `pieces`: each becomes a function's body, or a declaration."""
    includes, rest = "", ""
    for line, code in pieces:
        includes += "".join(re.findall(r"^#include.*\n", code, re.MULTILINE))
        body = re.sub(r"^#include.*$", "", code, flags=re.MULTILINE)
        if not body.strip():
            continue
        place = f'#line {line} "{path}"\n'
        if DEFINITIONS.search(body):
            rest += place + body
        else:
            rest += f"[[maybe_unused]] static void {path.stem}{line}() {{\n{place}{body}}}\n"
    if namespace:
        rest = f"namespace {namespace} {{\n{rest}}}\n"
    return head + includes + rest


def check_includes(path, pieces, headers):
    """Exits if a snippet includes a header of this tree that is not installed."""
    for line, code in pieces:
        for name in re.findall(r"^#include <((?:platform|QuorixWidgets|qt|qml)/.*)>", code, re.MULTILINE):
            if name not in headers:
                sys.exit(f"{path.relative_to(ROOT)}:{line}: {name} is not installed")


def write(path, text):
    """Writes a file only if its content changes, so that unchanged files are not compiled again."""
    path.parent.mkdir(parents=True, exist_ok=True)
    if not path.exists() or path.read_text() != text:
        path.write_text(text)


def extract(out, headers):
    wanted = {}
    for guide in GUIDES:
        name = guide.stem
        if pieces := snippets(guide, "cpp"):
            check_includes(guide, pieces, headers)
            wanted[f"{name}.cpp"] = source(guide, pieces, '#include "Given.h"\n', None)
        for line, code in snippets(guide, "qml"):
            imports = "" if code.startswith("import") else QML_IMPORTS
            wanted[f"qml/{name}{line}.qml"] = imports + code
    for header in headers:
        if pieces := examples(ROOT / header):
            check_includes(ROOT / header, pieces, headers)
            namespace = re.search(r"^namespace ([\w:]+) \{", (ROOT / header).read_text(), re.MULTILINE)[1]
            head = f'#include "{header}"\n#include "Given.h"\n'
            room = f"headers/{header.split('/')[0]}.cpp"
            wanted[room] = wanted.get(room, "") + source(ROOT / header, pieces, head, namespace)
    readme_project(out / "readme")
    for old in [*out.glob("*.cpp"), *out.glob("headers/*.cpp"), *out.glob("qml/*.qml")]:
        if str(old.relative_to(out)) not in wanted:
            old.unlink()
    for name, text in wanted.items():
        write(out / name, text)
    print("\n".join(sorted(name for name in wanted if name.endswith(".cpp"))))


def readme_project(folder):
    """The project that the README tells its reader to write, with the clone in it."""
    readme = ROOT / "README.md"
    pieces = {language: [code for _, code in snippets(readme, language)] for language in ("cmake", "cpp", "qml")}
    write(folder / "CMakeLists.txt",
          f"cmake_minimum_required(VERSION 3.25)\nproject(shop CXX)\n{pieces['cmake'][0]}")
    write(folder / "main.cpp", next(code for code in pieces["cpp"] if "int main(" in code))
    write(folder / "Main.qml", pieces["qml"][0])
    if not (folder / "QuorixWidgets").is_symlink():
        (folder / "QuorixWidgets").symlink_to(ROOT)


def fail(guide, line, what):
    print(f"{guide.relative_to(ROOT)}:{line}: {what}")
    return 1


def check_shell(guide, line, code, presets, options):
    """The number of mistakes in a shell snippet: in its syntax, and in the files that it names."""
    failures = 0
    grammar = subprocess.run(["bash", "-n"], input=code, text=True, capture_output=True)
    if grammar.returncode != 0:
        failures += fail(guide, line, grammar.stderr.strip())
    for script in re.findall(r"\bscripts/[\w-]+", code):
        if not os.access(ROOT / script, os.X_OK):
            failures += fail(guide, line, f"there is no {script}")
    for preset in re.findall(r"--preset (\S+)", code):
        if preset not in presets:
            failures += fail(guide, line, f"there is no preset {preset}")
    for option in re.findall(r"-D(QUORIX_\w+)", code):
        if option not in options:
            failures += fail(guide, line, f"there is no option {option}")
    return failures


def shell(tool_folder):
    """Runs the tool's snippets, except those that install or build, or that wait for a user at a window."""
    tool_folder = pathlib.Path(tool_folder).resolve()
    presets = {preset["name"] for preset in json.loads((ROOT / "CMakePresets.json").read_text())["configurePresets"]}
    options = (ROOT / "cmake/Options.cmake").read_text()
    failures = runs = 0
    for guide in GUIDES:
        for line, code in snippets(guide, "sh"):
            failures += check_shell(guide, line, code, presets, options)
            joined = code.replace("\\\n", " ")
            calls = [call for call in joined.splitlines()
                     if not re.match(r"scripts/|cmake |export |apt |quorix preview", call)]
            if not any("quorix " in call for call in calls):
                continue
            runs += 1
            with tempfile.TemporaryDirectory() as folder:
                os.symlink(ROOT / "QuorixWidgets", f"{folder}/QuorixWidgets")
                run = subprocess.run(["bash", "-e", "-o", "pipefail"], input="\n".join(calls), cwd=folder, text=True,
                                     capture_output=True, env={**os.environ, "PATH": f"{tool_folder}:{os.environ['PATH']}"})
            if run.returncode != 0:
                failures += fail(guide, line, run.stderr.strip())
    if runs == 0:
        failures += fail(ROOT / "docs", 0, "no guide calls the tool")
    return failures


def anchors(guide):
    """The link target of a heading: lower case, hyphens for blanks, no punctuation."""
    headings = re.findall(r"^#+ (.*)$", guide.read_text(), re.MULTILINE)
    return {re.sub(r"[^\w -]", "", heading.lower()).replace(" ", "-") for heading in headings}


def links():
    failures = 0
    for guide in GUIDES:
        for number, line in enumerate(guide.read_text().splitlines(), 1):
            for target in re.findall(r"\]\(([^)\s]+)\)", line):
                if re.match(r"\w+:", target):
                    continue
                name, _, anchor = target.partition("#")
                path = guide.parent / name if name else guide
                if not path.exists():
                    failures += fail(guide, number, f"there is no {target}")
                elif anchor and anchor not in anchors(path):
                    failures += fail(guide, number, f"there is no heading {target}")
    return failures


if __name__ == "__main__":
    command, *arguments = sys.argv[1:]
    if command == "extract":
        extract(pathlib.Path(arguments[0]), arguments[1:])
    else:
        sys.exit(1 if {"shell": shell, "links": links}[command](*arguments) else 0)
