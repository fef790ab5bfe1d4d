#include "QZCore/richtext/rich_text.h"

#include <algorithm>
#include <utility>

#include "QZCore/richtext/archived_rich_text.h"
#include "foundation/hash.h"
#include "richtext/store.h"

namespace QZCore {
namespace {

/// Whoever uses rich texts links this file, so archives can hold them then.
[[maybe_unused]] const bool kIsKnownInArchives =  // NOLINT(cert-err58-cpp)
    registerArchivedClass(archivedRichText());

bool sameValue(const TextAttributes& a, const TextAttributes& b, StringView name) {
    if (a == b) return true;
    const Value* left = a.find(name);
    const Value* right = b.find(name);
    if (left == nullptr || right == nullptr) return left == right;
    return *left == *right;
}

}  // namespace

// ---- Life ----

RichText::RichText() : store_(std::make_shared<Store>()) {}

RichText::RichText(StringView text, const TextAttributes& attributes) : RichText() {
    store_->append(text, attributes);
    store_->finishBuilding();
}

RichText::RichText(const RichText& other) : store_(other.store_) {}

RichText::RichText(RichText&& other) noexcept
    : store_(std::exchange(other.store_, std::make_shared<Store>())) {}

RichText& RichText::operator=(const RichText& other) {
    if (this != &other) {
        noteEdit({0, length()}, other.length());
        store_ = other.store_;
    }
    return *this;
}

RichText& RichText::operator=(RichText&& other) noexcept {
    if (this != &other) {
        noteEdit({0, length()}, other.length());
        store_ = std::exchange(other.store_, std::make_shared<Store>());
    }
    return *this;
}

RichText::~RichText() = default;

RichText::Store& RichText::changeableStore() {
    if (store_.use_count() > 1) store_ = std::make_shared<Store>(*store_);
    return *store_;
}

// ---- Reading ----

std::size_t RichText::length() const { return store_->length(); }

String RichText::string() const { return string({0, length()}); }

String RichText::string(Range range) const {
    range = clampedRange(range, length());
    String text;
    if (range.length == 0) return text;
    text.reserve(range.length);
    Store::Place place = store_->placeOf(range.location);
    for (std::size_t at = range.location; at < range.end(); ++place.piece) {
        const StringView piece = store_->piece(place.piece).text();
        const StringView part = piece.substr(at - place.pieceStart, range.end() - at);
        text += part;
        at += part.size();
        place.pieceStart += piece.size();
    }
    return text;
}

char16_t RichText::characterAtIndex(std::size_t index) const {
    if (index >= length()) return 0;
    const Store::Place place = store_->placeOf(index);
    return store_->piece(place.piece).text()[index - place.pieceStart];
}

TextRun RichText::runAtIndex(std::size_t index) const {
    if (index >= length()) return {{length(), 0}, {}};
    const Store::Place place = store_->placeOf(index);
    const Piece* piece = &store_->piece(place.piece);
    std::size_t run = piece->runAt(index - place.pieceStart);
    const std::uint32_t id = piece->runs()[run].id;
    std::size_t start = place.pieceStart + piece->runs()[run].start;
    std::size_t end = place.pieceStart + piece->runEnd(run);
    std::size_t pieceEnd = place.pieceStart + piece->length();
    for (std::size_t next = place.piece + 1; end == pieceEnd && next < store_->numberOfPieces();
         ++next) {
        const Piece& after = store_->piece(next);
        if (after.runs().front().id != id) break;
        end += after.runEnd(0);
        pieceEnd += after.length();
    }
    std::size_t pieceStart = place.pieceStart;
    for (std::size_t previous = place.piece; start == pieceStart && previous > 0; --previous) {
        const Piece& before = store_->piece(previous - 1);
        if (before.runs().back().id != id) break;
        pieceStart -= before.length();
        start = pieceStart + before.runs().back().start;
    }
    return {{start, end - start}, store_->palette().at(id)};
}

TextAttributes RichText::attributesAtIndex(std::size_t index) const {
    if (index >= length()) return {};
    const Store::Place place = store_->placeOf(index);
    const Piece& piece = store_->piece(place.piece);
    return store_->palette().at(piece.idAt(index - place.pieceStart));
}

RichText::AttributeRange RichText::attributeAtIndex(StringView name, std::size_t index,
                                                    Range inRange) const {
    inRange = clampedRange(inRange, length());
    if (!inRange.contains(index)) return {{}, {index, 0}};
    const TextRun around = runAtIndex(index);
    std::size_t start = around.range.location;
    while (start > inRange.location) {
        const TextRun before = runAtIndex(start - 1);
        if (!sameValue(before.attributes, around.attributes, name)) break;
        start = before.range.location;
    }
    std::size_t end = around.range.end();
    while (end < inRange.end()) {
        const TextRun after = runAtIndex(end);
        if (!sameValue(after.attributes, around.attributes, name)) break;
        end = after.range.end();
    }
    const Range same = intersectionRange({start, end - start}, inRange);
    return {around.attributes.objectForKey(name), same};
}

RichText::AttributeRange RichText::attributeAtIndex(StringView name, std::size_t index) const {
    return attributeAtIndex(name, index, {0, length()});
}

RichText RichText::attributedSubstringFromRange(Range range) const {
    range = clampedRange(range, length());
    if (range.length == length()) return *this;
    RichText part;
    part.store_->append(*store_, range);
    part.store_->finishBuilding();
    return part;
}

bool RichText::operator==(const RichText& other) const {
    if (store_ == other.store_) return true;
    if (length() != other.length() || string() != other.string()) return false;
    const RunSequence left = runs();
    const RunSequence right = other.runs();
    RunIterator a = left.begin();
    RunIterator b = right.begin();
    for (; a != left.end() && b != right.end(); ++a, ++b) {
        if ((*a).range != (*b).range || (*a).attributes != (*b).attributes) return false;
    }
    return true;
}

// ---- Changing the text ----

void RichText::replaceCharactersInRange(Range range, StringView withString) {
    range = clampedRange(range, length());
    if (range.length == 0 && withString.empty()) return;
    const bool inherits = range.length == 0 && range.location > 0;
    const TextAttributes attributes =
        attributesAtIndex(inherits ? range.location - 1 : range.location);
    noteEdit(range, withString.size());
    changeableStore().replace(range, withString, attributes);
}

void RichText::replaceCharactersInRange(Range range, const RichText& withAttributedString) {
    range = clampedRange(range, length());
    // Held here, so that a text can be put into itself.
    const std::shared_ptr<const Store> addition = withAttributedString.store_;
    if (range.length == 0 && addition->length() == 0) return;
    noteEdit(range, addition->length());
    changeableStore().replace(range, *addition, {0, addition->length()});
}

void RichText::insertAttributedString(const RichText& string, std::size_t atIndex) {
    replaceCharactersInRange({atIndex, 0}, string);
}

void RichText::appendAttributedString(const RichText& string) {
    replaceCharactersInRange({length(), 0}, string);
}

void RichText::deleteCharactersInRange(Range range) { replaceCharactersInRange(range, u""); }

// ---- Changing attributes ----

void RichText::setAttributes(const TextAttributes& attributes, Range range) {
    changeAttributes(range, [&](const TextAttributes&) { return attributes; });
}

void RichText::addAttribute(StringView name, const Value& value, Range range) {
    const AttributeName changed = name;
    changeAttributes(
        range, [&](const TextAttributes& before) { return before.withAttribute(changed, value); });
}

void RichText::addAttributes(const TextAttributes& attributes, Range range) {
    changeAttributes(range,
                     [&](const TextAttributes& before) { return before.mergedWith(attributes); });
}

void RichText::removeAttribute(StringView name, Range range) {
    changeAttributes(range,
                     [&](const TextAttributes& before) { return before.withoutAttribute(name); });
}

// ---- Editing in batches ----

void RichText::beginEditing() {
    if (editingDepth_++ == 0) edited_ = false;
}

void RichText::endEditing() {
    if (editingDepth_ == 0 || --editingDepth_ > 0 || !edited_) return;
    edited_ = false;
    fixAttributesInRange({untouchedPrefix_, length() - untouchedSuffix_ - untouchedPrefix_});
}

/// Notes that `range` of the text as it is is about to be replaced by
/// `newLength` units.
void RichText::noteEdit(Range range, std::size_t newLength) {
    if (editingDepth_ == 0 || (range.length == 0 && newLength == 0)) return;
    const std::size_t suffix = length() - range.end();
    untouchedPrefix_ = edited_ ? std::min(untouchedPrefix_, range.location) : range.location;
    untouchedSuffix_ = edited_ ? std::min(untouchedSuffix_, suffix) : suffix;
    edited_ = true;
}

// ---- Hashing ----

std::size_t hashOf(const RichText& text) {
    constexpr Range kHashed{0, 64};
    std::size_t hash = hashCombine(hashText(text.string(kHashed)), text.length());
    // Equal sets of attributes are one as long as texts have them.
    for (const TextRunView run : text.runs(kHashed))
        hash = hashCombine(hash, run.attributes.hash());
    return hash;
}

}  // namespace QZCore
