// What the user asks for.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <variant>

#include "fill.h"
#include "formats.h"
#include "usage_fault.h"
#include "workdays.h"

namespace qznote {

/// The forms of what is no note: paths and swatches.
enum class ResultFormat { Report, PathData, Svg, Html, Ansi, Text };

/// A part of a path, between two lengths along it.
struct Part {
    float from;
    float to;
};

/// A command with its options.
struct Command {
    enum class Action {
        Render,
        Convert,
        Detect,
        Outline,
        MeasurePath,
        Digest,
        Seal,
        Open,
        Palette,
        Fill,
        Workdays,
        ShowHelp,
        ShowVersion
    };

    Action action = Action::Render;
    /// The file with the note, the path data, or anything; "-" is the standard input.
    std::string input = "-";
    /// The style sheet; none when empty.
    std::string styleSheet{};
    /// Where the result goes; "-" is the standard output.
    std::string output = "-";
    /// What was asked for; null when nothing was.
    const InputFormat* from = nullptr;
    const OutputFormat* to = nullptr;
    /// The same of what is no note.
    std::optional<ResultFormat> resultFormat{};
    /// Whether images are fetched.
    bool fetchesImages = false;
    /// The largest distance from the path's points to a curve fitted to them.
    std::optional<float> fit{};
    /// Whether the path's corners are rounded.
    bool smooths = false;
    /// What is kept of the path; all of it when absent.
    std::optional<Part> part{};
    /// The shade of the palette; all when empty.
    std::string shade{};
    /// The file descriptor that the password is read from; the terminal is asked
    /// when there is none.
    std::optional<int> passwordDescriptor{};
    /// The file with the values of variables, and how those are written.
    std::string values{};
    VariableForm variables{};
    /// What is asked about work days; the date is the input.
    WorkdaysQuestion workdays{};
};

/// Reads the arguments behind the name of the program.
[[nodiscard]] std::variant<Command, UsageFault> readCommandLine(
    std::span<const char* const> arguments);

/// The text that explains all of it.
[[nodiscard]] std::string helpText();

}  // namespace qznote
