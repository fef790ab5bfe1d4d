#include "command_line.h"

#include <algorithm>
#include <string_view>

namespace qznote {
namespace {

struct ActionName {
    std::string_view name;
    Command::Action action;
};

constexpr ActionName kActions[] = {
    {"render", Command::Action::Render},
    {"detect", Command::Action::Detect},
    {"outline", Command::Action::Outline},
};

struct FormatName {
    std::string_view name;
    OutputFormat format;
};

constexpr FormatName kFormats[] = {
    {"html", OutputFormat::Html},
    {"ansi", OutputFormat::Ansi},
    {"text", OutputFormat::Text},
    {"runs", OutputFormat::Runs},
};

bool isRenderOption(std::string_view name) {
    return name == "--style" || name == "--to" || name == "-o" || name == "--images";
}

/// Reads the arguments from left to right.
class Reader {
public:
    explicit Reader(std::span<const char* const> arguments) : rest_(arguments) {}

    [[nodiscard]] std::variant<Command, UsageFault> read() {
        if (readAction()) {
            while (!rest_.empty() && fault_.empty()) readArgument();
        }
        if (!fault_.empty()) return UsageFault{fault_};
        return command_;
    }

private:
    std::string_view next() {
        const std::string_view argument = rest_.front();
        rest_ = rest_.subspan(1);
        return argument;
    }

    /// Whether arguments may follow.
    bool readAction() {
        const std::string_view name = rest_.empty() ? "" : next();
        const auto* known = std::ranges::find(kActions, name, &ActionName::name);
        if (known != std::end(kActions)) {
            command_.action = known->action;
            return true;
        }
        if (name == "--help" || name == "-h") {
            command_.action = Command::Action::ShowHelp;
        } else if (name == "--version") {
            command_.action = Command::Action::ShowVersion;
        } else {
            fault_ = name.empty() ? "no command given" : "unknown command " + std::string(name);
        }
        return false;
    }

    void readArgument() {
        const std::string_view argument = next();
        if (onlyNotesFollow_ || argument == "-" || !argument.starts_with('-')) {
            readNote(argument);
        } else if (argument == "--") {
            onlyNotesFollow_ = true;
        } else if (argument == "--help" || argument == "-h") {
            command_.action = Command::Action::ShowHelp;
            rest_ = {};
        } else {
            readOption(argument);
        }
    }

    void readNote(std::string_view name) {
        if (hasNote_) fault_ = "more than one note given";
        hasNote_ = true;
        command_.note = name;
    }

    void readOption(std::string_view argument) {
        const std::size_t equals = argument.starts_with("--") ? argument.find('=') : argument.npos;
        const std::string name(argument.substr(0, equals));
        if (command_.action != Command::Action::Render || !isRenderOption(name)) {
            fault_ = "unknown option " + name;
        } else if (name == "--images") {
            if (equals != argument.npos) fault_ = "--images takes no value";
            command_.fetchesImages = true;
        } else if (equals != argument.npos) {
            setOption(name, argument.substr(equals + 1));
        } else if (rest_.empty()) {
            fault_ = name + " needs a value";
        } else {
            setOption(name, next());
        }
    }

    void setOption(const std::string& name, std::string_view value) {
        if (value.empty()) fault_ = name + " needs a value";
        if (name == "--style") command_.styleSheet = value;
        if (name == "-o") command_.output = value;
        if (name == "--to") setFormat(value);
    }

    void setFormat(std::string_view name) {
        const auto* known = std::ranges::find(kFormats, name, &FormatName::name);
        if (known == std::end(kFormats)) {
            fault_ = "unknown format " + std::string(name);
        } else {
            command_.format = known->format;
        }
    }

    std::span<const char* const> rest_;
    Command command_;
    std::string fault_;
    bool hasNote_ = false;
    bool onlyNotesFollow_ = false;
};

}  // namespace

std::variant<Command, UsageFault> readCommandLine(std::span<const char* const> arguments) {
    return Reader(arguments).read();
}

std::string helpText() {
    return R"(qznote shows notes that are written in Markdown.

  qznote render [NOTE.md] [--to FORMAT] [-o FILE] [--style SHEET] [--images]
  qznote detect [NOTE.md]
  qznote outline [NOTE.md]
  qznote --help | --version

A note is UTF-8 text. Without a name, or with "-", the standard input is read.
Lists may be indented by tabs or by 2, 3 or 4 blanks a level, as the note shows,
and fences around code may name its language.

render writes the note with its Markdown carried out:
  --to FORMAT    html: a page that needs no other file
                 ansi: text with colours and links for a terminal
                 text: text alone
                 runs: every stretch of text with its attributes, one a line
                 Without it, html for a FILE that ends in .html or .htm, else
                 ansi when it is shown in a terminal, else text.
  -o FILE        writes to FILE, whole or not at all; "-" is the standard output
  --style SHEET  a style sheet, as a property list or in JSON
  --images       fetches images from http, https and file addresses; without it
                 nothing is fetched, and a warning sign stands for each image

detect tells which constructs the note contains, with how many there are of
each, and whether all of it is a list, a table or a task outline.

outline prints the items of each list in the note, one a line, indented by two
blanks a level. The header or the line before a list stands above it.

The exit code is 0, 1 when a file or the output fails, or 2 for a wrong command
line.
)";
}

}  // namespace qznote
