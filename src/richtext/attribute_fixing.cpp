#include "richtext/attribute_fixing.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include "richtext/attribute_names.h"

namespace QZCore {

bool paragraphEndsBefore(StringView text, std::size_t position) {
    const char16_t last = text[position - 1];
    if (last == u'\r') return position == text.size() || text[position] != u'\n';
    return last == u'\n' || last == 0x2029;
}

void fixAttachments(FlatText& text) {
    const auto hasAttachment = [&](const FlatRun& run) {
        return text.palette.at(run.id).attachment() != nullptr;
    };
    if (std::ranges::none_of(text.runs, hasAttachment)) return;
    std::vector<FlatRun> fixed;
    std::uint32_t start = 0;
    bool changed = false;
    for (const FlatRun& run : text.runs) {
        if (!hasAttachment(run)) {
            appendRun(fixed, run.end, run.id);
            start = run.end;
            continue;
        }
        const std::uint32_t without =
            text.palette.idOf(text.palette.at(run.id).withoutAttribute(NSAttachmentAttributeName));
        for (; start < run.end; ++start) {
            const bool keeps = text.text[start] == kAttachmentCharacter;
            changed |= !keeps;
            appendRun(fixed, start + 1, keeps ? run.id : without);
        }
    }
    if (changed) text.runs = std::move(fixed);
}

namespace {

/// The end of the paragraph that is open at `from`, at most `limit`.
std::uint32_t paragraphEnd(StringView text, std::uint32_t from, std::uint32_t limit) {
    for (std::uint32_t at = from + 1; at <= limit; ++at) {
        if (paragraphEndsBefore(text, at)) return at;
    }
    return limit;
}

bool sameParagraphStyle(const TextAttributes& a, const TextAttributes& b) {
    const ParagraphStyle* left = a.paragraphStyle();
    const ParagraphStyle* right = b.paragraphStyle();
    if (left == nullptr || right == nullptr) return left == right;
    return left == right || *left == *right;
}

/// Makes the runs of the fixed text one after the other. The open paragraph
/// goes on until a run ends with its last character.
class ParagraphFixer {
public:
    explicit ParagraphFixer(FlatText& text) : text_(text) { fixed_.reserve(text.runs.size()); }

    void fix() {
        for (const FlatRun& run : text_.runs) add(run);
        if (changed_) text_.runs = std::move(fixed_);
    }

private:
    void add(const FlatRun& run) {
        const bool opens = at_ == 0 || paragraphEndsBefore(text_.text, at_);
        if (!opens && !agrees(run.id)) {
            changed_ = true;
            const std::uint32_t end = paragraphEnd(text_.text, at_, run.end);
            appendRun(fixed_, end, withOpenStyle(run.id));
            at_ = end;
            if (at_ == run.end) return;
        }
        openStyle_ = run.id;
        appendRun(fixed_, run.end, run.id);
        at_ = run.end;
    }

    [[nodiscard]] bool agrees(std::uint32_t id) const {
        return id == openStyle_ ||
               sameParagraphStyle(text_.palette.at(id), text_.palette.at(openStyle_));
    }

    std::uint32_t withOpenStyle(std::uint32_t id) {
        const std::uint64_t key = std::uint64_t{openStyle_} << 32 | id;
        const auto [at, isNew] = withOpenStyle_.try_emplace(key, id);
        if (isNew) {
            const Value style = text_.palette.at(openStyle_).objectForKey(styleName_.text());
            const TextAttributes changed = text_.palette.at(id).withAttribute(styleName_, style);
            at->second = text_.palette.idOf(changed);
        }
        return at->second;
    }

    FlatText& text_;
    std::vector<FlatRun> fixed_;
    std::uint32_t at_ = 0;
    std::uint32_t openStyle_ = 0;  // attributes with the open paragraph's style
    std::unordered_map<std::uint64_t, std::uint32_t> withOpenStyle_;  // by both numbers
    const AttributeName styleName_ = attributeNames().paragraphStyle;
    bool changed_ = false;
};

}  // namespace

void fixParagraphStyles(FlatText& text) { ParagraphFixer(text).fix(); }

void fixAttributes(FlatText& text, const FontCatalog& catalog) {
    fixAttachments(text);
    fixParagraphStyles(text);
    fixFonts(text, catalog);
}

}  // namespace QZCore
