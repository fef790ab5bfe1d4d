#include "QZCore/bezier/path_elements.h"

#include <algorithm>
#include <utility>

#include "bezier/kept.h"
#include "bezier/path_bounds.h"
#include "bezier/path_boxes.h"
#include "bezier/path_measures.h"

namespace QZCore::detail {
namespace {

/// Copies the points of an element, without a call for so few.
void copyPoints(const Point* points, std::uint32_t count, Point* to) {
    if (count > 0) to[0] = points[0];
    if (count < 3) return;
    to[1] = points[1];
    to[2] = points[2];
}

}  // namespace

/// The elements of a long path.
struct PathElements::Block {
    Block() = default;
    Block(const Block& other) : words(other.words), points(other.points) {}
    Block& operator=(const Block&) = delete;
    ~Block() = default;

    std::vector<std::uint32_t> words;
    std::vector<Point> points;
    Kept<PathMeasures> measures;
    Kept<Rect> bounds;
    Kept<PathBoxes> boxes;
    std::atomic<bool> isAskedAgain{false};
};

PathElements::PathElements(const PathElements& other) { *this = other; }

PathElements::PathElements(PathElements&& other) noexcept { *this = std::move(other); }

PathElements& PathElements::operator=(const PathElements& other) {
    if (this == &other) return *this;
    count_ = other.count_;
    pointCount_ = other.pointCount_;
    std::ranges::copy(other.inlineWords_, inlineWords_);
    std::ranges::copy(other.inlinePoints_, inlinePoints_);
    inlineLength_.store(other.inlineLength_.load(std::memory_order_relaxed),
                        std::memory_order_relaxed);
    block_ = other.block_;
    return *this;
}

PathElements& PathElements::operator=(PathElements&& other) noexcept {
    if (this == &other) return *this;
    std::shared_ptr<Block> block = std::move(other.block_);
    *this = std::as_const(other);
    block_ = std::move(block);
    other.clear();
    return *this;
}

PathElements::~PathElements() = default;

const std::uint32_t* PathElements::words() const {
    return block_ == nullptr ? inlineWords_ : block_->words.data();
}

const Point* PathElements::points() const {
    return block_ == nullptr ? inlinePoints_ : block_->points.data();
}

bool PathElements::isIdentical(const PathElements& other) const {
    return this == &other || (block_ != nullptr && block_ == other.block_);
}

void PathElements::append(PathElementType type, const Point* points) {
    const std::uint32_t added = pointCountOf(type);
    if (kMostPoints - pointCount_ <= added || count_ == kMostPoints) return;
    const std::uint32_t word = (pointCount_ << 2) | static_cast<std::uint32_t>(type);
    if (block_ == nullptr && (count_ == kInlineElements || pointCount_ + added > kInlinePoints)) {
        moveToBlock();
    }
    prepareChange();
    if (block_ == nullptr) {
        inlineWords_[count_] = word;
        copyPoints(points, added, inlinePoints_ + pointCount_);
    } else {
        block_->words.push_back(word);
        // The points may be ones of this very path, and move.
        Point copies[3];
        copyPoints(points, added, copies);
        block_->points.insert(block_->points.end(), copies, copies + added);
    }
    ++count_;
    pointCount_ += added;
}

void PathElements::appendLines(const Point* points, std::size_t count) {
    const bool fitsInline = block_ == nullptr && count_ + count <= kInlineElements &&
                            pointCount_ + count <= kInlinePoints;
    if (fitsInline || kMostPoints - pointCount_ <= count) {
        for (std::size_t i = 0; i < count; ++i) append(PathElementType::LineTo, points + i);
        return;
    }
    if (block_ == nullptr) moveToBlock();
    prepareChange();
    for (std::size_t i = 0; i < count; ++i) {
        block_->words.push_back((pointCount_++ << 2) |
                                static_cast<std::uint32_t>(PathElementType::LineTo));
    }
    block_->points.insert(block_->points.end(), points, points + count);
    count_ += static_cast<std::uint32_t>(count);
}

void PathElements::assignStart(const PathElements& other, std::size_t count) {
    const std::uint32_t* words = other.words();
    const Point* points = other.points();
    std::size_t pointCount = 0;
    if (count > 0) {
        pointCount = firstPointOf(words[count - 1]) + pointCountOf(typeOf(words[count - 1]));
    }
    clear();
    if (count <= kInlineElements && pointCount <= kInlinePoints) {
        std::copy_n(words, count, inlineWords_);
        std::copy_n(points, pointCount, inlinePoints_);
    } else {
        block_ = std::make_shared<Block>();
        block_->words.assign(words, words + count);
        block_->points.assign(points, points + pointCount);
    }
    count_ = static_cast<std::uint32_t>(count);
    pointCount_ = static_cast<std::uint32_t>(pointCount);
}

void PathElements::clear() {
    block_.reset();
    count_ = 0;
    pointCount_ = 0;
    prepareChange();
}

Point* PathElements::changeablePoints() {
    prepareChange();
    return block_ == nullptr ? inlinePoints_ : block_->points.data();
}

float PathElements::length() const {
    if (const PathMeasures* known = measures()) return known->totals.back();
    float length = inlineLength_.load(std::memory_order_relaxed);
    if (length >= 0) return length;
    length = 0;
    for (const PathStep& step : PathSteps(*this)) length += lengthOfElement(step, kMeasuringError);
    inlineLength_.store(length, std::memory_order_relaxed);
    return length;
}

const std::vector<std::uint32_t>* PathElements::knownMoves() const {
    if (block_ == nullptr) return nullptr;
    if (const PathMeasures* measures = block_->measures.known()) return &measures->moves;
    const PathBoxes* boxes = block_->boxes.known();
    return boxes == nullptr ? nullptr : &boxes->startsBy(SubpathRule::EveryMove);
}

const PathMeasures* PathElements::measures() const {
    if (block_ == nullptr) return nullptr;
    return &block_->measures.get([this] { return measuresOf(*this); });
}

Rect PathElements::bounds() const {
    if (block_ == nullptr) return boundsOf(*this);
    return block_->bounds.get([this] { return boundsOf(*this); });
}

const PathBoxes* PathElements::boxes() const {
    if (block_ == nullptr) return nullptr;
    return &block_->boxes.get([this] { return boxesOf(*this); });
}

const PathBoxes* PathElements::boxesIfAskedAgain() const {
    if (block_ == nullptr) return nullptr;
    if (const PathBoxes* known = block_->boxes.known()) return known;
    if (!block_->isAskedAgain.exchange(true, std::memory_order_relaxed)) return nullptr;
    return boxes();
}

/// Before a change: the block becomes this path's own, and nothing is known of
/// its elements any more.
void PathElements::prepareChange() {
    inlineLength_.store(kUnknownLength, std::memory_order_relaxed);
    if (block_ == nullptr) return;
    if (block_.use_count() > 1) {
        block_ = std::make_shared<Block>(*block_);
    } else {
        block_->measures.forget();
        block_->bounds.forget();
        block_->boxes.forget();
        block_->isAskedAgain.store(false, std::memory_order_relaxed);
    }
}

void PathElements::moveToBlock() {
    auto block = std::make_shared<Block>();
    block->words.assign(inlineWords_, inlineWords_ + count_);
    block->points.assign(inlinePoints_, inlinePoints_ + pointCount_);
    block_ = std::move(block);
}

}  // namespace QZCore::detail
