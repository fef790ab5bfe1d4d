#include <algorithm>
#include <utility>

#include "QZCore/bezier/svg_path_data.h"
#include "bezier/elliptical_arc.h"
#include "bezier/finite.h"
#include "bezier/svg_scanner.h"

namespace QZCore {
namespace {

/// A command and the number of arguments in a group.
struct Command {
    char16_t letter;
    std::size_t arguments;
};

constexpr Command kCommands[] = {
    {u'M', 2}, {u'L', 2}, {u'H', 1}, {u'V', 1}, {u'C', 6},
    {u'S', 4}, {u'Q', 4}, {u'T', 2}, {u'A', 7}, {u'Z', 0},
};

/// The point on the other side of `center`.
Point reflected(Point point, Point center) {
    return {center.x + (center.x - point.x), center.y + (center.y - point.y)};
}

/// The point at two thirds of the way from an end of a quadratic curve to its control
/// point: the control point of the same curve as a cubic.
Point raised(Point end, Point control) {
    return {end.x + (control.x - end.x) * 2 / 3, end.y + (control.y - end.y) * 2 / 3};
}

class SvgPathReader {
public:
    explicit SvgPathReader(StringView data) : scanner_(data) {}

    [[nodiscard]] SvgPathReading read() {
        accept();
        while (!scanner_.isAtEnd() && readCommand()) continue;
        return {std::move(path_), understood_};
    }

private:
    /// Everything up to here counts, and space behind it.
    void accept() {
        scanner_.skipSpace();
        understood_ = scanner_.position();
    }

    bool readCommand() {
        const char16_t letter = scanner_.next();
        isRelative_ = letter >= u'a';
        const auto upper = static_cast<char16_t>(isRelative_ ? letter - u'a' + u'A' : letter);
        const auto* command = std::ranges::find(kCommands, upper, &Command::letter);
        if (command == std::end(kCommands)) return false;
        if (path_.isEmpty() && upper != u'M') return false;
        scanner_.skip();
        return readGroups(*command);
    }

    bool readGroups(Command command) {
        scanner_.skipSpace();
        do {
            if (!readArguments(command) || !carryOut(command.letter)) return false;
            accept();
            // The groups behind that of a move-to are lines.
            if (command.letter == u'M') command.letter = u'L';
        } while (command.arguments > 0 && isGroupNext());
        return true;
    }

    /// Whether another group of arguments must follow.
    bool isGroupNext() {
        if (scanner_.skipComma()) return true;
        const char16_t next = scanner_.next();
        return (next >= u'0' && next <= u'9') || next == u'.' || next == u'-' || next == u'+';
    }

    bool readArguments(const Command& command) {
        for (std::size_t i = 0; i < command.arguments; ++i) {
            if (i > 0) scanner_.skipComma();
            const bool isFlag = command.letter == u'A' && (i == 3 || i == 4);
            const auto argument = isFlag ? scanner_.takeFlag() : scanner_.takeNumber();
            if (!argument) return false;
            arguments_[i] = *argument;
        }
        return true;
    }

    [[nodiscard]] double x(std::size_t i) const {
        return isRelative_ ? current_.x + arguments_[i] : arguments_[i];
    }
    [[nodiscard]] double y(std::size_t i) const {
        return isRelative_ ? current_.y + arguments_[i] : arguments_[i];
    }
    /// The point whose coordinates are the argument and the one behind it.
    [[nodiscard]] Point point(std::size_t i) const { return {x(i), y(i + 1)}; }

    bool carryOut(char16_t letter) {
        switch (letter) {
            case u'M':
                return moveTo(point(0));
            case u'L':
                return lineTo(point(0));
            case u'H':
                return lineTo({x(0), current_.y});
            case u'V':
                return lineTo({current_.x, y(0)});
            case u'C':
                return curveTo(point(0), point(2), point(4));
            case u'S':
                return curveTo(reflected(cubicControl_, current_), point(0), point(2));
            case u'Q':
                return quadraticCurveTo(point(0), point(2));
            case u'T':
                return quadraticCurveTo(reflected(quadraticControl_, current_), point(0));
            case u'A':
                return arcTo(point(5));
            default:
                path_.closePath();
                return goOnAt(subpathStart_);
        }
    }

    bool moveTo(Point end) {
        if (!isFinite(end)) return false;
        path_.moveToPoint(end);
        subpathStart_ = end;
        return goOnAt(end);
    }

    bool lineTo(Point end) {
        if (!isFinite(end)) return false;
        path_.lineToPoint(end);
        return goOnAt(end);
    }

    bool curveTo(Point control1, Point control2, Point end) {
        if (!isFinite(control1) || !isFinite(control2) || !isFinite(end)) return false;
        path_.curveToPoint(end, control1, control2);
        goOnAt(end);
        cubicControl_ = control2;
        return true;
    }

    bool quadraticCurveTo(Point control, Point end) {
        if (!curveTo(raised(current_, control), raised(end, control), end)) return false;
        goOnAt(end);
        quadraticControl_ = control;
        return true;
    }

    bool arcTo(Point end) {
        if (!isFinite(end)) return false;
        appendEllipticalArc(path_, {.start = current_,
                                    .end = end,
                                    .radiusX = arguments_[0],
                                    .radiusY = arguments_[1],
                                    .rotation = arguments_[2],
                                    .isLarge = arguments_[3] != 0,
                                    .isGrowing = arguments_[4] != 0});
        return goOnAt(end);
    }

    /// The next element begins there, and has no control point to go on from.
    bool goOnAt(Point end) {
        current_ = cubicControl_ = quadraticControl_ = end;
        return true;
    }

    SvgScanner scanner_;
    BezierPath path_;
    std::size_t understood_ = 0;
    double arguments_[7] = {};
    bool isRelative_ = false;
    Point current_;
    Point subpathStart_;
    Point cubicControl_;
    Point quadraticControl_;
};

}  // namespace

SvgPathReading readSvgPathData(StringView data) { return SvgPathReader(data).read(); }

}  // namespace QZCore
