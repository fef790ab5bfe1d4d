// A walk over the elements of a path that knows where each begins.
#pragma once

#include "QZCore/bezier/path_elements.h"

namespace QZCore {

/// One element and its place.
struct PathStep {
    PathElementType type;
    /// The points of the element, of which a close-path has none.
    const Point* points;
    /// Where the element begins: the end of the one before, or (0, 0).
    Point current;
    /// Where the subpath begins that the element belongs to, or ends, for a move-to.
    Point subpathStart;

    /// Where the element ends.
    [[nodiscard]] Point end() const {
        const std::uint32_t count = detail::pointCountOf(type);
        return count == 0 ? subpathStart : points[count - 1];
    }
};

/// Which move-tos start a subpath, so that close-paths return to them.
enum class SubpathRule : std::uint8_t {
    EveryMove,       // each of them
    MoveAfterClose,  // the first, and those right after a close-path; strokes are hit by this
};

/// The elements of a path in order, for a range-based for.
template <SubpathRule rule>
class PathStepsBy {
public:
    class Iterator {
    public:
        Iterator(const std::uint32_t* word, const Point* points) : word_(word), points_(points) {}

        [[nodiscard]] PathStep operator*() const {
            return {type(), elementPoints(), current_, subpathStart_};
        }
        Iterator& operator++() {
            current_ = (**this).end();
            if (type() == PathElementType::MoveTo && startsSubpath()) subpathStart_ = current_;
            before_ = type();
            ++word_;
            return *this;
        }
        friend bool operator==(const Iterator& a, const Iterator& b) { return a.word_ == b.word_; }

    private:
        [[nodiscard]] PathElementType type() const { return detail::PathElements::typeOf(*word_); }
        [[nodiscard]] bool startsSubpath() const {
            return rule == SubpathRule::EveryMove || before_ == PathElementType::ClosePath;
        }
        [[nodiscard]] const Point* elementPoints() const {
            return points_ + detail::PathElements::firstPointOf(*word_);
        }

        const std::uint32_t* word_;
        const Point* points_;
        PathElementType before_ = PathElementType::ClosePath;
        Point current_;
        Point subpathStart_;
    };

    explicit PathStepsBy(const detail::PathElements& elements) : elements_(elements) {}
    [[nodiscard]] Iterator begin() const { return {elements_.words(), elements_.points()}; }
    [[nodiscard]] Iterator end() const {
        return {elements_.words() + elements_.count(), elements_.points()};
    }

private:
    const detail::PathElements& elements_;
};

using PathSteps = PathStepsBy<SubpathRule::EveryMove>;

}  // namespace QZCore
