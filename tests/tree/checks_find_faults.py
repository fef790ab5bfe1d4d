"""Proves that the checks of the tree can fail: each planted fault is reported,
and a small tree without faults passes."""
import pathlib
import subprocess
import sys
import tempfile

SCRIPTS = pathlib.Path(sys.argv[1])
HEADER = "// A header.\n#pragma once\n"
TREE = {
    "include/QZCore/export.h": HEADER,
    "include/QZCore/color/a.h": HEADER + '\n#include "QZCore/export.h"\n\n/// Documented.\nint a();\n',
    "src/color/a.cpp": '#include "QZCore/color/a.h"\n\n// No throw here; "std::cerr" neither.\nconst int kOne = 1;\n'
                       "int a() { return kOne; }\n",
    "cmake/PublicHeaders.cmake": "set(QZCORE_PUBLIC_HEADERS\n  export.h\n  color/a.h)\n",
}
FAULTS = [
    # script, file, its text, what the report must say
    ("dependencies", "src/color/b.cpp", '#include "markdown/b.h"\n', "color must not use markdown"),
    ("dependencies", "src/color/b.cpp", '#include "QZCore/codecs.h"\n', "color must not use codecs"),
    ("dependencies", "src/color/b.cpp", "#include <curl/curl.h>\n", "belongs behind src/platform/curl_"),
    ("dependencies", "src/color/b.cpp", '#include "b.h"\n', "names no house"),
    ("dependencies", "src/color/b.cpp", '#include "QZCore/QZCore.h"\n', "for callers only"),
    ("dependencies", "src/color/b.h", '#include "color/b.h"\n', "a circle of includes"),
    ("dependencies", "include/QZCore/color.h", '#include "color/b.h"\n', "must not include the private"),
    ("headers", "include/QZCore/export.h", "#pragma once\n", "does not open with a comment"),
    ("headers", "include/QZCore/export.h", HEADER + "\nint b();\n", "a paragraph without a comment: int b();"),
    ("headers", "include/QZCore/export.h", HEADER + "#include <regex>\n", "includes <regex>"),
    ("headers", "include/QZCore/export.h", HEADER + "#include <unistd.h>\n", "includes <unistd.h>"),
    ("headers", "include/QZCore/export.h", HEADER + "//\n#define A\n" + "A;\n" * 46_000, "are allowed"),
    ("headers", "include/QZCore/b.h", HEADER, "not listed"),
    ("headers", "cmake/PublicHeaders.cmake", TREE["cmake/PublicHeaders.cmake"] + "  gone.h\n", "gone.h: listed"),
    ("style", "src/color/b.cpp", "void b() { std::cerr << 1; }\n", "writes past the log"),
    ("style", "src/color/b.cpp", "void b(char* c) { snprintf(c, 1, \"\"); }\n", "writes past the log"),
    ("style", "src/color/b.cpp", "void b() { std::abort(); }\n", "ends the process"),
    ("style", "src/color/b.cpp", "void b() { throw 1; }\n", "throws"),
    ("style", "src/color/b.cpp", "double b() { return std::stod(\"1\"); }\n", "depends on the locale"),
    ("style", "src/color/b.cpp", "static std::map<int, int> counts;\n", "variable at namespace scope"),
    ("style", "src/color/b.cpp", "int table[] = {\n    1,\n};\n", "variable at namespace scope"),
]


def report(script, planted):
    with tempfile.TemporaryDirectory() as root:
        for name, text in {**TREE, **planted}.items():
            file = pathlib.Path(root, name)
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text(text)
        run = subprocess.run([SCRIPTS / f"check-{script}", root], stdout=subprocess.PIPE, text=True)
        return run.returncode, run.stdout


failed = 0
for script in ("dependencies", "headers", "style"):
    code, output = report(script, {})
    if code != 0:
        failed += 1
        print(f"check-{script} complains about a tree without faults:\n{output}")
for script, name, text, expected in FAULTS:
    code, output = report(script, {name: text})
    if code != 1 or expected not in output:
        failed += 1
        print(f"check-{script} does not say '{expected}' of {name}:\n{text[:200]}{output}")
sys.exit(1 if failed else 0)
