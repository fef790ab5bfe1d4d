// Runs the command itself, as a shell does.
#include <doctest/doctest.h>
#include <sys/wait.h>

#include <cstdio>

#include "QZCore/foundation/files.h"
#include "support/temporary_folder.h"

namespace QZCore {
namespace {

struct Outcome {
    int code;
    std::string output;  // both streams
};

/// The outcome of a shell line in which "qznote" stands for the command.
Outcome shell(const std::string& line) {
    // A sanitized command would call fontconfig's list of fonts lost.
    const std::string whole =
        "exec 2>&1; export ASAN_OPTIONS=detect_leaks=0 TZ=UTC; qznote() { '" QZNOTE_COMMAND
        "' \"$@\"; }; " +
        line;
    std::FILE* pipe = ::popen(whole.c_str(), "r");
    REQUIRE(pipe != nullptr);
    std::string output;
    char block[4096];
    while (const std::size_t count = std::fread(block, 1, sizeof block, pipe)) {
        output.append(block, count);
    }
    const int status = ::pclose(pipe);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, output};
}

}  // namespace

TEST_CASE("the command writes what was asked for, or one line and an exit code") {
    const testing::TemporaryFolder folder;
    REQUIRE(writeFileAtomically(folder / "bad.json", bytesOf("[1]")));
    REQUIRE(writeFileAtomically(folder / "v.json",
                                bytesOf(R"({"N": "ann", "Date": "2024-03-01", "D": []})")));
    REQUIRE(writeFileAtomically(folder / "s.json", bytesOf(R"({"*": {"font-color": "red"}})")));
    REQUIRE(writeFileAtomically(
        folder / "s.plist",
        bytesOf("<plist version=\"1.0\"><dict><key>*</key><dict><key>font-color</key>"
                "<string>red</string></dict></dict></plist>")));
    const std::string red = "\x1b[3;38;2;255;0;0ma\x1b[0m\n";
    struct Row {
        const char* line;
        int code;
        std::string output;
    };
    const std::string seeHelp = "; see qznote --help\n";
    const Row rows[] = {
        {"printf '**a** b' | qznote render", 0, "a b"},
        {"printf '\\357\\273\\277a\\r\\n**b**' | qznote render - --to=text", 0, "a\nb"},
        {"printf '**a**' | qznote render --to ansi", 0, "\x1b[1ma\x1b[0m\n"},
        {"printf '![a](http://a.example/b.png)' | qznote render", 0, "[a 32x32]"},
        {"printf '<<N/uppercase>> <<D>>' | qznote fill --values v.json", 0, "ANN <<D>>"},
        {"printf '<<DateFormat:d.M.yyyy>>' | qznote fill --values v.json", 0, "1.3.2024"},
        {"printf '<<DateLong>>' | (export LANGUAGE= LC_ALL=de_DE.UTF-8@euro; qznote fill --values "
         "v.json)",
         0, "1. M\xC3\xA4rz 2024"},
        {"printf '<<DateLong>>' | (export LANGUAGE=:fr:de LC_ALL=C; qznote fill --values v.json)",
         0, "1 mars 2024"},
        {"printf '{N} <<N>>' | qznote fill --values v.json --prefix { --suffix }", 0, "ann <<N>>"},
        {"printf '<<N>>' | qznote fill", 2, "qznote: fill needs --values" + seeHelp},
        {"printf '<<N>>' | qznote fill --values bad.json", 1, "qznote: bad.json has no values\n"},
        {"qznote workdays 2024-03-01", 0, "yes\n"},
        {"qznote workdays 2024-03-01 --days sat,sun", 0, "no\n"},
        {"qznote workdays 2024-03-01T16:30 --add 90m --hours 9:00-17:00", 0,
         "2024-03-04T10:00:00Z\n"},
        {"qznote workdays 2024-03-01 --to 2024-03-12", 0, "7 days\n"},
        {"qznote workdays 2024-03-01 --to 2024-03-02T01:00", 0, "23 hours\n"},
        {"qznote workdays 2024-02-30", 2, "qznote: no such date: 2024-02-30" + seeHelp},
        {"qznote workdays 2024-03-01 --add 5x", 2, "qznote: no such amount: 5x" + seeHelp},
        {"qznote workdays 2024-03-01 --add 9223372036854775807d", 2,
         "qznote: no such amount: 9223372036854775807d" + seeHelp},
        {"qznote workdays now --hours 9-17", 2, "qznote: no such days or hours" + seeHelp},
        {"qznote workdays", 2, "qznote: workdays needs a date" + seeHelp},
        {"mkfifo pipe; (printf '**a**' > pipe &) && qznote render pipe", 0, "a"},
        {"printf '# a\\n- *b*\\n' | qznote outline", 0, "a\n  \u25CF b\n"},
        {"printf '*a*' | qznote render --to ansi --style s.json", 0, red},
        {"printf '*a*' | qznote render --to ansi --style s.plist", 0, red},
        {"printf '*a*' > a.md; qznote render a.md -o a.html; grep '<title>' a.html", 0,
         "<title>a</title>\n"},
        {"printf '*a*' > a.md; qznote render a.md -o a.txt; cat a.txt", 0, "a"},
        {"printf '# a\\n**b** **c** \\\\*d*\\n' | qznote detect", 0,
         "escapes: 1\nheaders: 1\nbold: 2\ncontains rich text: yes\nis a list: no\n"
         "is a table: no\nis a task outline: no\n"},
        {"printf '**a**' | qznote render --to rtf | grep -c '^{.rtf1'", 0, "1\n"},
        {"printf 'a' | qznote render -o a.rtf; head -c 6 a.rtf", 0, "{\\rtf1"},
        {"printf 'a' > a.md; qznote outline a.md", 0, ""},
        {"printf '# a\\n\\n- *b*\\n\\t1. __c__\\n\\n\\n> d\\n' | qznote convert --to html | "
         "qznote convert --from html --to markdown",
         0, "# a\n\n- *b*\n    1. __c__\n\n\n> d"},
        {"printf '<p>a<p>b' > a.html; qznote convert a.html -o a.txt; cat a.txt", 0, "a\nb"},
        {"printf '<p>a' > a.html; qznote render a.html", 0, "<p>a"},
        {"qznote render --from html", 2, "qznote: unknown option --from" + seeHelp},
        {"qznote convert --from ansi", 2, "qznote: unknown format ansi" + seeHelp},
        {"qznote outline no-such-note.md", 1, "qznote: cannot read no-such-note.md\n"},
        {"echo '- a' | qznote outline > /dev/full", 1, "qznote: cannot write the output\n"},
        {"qznote outline --to html", 2, "qznote: unknown option --to" + seeHelp},
        {"qznote render no-such-note.md", 1, "qznote: cannot read no-such-note.md\n"},
        {"qznote render .", 1, "qznote: cannot read .\n"},
        {"echo a | qznote render --style no-such-sheet", 1, "qznote: cannot read no-such-sheet\n"},
        {"echo a | qznote render --style bad.json", 1, "qznote: bad.json is no style sheet\n"},
        {"echo a | qznote render -o no-such-folder/a", 1,
         "qznote: cannot write no-such-folder/a\n"},
        {"echo a | qznote render > /dev/full", 1, "qznote: cannot write the output\n"},
        {"qznote", 2, "qznote: no command given" + seeHelp},
        {"qznote draw", 2, "qznote: unknown command draw" + seeHelp},
        {"qznote render --fast", 2, "qznote: unknown option --fast" + seeHelp},
        {"qznote detect --images", 2, "qznote: unknown option --images" + seeHelp},
        {"qznote render --images=yes", 2, "qznote: --images takes no value" + seeHelp},
        {"qznote render --to pdf", 2, "qznote: unknown format pdf" + seeHelp},
        {"qznote render -o", 2, "qznote: -o needs a value" + seeHelp},
        {"qznote render a b", 2, "qznote: more than one file given" + seeHelp},
        {"echo 'm0 0h30v40z' | qznote path", 0,
         "elements: 4\nlength: 120.00\nbounds: 0 0 30 40\nhull: M0,0 L30,40 L30,0 Z\n"},
        {"echo 'm0 0h30v40z' | qznote path --to data --trim 10 40.5", 0, "M10,0 L30,0 L30,10.5\n"},
        {"printf '' | qznote path", 0, "elements: 0\nlength: 0.00\nbounds: 0 0 0 0\nhull: \n"},
        {"printf 'M1 2L3 4 5' | qznote path --to=data", 1,
         "M1,2 L3,4\nqznote: the standard input is no path data from character 10 on\n"},
        {"qznote path no-such-path", 1, "qznote: cannot read no-such-path\n"},
        {"qznote path --trim 1", 2, "qznote: --trim needs two values" + seeHelp},
        {"qznote path --trim 1 2x", 2, "qznote: --trim needs two lengths" + seeHelp},
        {"qznote path --to html", 2, "qznote: unknown format html" + seeHelp},
        {"qznote path --style a", 2, "qznote: unknown option --style" + seeHelp},
        {"printf 123456789 | qznote digest", 0,
         "bytes: 9\nlookup2: 4bf83526\ncrc32: cbf43926\n"
         "sha1: f7c3bc1d808e04732adf679965ccc34ca7ae3441\n"
         "sha256: 15e2b0d3c33891ebb0f1ef609ec419420c20e320ce94c65fbc8c3312448eb225\n"},
        {"printf a > a; printf pw > pw; qznote seal a -o s --password-fd 3 3< pw && wc -c < s && "
         "qznote open s --password-fd 3 3< pw",
         0, "82\na"},
        {"printf 'pw\\nb' | qznote seal --password-fd 0 | qznote open --password-fd=3 3< pw", 0,
         "b"},
        {"echo other | qznote open s --password-fd 0", 1,
         "qznote: wrong password, or s is no sealed file or was changed\n"},
        {"qznote open s --password-fd 9", 1, "qznote: cannot read a password\n"},
        {"echo | qznote seal a --password-fd 0", 1, "qznote: cannot read a password\n"},
        {"printf '\\377' | qznote seal a --password-fd 0", 1, "qznote: cannot read a password\n"},
        {"qznote open no-such-file --password-fd 3 3< pw", 1, "qznote: cannot read no-such-file\n"},
        {"qznote palette --shade a700 | cut -c1-21", 0, "a700  #d50000 #c51162\n"},
        {"qznote palette --shade 50 --to ansi | cut -d' ' -f4-5", 0,
         "\x1b[48;2;255;235;238;38;2;0;0;0m #ffebee\n"},
        {"qznote palette -o p.html; grep -c '^<tr>' p.html; grep -o '[^>]*#795548<' p.html", 0,
         "14\n#795548<\n"},
        {"qznote palette --shade A50", 1, "qznote: there is no shade A50\n"},
        {"qznote palette --to runs", 2, "qznote: unknown format runs" + seeHelp},
        {"qznote palette a", 2, "qznote: palette takes no file" + seeHelp},
        {"qznote render --password-fd 0", 2, "qznote: unknown option --password-fd" + seeHelp},
        {"qznote seal --password-fd x", 2,
         "qznote: --password-fd needs the number of a descriptor" + seeHelp},
        {"qznote --version", 0, "qznote " QZNOTE_VERSION "\n"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.line);
        const Outcome outcome = shell("cd '" + folder.path().string() + "'; " + row.line);
        CHECK(outcome.code == row.code);
        CHECK(outcome.output == row.output);
    }
    CHECK(shell("qznote --help").output.starts_with("qznote shows notes"));
    CHECK(shell("qznote --help").code == 0);
}

TEST_CASE("a path becomes a drawing, of a part of it or all") {
    const testing::TemporaryFolder folder;
    const std::string go = "cd '" + folder.path().string() + "'; echo 'M0 0H20V10' | ";
    CHECK(shell(go + "qznote path -o a.svg; cat a.svg").output ==
          "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"-1 -1 22 12\" width=\"640\" "
          "height=\"349\" fill=\"none\" stroke-linejoin=\"round\" style=\"background: white\">\n"
          "  <path stroke=\"#222\" stroke-width=\"0.06875\" d=\"M0,0 L20,0 L20,10\"/>\n</svg>\n");
    CHECK(shell(go + "qznote path --trim 5 10 --to svg")
              .output.find(
                  "<path stroke=\"#ccc\" stroke-width=\"0.06875\" d=\"M0,0 L20,0 L20,10\"/>\n"
                  "  <path stroke=\"#222\" stroke-width=\"0.06875\" d=\"M5,0 L10,0\"/>") !=
          std::string::npos);
    const std::string smooth = shell(go + "qznote path --smooth --to data").output;
    CHECK(smooth.find('C') != std::string::npos);
    const std::string stroke =
        shell("echo 'M0 0L10 1L20 4L30 9L40 16L50 25L40 35Z' | qznote path --fit 1 --to data")
            .output;
    CHECK(stroke.find('C') != std::string::npos);
    CHECK(shell("echo 'M0 0' | qznote path --fit x").code == 2);
}

}  // namespace QZCore
