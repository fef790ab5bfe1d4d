#include "commands.h"

#include <unistd.h>

#include <cstdio>
#include <memory>

#include "QZCore/bezier/curve_fitting.h"
#include "QZCore/bezier/svg_path_data.h"
#include "QZCore/codecs/envelopes.h"
#include "QZCore/foundation/log.h"
#include "QZCore/platform/url_loading.h"
#include "command_line.h"
#include "detection_report.h"
#include "digest_report.h"
#include "note.h"
#include "outline_report.h"
#include "palette_writer.h"
#include "password.h"
#include "path_report.h"
#include "streams.h"
#include "style_sheet_file.h"
#include "svg_drawing.h"

namespace qznote {
namespace {

using namespace QZCore;

constexpr int kSuccess = 0;
constexpr int kFailure = 1;
constexpr int kWrongUsage = 2;

void complain(std::string_view line) {
    const std::string whole = "qznote: " + std::string(line) + "\n";
    std::fwrite(whole.data(), 1, whole.size(), stderr);
}

class StandardErrorLog final : public LogSink {
public:
    void write(StringView line) override { complain(toUTF8(line)); }
};

int failure(std::string_view line) {
    complain(line);
    return kFailure;
}

int wrongUsage(const UsageFault& fault) {
    complain(fault.reason + "; see qznote --help");
    return kWrongUsage;
}

int output(const std::string& name, std::string_view text) {
    if (writeAll(name, text)) return kSuccess;
    return failure(name == kStandardStream ? "cannot write the output" : "cannot write " + name);
}

std::string nameOf(const std::string& file) {
    return file == kStandardStream ? "the standard input" : file;
}

ResultFormat resultFormatOf(const Command& command) {
    if (command.resultFormat) return *command.resultFormat;
    if (command.action == Command::Action::MeasurePath) {
        return command.output.ends_with(".svg") ? ResultFormat::Svg : ResultFormat::Report;
    }
    if (command.output.ends_with(".html") || command.output.ends_with(".htm")) {
        return ResultFormat::Html;
    }
    const bool isShown = command.output == kStandardStream && ::isatty(STDOUT_FILENO) == 1;
    return isShown ? ResultFormat::Ansi : ResultFormat::Text;
}

const OutputFormat& outputFormatOf(const Command& command) {
    if (command.to != nullptr) return *command.to;
    if (const auto* format = formatOfFile(outputFormats(), command.output)) return *format;
    const bool isShown = command.output == kStandardStream && ::isatty(STDOUT_FILENO) == 1;
    return *formatNamed(outputFormats(), isShown ? "ansi" : "text");
}

/// What is rendered is Markdown, whatever its file is called.
const InputFormat& inputFormatOf(const Command& command) {
    if (command.from != nullptr) return *command.from;
    const auto* format = formatOfFile(inputFormats(), command.input);
    const bool isFree = command.action == Command::Action::Convert && format != nullptr;
    return isFree ? *format : inputFormats().front();
}

/// The name of the note's file without its folder and extension.
String titleOf(const Command& command) {
    if (command.input == kStandardStream) return u"Note";
    std::string_view name = command.input;
    name.remove_prefix(name.rfind('/') + 1);
    const std::size_t dot = name.rfind('.');
    return fromUTF8(dot == 0 ? name : name.substr(0, dot));
}

int render(const Command& command, const Data& note) {
    StyleSheet styles;
    if (!command.styleSheet.empty()) {
        const auto bytes = readAll(command.styleSheet);
        if (!bytes) return failure("cannot read " + nameOf(command.styleSheet));
        const auto sheet = readStyleSheet(*bytes);
        if (!sheet) return failure(nameOf(command.styleSheet) + " is no style sheet");
        styles = *sheet;
    }
    if (!command.fetchesImages) setSharedUrlLoader(makeRefusingUrlLoader());
    const auto text = inputFormatOf(command).read(note, styles);
    if (!text) return failure("cannot read " + nameOf(command.input));
    const Writing writing{.title = titleOf(command), .base = baseAttributes(styles)};
    return output(command.output, outputFormatOf(command).write(*text, writing));
}

int outline(const Data& note) {
    setSharedUrlLoader(makeRefusingUrlLoader());
    return output("-", outlineReport(renderedNote(noteText(note), {}), baseAttributes({})));
}

std::string written(const BezierPath& path, const BezierPath& whole, ResultFormat format) {
    switch (format) {
        case ResultFormat::PathData:
            return toUTF8(svgPathData(path)) + "\n";
        case ResultFormat::Svg:
            return svgDrawing(path, whole);
        default:
            return pathReport(path);
    }
}

BezierPath changedPath(const Command& command, BezierPath path) {
    constexpr float kCornerAngle = 0.7F;  // about an eighth of a turn
    if (command.fit) path = smartCurveFitPath(path, *command.fit * *command.fit, kCornerAngle);
    if (command.smooths) path = path.smoothedPathWithCornerRadius(0).value_or(path);
    if (command.part) path = path.bezierPathFromLength(command.part->from, command.part->to);
    return path;
}

int measurePath(const Command& command, const Data& data) {
    const String text = fromUTF8(textOf(data));
    const auto [whole, length] = readSvgPathData(text);
    const BezierPath path = changedPath(command, whole);
    const int code = output(command.output, written(path, whole, resultFormatOf(command)));
    if (length == text.size()) return code;
    return failure(nameOf(command.input) + " is no path data from character " +
                   std::to_string(length + 1) + " on");
}

int palette(const Command& command) {
    const auto swatches = paletteSwatches(command.shade, resultFormatOf(command));
    if (!swatches) return failure("there is no shade " + command.shade);
    return output(command.output, *swatches);
}

/// The password; asked for twice when a slip of the finger would lock a file.
std::optional<Password> passwordFor(const Command& command) {
    if (command.passwordDescriptor) return readPassword(*command.passwordDescriptor);
    auto password = askForPassword("Password: ");
    if (!password || command.action == Command::Action::Open) return password;
    const auto again = askForPassword("Once more: ");
    if (!again || again->text() != password->text()) return std::nullopt;
    return password;
}

int sealOrOpen(const Command& command) {
    const bool seals = command.action == Command::Action::Seal;
    if (seals && command.output == kStandardStream && ::isatty(STDOUT_FILENO) == 1)
        return failure("a terminal cannot show a sealed file; use -o FILE");
    const auto password = passwordFor(command);
    if (!password) return failure("cannot read a password");
    const auto file = readAll(command.input);
    if (!file) return failure("cannot read " + nameOf(command.input));
    const auto result = seals ? dataSealedAES256WithPassword(*file, password->text())
                              : dataDecryptedAES256WithPassword(*file, password->text());
    if (result) return output(command.output, textOf(*result));
    return failure(seals ? "cannot seal " + nameOf(command.input)
                         : "wrong password, or " + nameOf(command.input) +
                               " is no sealed file or was changed");
}

int fill(const Command& command, const Data& text) {
    const auto bytes = readAll(command.values);
    if (!bytes) return failure("cannot read " + nameOf(command.values));
    const auto values = readValues(*bytes);
    if (!values) return failure(nameOf(command.values) + " has no values");
    return output(command.output, filledTemplate(noteText(text), *values, command.variables));
}

int workdays(const Command& command) {
    WorkdaysQuestion question = command.workdays;
    question.date = command.input;
    const auto result = answer(question);
    if (const auto* line = std::get_if<std::string>(&result)) return output("-", *line);
    return wrongUsage(std::get<UsageFault>(result));
}

int carryOut(const Command& command) {
    if (command.action == Command::Action::ShowHelp) return output("-", helpText());
    if (command.action == Command::Action::ShowVersion) {
        return output("-", "qznote " QZNOTE_VERSION "\n");
    }
    if (command.action == Command::Action::Palette) return palette(command);
    if (command.action == Command::Action::Workdays) return workdays(command);
    if (command.action == Command::Action::Seal || command.action == Command::Action::Open) {
        return sealOrOpen(command);
    }
    const auto input = readAll(command.input);
    if (!input) return failure("cannot read " + nameOf(command.input));
    if (command.action == Command::Action::Detect) {
        return output("-", detectionReport(noteText(*input)));
    }
    if (command.action == Command::Action::Outline) return outline(*input);
    if (command.action == Command::Action::MeasurePath) return measurePath(command, *input);
    if (command.action == Command::Action::Fill) return fill(command, *input);
    if (command.action == Command::Action::Digest) return output("-", digestReport(*input));
    return render(command, *input);
}

}  // namespace

int run(std::span<const char* const> arguments) {
    setLogSink(std::make_shared<StandardErrorLog>());
    const auto read = readCommandLine(arguments);
    if (const auto* fault = std::get_if<UsageFault>(&read)) return wrongUsage(*fault);
    return carryOut(std::get<Command>(read));
}

}  // namespace qznote
