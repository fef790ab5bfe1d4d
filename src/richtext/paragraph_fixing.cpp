#include "richtext/paragraph_fixing.h"

#include <utility>

#include "foundation/unit_search.h"
#include "richtext/attribute_names.h"

namespace QZCore {
namespace {

constexpr std::uint16_t kLineFeed = u'\n';
constexpr std::uint16_t kReturn = u'\r';
constexpr std::uint16_t kParagraphSeparator = 0x2029;

/// The first unit at or after `from` that ends paragraphs, or the length.
std::size_t findParagraphEndUnit(StringView text, std::size_t from) {
    return findFirst(text, from, [](auto c) {
        return (c == kLineFeed) | (c == kReturn) | (c == kParagraphSeparator);
    });
}

/// The end of the paragraph that is open at `from`, at most `limit`.
std::size_t paragraphEnd(StringView text, std::size_t from, std::size_t limit) {
    const StringView part = text.substr(0, limit);
    while ((from = findParagraphEndUnit(part, from)) < limit) {
        if (paragraphEndsBefore(text, ++from)) break;
    }
    return from;
}

}  // namespace

bool holdsParagraphEnd(StringView text) { return findParagraphEndUnit(text, 0) < text.size(); }

bool paragraphEndsBefore(StringView text, std::size_t position) {
    const char16_t last = text[position - 1];
    if (last == u'\r') return position == text.size() || text[position] != u'\n';
    return last == kLineFeed || last == kParagraphSeparator;
}

/// Makes the runs of the fixed text one after the other. The open paragraph
/// goes on until a run ends with its last character.
class ParagraphFixing::Walk {
public:
    Walk(ParagraphFixing& fixing, FlatText& text) : fixing_(fixing), text_(text) {
        fixed_.reserve(text.runs.size());
    }

    void fix() {
        for (const FlatRun& run : text_.runs) add(run);
        if (changed_) text_.runs = std::move(fixed_);
    }

private:
    void add(const FlatRun& run) {
        const std::uint32_t style = fixing_.styleOf(run.id, text_.palette);
        if (style != openStyle_ && at_ > 0 && !paragraphEndsBefore(text_.text, at_)) {
            changed_ = true;
            at_ = static_cast<std::uint32_t>(paragraphEnd(text_.text, at_, run.end));
            appendRun(fixed_, at_, fixing_.withStyle(run.id, openStyle_, text_.palette));
            if (at_ == run.end) return;
        }
        openStyle_ = style;
        appendRun(fixed_, run.end, run.id);
        at_ = run.end;
    }

    ParagraphFixing& fixing_;
    FlatText& text_;
    std::vector<FlatRun> fixed_;
    std::uint32_t at_ = 0;
    std::uint32_t openStyle_ = kNoStyle;  // of the open paragraph
    bool changed_ = false;
};

void ParagraphFixing::fixParagraphStyles(FlatText& text) { Walk(*this, text).fix(); }

/// The number of the paragraph style that the attributes `id` hold.
std::uint32_t ParagraphFixing::styleOf(std::uint32_t id, const AttributePalette& palette) {
    if (id >= styleOf_.size()) styleOf_.resize(palette.size(), kUnknown);
    std::uint32_t& style = styleOf_[id];
    if (style == kUnknown) style = numberOf(palette.at(id).paragraphStyle());
    return style;
}

std::uint32_t ParagraphFixing::numberOf(const ParagraphStyle* style) {
    if (style == nullptr) return kNoStyle;
    if (style == last_) return lastNumber_;
    const auto next = static_cast<std::uint32_t>(styles_.size());
    const auto [at, isNew] = numbers_.try_emplace(style, next);
    if (isNew) {
        styles_.push_back(Value::boxed(*style));
        changed_.emplace_back();
    }
    last_ = style;
    lastNumber_ = at->second;
    return lastNumber_;
}

/// The attributes `id` with another paragraph style.
std::uint32_t ParagraphFixing::withStyle(std::uint32_t id, std::uint32_t style,
                                         AttributePalette& palette) {
    return changed_[style](id, [&](std::uint32_t old) {
        const TextAttributes before = palette.at(old);
        return palette.idOf(before.withAttribute(attributeNames().paragraphStyle, styles_[style]));
    });
}

}  // namespace QZCore
