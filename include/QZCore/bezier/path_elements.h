// The elements of a path as they are stored. Callers use `BezierPath`.
//
// An element is one word: its type, and where its points begin among those of
// the path. Short paths live inside of the object and need no memory besides;
// longer ones are shared by copies until one of those changes. Different threads
// may read the same elements at once.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "QZCore/export.h"
#include "QZCore/geometry/plane.h"

namespace QZCore {

/// The kinds of elements. The codes are part of a path's hash.
enum class PathElementType : std::uint8_t {
    MoveTo = 0,     // one point, which also starts a subpath
    LineTo = 1,     // the end point
    CurveTo = 2,    // two control points and the end point
    ClosePath = 3,  // none: a straight line to the start of the subpath
};

namespace detail {

struct PathMeasures;
struct PathBoxes;

/// How many points belong to an element of that type.
[[nodiscard]] constexpr std::uint32_t pointCountOf(PathElementType type) {
    return type == PathElementType::CurveTo ? 3 : (type == PathElementType::ClosePath ? 0 : 1);
}

/// The elements of a path.
class QZ_EXPORT PathElements {
public:
    PathElements() = default;
    PathElements(const PathElements& other);
    PathElements(PathElements&& other) noexcept;
    PathElements& operator=(const PathElements& other);
    PathElements& operator=(PathElements&& other) noexcept;
    ~PathElements();

    // ---- Reading ----
    [[nodiscard]] std::uint32_t count() const { return count_; }
    [[nodiscard]] std::uint32_t pointCount() const { return pointCount_; }
    [[nodiscard]] const std::uint32_t* words() const;
    [[nodiscard]] const Point* points() const;
    [[nodiscard]] PathElementType typeAt(std::size_t index) const { return typeOf(words()[index]); }
    [[nodiscard]] const Point* pointsAt(std::size_t index) const {
        return points() + firstPointOf(words()[index]);
    }
    [[nodiscard]] bool isIdentical(const PathElements& other) const;
    [[nodiscard]] static PathElementType typeOf(std::uint32_t word) {
        return static_cast<PathElementType>(word & 3);
    }
    [[nodiscard]] static std::uint32_t firstPointOf(std::uint32_t word) { return word >> 2; }

    // ---- Changing ----
    void append(PathElementType type, const Point* points);
    /// Appends a line to each of the points, which are not this path's own.
    void appendLines(const Point* points, std::size_t count);
    void clear();
    /// Becomes the first `count` elements of another path.
    void assignStart(const PathElements& other, std::size_t count);
    [[nodiscard]] Point* changeablePoints();

    // ---- Measuring ----
    /// The sum of the elements' lengths, measured once.
    [[nodiscard]] float length() const;
    /// The running totals of a long path, measured once; null for a short one, which
    /// is walked as quickly.
    [[nodiscard]] const PathMeasures* measures() const;
    /// The indices of the move-tos where they have been found already; else null.
    [[nodiscard]] const std::vector<std::uint32_t>* knownMoves() const;
    /// The smallest rectangle around all, which long paths keep.
    [[nodiscard]] Rect bounds() const;
    /// Where the elements of a long path lie, found once; null for a short one.
    [[nodiscard]] const PathBoxes* boxes() const;
    /// The same from the second time on, for what is answered as quickly by a walk as
    /// by finding them.
    [[nodiscard]] const PathBoxes* boxesIfAskedAgain() const;

private:
    struct Block;
    static constexpr std::uint32_t kInlineElements = 8;
    static constexpr std::uint32_t kInlinePoints = 8;
    static constexpr std::uint32_t kMostPoints = 1U << 30;

    static constexpr float kUnknownLength = -1;

    void prepareChange();
    void moveToBlock();

    std::uint32_t count_ = 0;
    std::uint32_t pointCount_ = 0;
    std::uint32_t inlineWords_[kInlineElements] = {};
    Point inlinePoints_[kInlinePoints];
    mutable std::atomic<float> inlineLength_{kUnknownLength};
    std::shared_ptr<Block> block_;
};

}  // namespace detail
}  // namespace QZCore
