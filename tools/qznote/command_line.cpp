#include "command_line.h"

#include <algorithm>
#include <charconv>
#include <string_view>
#include <vector>

#include "QZCore/foundation/text.h"

namespace qznote {
namespace {

using namespace QZCore;

struct ActionName {
    std::string_view name;
    Command::Action action;
};

constexpr ActionName kActions[] = {
    {"render", Command::Action::Render},     {"convert", Command::Action::Convert},
    {"detect", Command::Action::Detect},     {"outline", Command::Action::Outline},
    {"path", Command::Action::MeasurePath},  {"digest", Command::Action::Digest},
    {"seal", Command::Action::Seal},         {"open", Command::Action::Open},
    {"palette", Command::Action::Palette},   {"fill", Command::Action::Fill},
    {"workdays", Command::Action::Workdays},
};

struct FormatName {
    Command::Action action;
    std::string_view name;
    ResultFormat format;
};

constexpr FormatName kFormats[] = {
    {Command::Action::MeasurePath, "report", ResultFormat::Report},
    {Command::Action::MeasurePath, "data", ResultFormat::PathData},
    {Command::Action::MeasurePath, "svg", ResultFormat::Svg},
    {Command::Action::Palette, "html", ResultFormat::Html},
    {Command::Action::Palette, "ansi", ResultFormat::Ansi},
    {Command::Action::Palette, "text", ResultFormat::Text},
};

struct Option {
    Command::Action action;
    std::string_view name;
    std::size_t values;
};

constexpr Option kOptions[] = {
    {Command::Action::Render, "--to", 1},        {Command::Action::Render, "-o", 1},
    {Command::Action::Render, "--style", 1},     {Command::Action::Render, "--images", 0},
    {Command::Action::Convert, "--from", 1},     {Command::Action::Convert, "--to", 1},
    {Command::Action::Convert, "-o", 1},         {Command::Action::Convert, "--style", 1},
    {Command::Action::Convert, "--images", 0},   {Command::Action::MeasurePath, "--to", 1},
    {Command::Action::MeasurePath, "-o", 1},     {Command::Action::MeasurePath, "--trim", 2},
    {Command::Action::MeasurePath, "--fit", 1},  {Command::Action::MeasurePath, "--smooth", 0},
    {Command::Action::Palette, "--to", 1},       {Command::Action::Palette, "-o", 1},
    {Command::Action::Palette, "--shade", 1},    {Command::Action::Seal, "-o", 1},
    {Command::Action::Seal, "--password-fd", 1}, {Command::Action::Open, "-o", 1},
    {Command::Action::Open, "--password-fd", 1}, {Command::Action::Fill, "-o", 1},
    {Command::Action::Fill, "--values", 1},      {Command::Action::Fill, "--prefix", 1},
    {Command::Action::Fill, "--suffix", 1},      {Command::Action::Fill, "--percent", 0},
    {Command::Action::Workdays, "--add", 1},     {Command::Action::Workdays, "--to", 1},
    {Command::Action::Workdays, "--days", 1},    {Command::Action::Workdays, "--hours", 1},
};

/// What is said of an option with too few or too many values, by their right number.
constexpr std::string_view kNeeds[] = {" takes no value", " needs a value", " needs two values"};

/// The number that is all of the text.
std::optional<float> numberOf(std::string_view text) {
    const String units = fromUTF8(text);
    const ReadNumber number = readDouble(units);
    if (units.empty() || number.length != units.size()) return std::nullopt;
    return static_cast<float>(number.value);
}

/// The number of a file descriptor.
std::optional<int> descriptorOf(std::string_view digits) {
    int number = -1;
    const char* end = digits.data() + digits.size();
    const auto [at, error] = std::from_chars(digits.data(), end, number);
    if (error != std::errc() || at != end || number < 0) return std::nullopt;
    return number;
}

/// The forms that notes are written in, one a line.
std::string explainedFormats() {
    std::string lines;
    for (const OutputFormat& format : outputFormats()) {
        lines += lines.empty() ? "  --to FORMAT    " : "                 ";
        lines += std::string(format.name) + ": " + std::string(format.explanation) + "\n";
    }
    return lines;
}

/// Reads the arguments from left to right.
class Reader {
public:
    explicit Reader(std::span<const char* const> arguments) : rest_(arguments) {}

    [[nodiscard]] std::variant<Command, UsageFault> read() {
        if (readAction()) {
            while (!rest_.empty() && fault_.empty()) readArgument();
        }
        if (fault_.empty()) findMissing();
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

    /// What some commands cannot do without.
    void findMissing() {
        if (command_.action == Command::Action::Fill && command_.values.empty()) {
            fault_ = "fill needs --values";
        } else if (command_.action == Command::Action::Workdays && !hasInput_) {
            fault_ = "workdays needs a date";
        }
    }

    void readArgument() {
        const std::string_view argument = next();
        if (onlyInputsFollow_ || argument == "-" || !argument.starts_with('-')) {
            readInput(argument);
        } else if (argument == "--") {
            onlyInputsFollow_ = true;
        } else if (argument == "--help" || argument == "-h") {
            command_.action = Command::Action::ShowHelp;
            rest_ = {};
        } else {
            readOption(argument);
        }
    }

    void readInput(std::string_view name) {
        if (command_.action == Command::Action::Palette) fault_ = "palette takes no file";
        if (hasInput_) fault_ = "more than one file given";
        hasInput_ = true;
        command_.input = name;
    }

    void readOption(std::string_view argument) {
        const std::size_t equals = argument.starts_with("--") ? argument.find('=') : argument.npos;
        const std::string_view name = argument.substr(0, equals);
        const auto* option = std::ranges::find_if(kOptions, [&](const Option& known) {
            return known.action == command_.action && known.name == name;
        });
        if (option == std::end(kOptions)) {
            fault_ = "unknown option " + std::string(name);
            return;
        }
        std::vector<std::string_view> values;
        if (equals != argument.npos) values.push_back(argument.substr(equals + 1));
        while (values.size() < option->values && !rest_.empty()) values.push_back(next());
        const bool isAnyEmpty = std::ranges::any_of(values, &std::string_view::empty);
        if (values.size() != option->values || isAnyEmpty) {
            fault_ = std::string(name).append(kNeeds[option->values]);
        } else {
            setOption(name, values);
        }
    }

    void setOption(std::string_view name, std::span<const std::string_view> values) {
        if (name == "--images") command_.fetchesImages = true;
        if (name == "--style") command_.styleSheet = values[0];
        if (name == "-o") command_.output = values[0];
        if (name == "--from") setFormat(command_.from, inputFormats(), values[0]);
        if (name == "--to") setTo(values[0]);
        if (name == "--trim") setPart(values[0], values[1]);
        if (name == "--fit") setFit(values[0]);
        if (name == "--smooth") command_.smooths = true;
        if (name == "--shade") command_.shade = values[0];
        if (name == "--password-fd") setDescriptor(values[0]);
        if (name == "--values") command_.values = values[0];
        if (name == "--prefix") command_.variables.prefix = values[0];
        if (name == "--suffix") command_.variables.suffix = values[0];
        if (name == "--percent") command_.variables.percentEncodes = true;
        if (name == "--add") command_.workdays.amount = values[0];
        if (name == "--days") command_.workdays.days = values[0];
        if (name == "--hours") command_.workdays.hours = values[0];
    }

    void setDescriptor(std::string_view value) {
        command_.passwordDescriptor = descriptorOf(value);
        if (!command_.passwordDescriptor) fault_ = "--password-fd needs the number of a descriptor";
    }

    void setFit(std::string_view distance) {
        command_.fit = numberOf(distance);
        if (!command_.fit || *command_.fit < 0) fault_ = "--fit needs a distance";
    }

    void setPart(std::string_view from, std::string_view to) {
        const auto start = numberOf(from);
        const auto end = numberOf(to);
        if (!start || !end) fault_ = "--trim needs two lengths";
        command_.part = Part{start.value_or(0), end.value_or(0)};
    }

    bool readsNotes() const {
        return command_.action == Command::Action::Render ||
               command_.action == Command::Action::Convert;
    }

    /// A date for work days, else a format.
    void setTo(std::string_view value) {
        if (command_.action == Command::Action::Workdays) {
            command_.workdays.end = value;
        } else {
            setFormat(value);
        }
    }

    void setFormat(std::string_view name) {
        if (readsNotes()) return setFormat(command_.to, outputFormats(), name);
        const auto* known = std::ranges::find_if(kFormats, [&](const FormatName& format) {
            return format.action == command_.action && format.name == name;
        });
        if (known == std::end(kFormats)) {
            fault_ = "unknown format " + std::string(name);
        } else {
            command_.resultFormat = known->format;
        }
    }

    template <class Format>
    void setFormat(const Format*& format, std::span<const Format> known, std::string_view name) {
        format = formatNamed(known, name);
        if (format == nullptr) fault_ = "unknown format " + std::string(name);
    }

    std::span<const char* const> rest_;
    Command command_;
    std::string fault_;
    bool hasInput_ = false;
    bool onlyInputsFollow_ = false;
};

}  // namespace

std::variant<Command, UsageFault> readCommandLine(std::span<const char* const> arguments) {
    return Reader(arguments).read();
}

// NOLINTNEXTLINE(readability-function-size): a text
std::string helpText() {
    return R"(qznote shows notes that are written in Markdown, and paths.

  qznote render [NOTE.md] [--to FORMAT] [-o FILE] [--style SHEET] [--images]
  qznote convert [NOTE] [--from FORMAT] and the options of render
  qznote detect [NOTE.md]
  qznote outline [NOTE.md]
  qznote path [DATA.txt] [--fit DISTANCE] [--smooth] [--trim FROM TO]
              [--to FORMAT] [-o FILE]
  qznote digest [FILE]
  qznote seal [FILE] [-o FILE] [--password-fd NUMBER]
  qznote open [FILE] [-o FILE] [--password-fd NUMBER]
  qznote palette [--shade SHADE] [--to FORMAT] [-o FILE]
  qznote fill [TEMPLATE] --values FILE [--prefix TEXT] [--suffix TEXT]
              [--percent] [-o FILE]
  qznote workdays DATE [--add AMOUNT | --to DATE] [--days LIST] [--hours HOURS]
  qznote --help | --version

Notes and path data are UTF-8 text. Without a name, or with "-", the standard
input is read. Lists may be indented by tabs or by 2, 3 or 4 blanks a level, as
the note shows, and fences around code may name its language.

render writes the note with its Markdown carried out:
)" + explainedFormats() +
           R"(                 Without it what the ending of FILE says, else ansi when it is
                 shown in a terminal, else text.
  -o FILE        writes to FILE, whole or not at all; "-" is the standard output
  --style SHEET  a style sheet, as a property list or in JSON
  --images       fetches images from http, https and file addresses; without it
                 nothing is fetched, and a warning sign stands for each image

convert writes a note that may be in Markdown, HTML or RTF:
  --from FORMAT  markdown, html or rtf; without it what the ending of NOTE says, else
                 markdown. Of HTML nothing is fetched.

detect tells which constructs the note contains, with how many there are of
each, and whether all of it is a list, a table or a task outline.

outline prints the items of each list in the note, one a line, indented by two
blanks a level. The header or the line before a list stands above it.

path reads the data of an SVG path, the value of its attribute d, and draws or
measures it. Data are read up to the first mistake, which is reported.
  --fit DISTANCE puts smooth curves in place of lines drawn by hand, at most
                 that far from their points; corners stay
  --smooth       rounds the corners of closed lines
  --trim FROM TO keeps what lies between two lengths along the path
  --to FORMAT    report: length, bounds (x, y, width, height) and convex hull,
                 control points included
                 data: path data with the commands M, L, C and Z alone
                 svg: a drawing; the path as it was shows behind what is made
                 of it
                 Without it, svg for a FILE that ends in .svg, else report.
  -o FILE        as above

digest prints the checksums and digests of a file of any kind, one a line.

seal encrypts a file of any kind with a password, and open gives it back, if the
password is the same and nobody has changed a bit:
  -o FILE               writes to FILE; "-" is the standard output, to which
                        sealed files are written only if it is no terminal
  --password-fd NUMBER  reads the password from the file descriptor NUMBER, up to
                        the end of its first line; without it, the terminal is
                        asked, and shows nothing of the answer

palette shows the colours of the material palette by shade, "50" to "900" and
"a100" to "a700": as html, ansi or text, chosen as for render.
  --shade SHADE  shows this shade only

fill writes a template with its variables replaced. "<<Name>>" becomes what the
values have under Name. Behind the name may stand a format for dates (Short,
Medium, Long, Full, ISO8601, RFC3339, Format: and a pattern, each also behind
WithTime) and a letter case: "<<DueDateLong>>", "<<Name/uppercase>>".
  --values FILE  a property list, or a JSON object; texts in JSON that are dates
                 of ISO 8601, as 2024-03-01 or 2024-03-01T14:05, become dates
  --prefix TEXT  what stands before a name instead of "<<"
  --suffix TEXT  what ends a variable instead of ">>"
  --percent      percent-encodes the values, for the query of a URL
  -o FILE        as above

workdays tells whether a date of ISO 8601, or "now", is working time.
  --add AMOUNT   tells the date that is so much work time later: a number and d
                 for days, h for hours or m for minutes; w for weeks, mo for
                 months and y for years, which end on a work day
  --to DATE      tells the work time up to another date
  --days LIST    the work days, as sun,mon,tue,wed,thu; else Monday to Friday
  --hours HOURS  the working hours, as 9:00-17:30; else all

The exit code is 0, 1 when a file or the output fails, or 2 for a wrong command
line.
)";
}

}  // namespace qznote
