#include "richtext/cleaned_runs.h"

#include <algorithm>
#include <utility>

#include "richtext/attribute_names.h"
#include "richtext/distinct_sets.h"

namespace QZCore {
namespace {

/// The attributes beside the runs [first, last), whose predecessors have become
/// `done`; null when there is no neighbour.
const TextAttributes* neighbour(const FlatRuns& text, std::size_t first, std::size_t last,
                                const std::vector<FlatRun>& done) {
    if (first > 0) return &text.palette.at(done.back().id);
    const std::size_t after = text.runs[last - 1].end;
    if (after + 1 >= text.runs.back().end) return nullptr;
    return &text.palette.at(text.runs[last].id);
}

/// `attributes` with the value that `other` has under `name`, or without any.
TextAttributes withValueOf(const TextAttributes& attributes, const TextAttributes* other,
                           AttributeName name) {
    const Value* value = other == nullptr ? nullptr : other->find(name.text());
    return attributes.withAttribute(name, value == nullptr ? Value() : *value);
}

TextAttributes withoutLink(const TextAttributes& attributes, const TextAttributes* beside) {
    const AttributeNames& names = attributeNames();
    const TextAttributes plain = attributes.withoutAttribute(NSLinkAttributeName);
    return withValueOf(withValueOf(plain, beside, names.foregroundColor), beside,
                       names.underlineStyle);
}

bool hasLink(const TextAttributes* set) { return set->link() != nullptr; }

bool isEmojiSet(const TextAttributes* set) { return hasColorEmojiFont(*set); }

}  // namespace

bool hasColorEmojiFont(const TextAttributes& attributes) {
    const Font* font = attributes.font();
    return font != nullptr && font->faceName == kColorEmojiFace;
}

bool removeLinkFormatting(FlatRuns& text) {
    if (!std::ranges::any_of(distinctSets(text), hasLink)) return false;
    std::vector<FlatRun> cleaned;
    cleaned.reserve(text.runs.size());
    for (std::size_t i = 0; i < text.runs.size(); ++i) {
        std::uint32_t id = text.runs[i].id;
        if (hasLink(&text.palette.at(id))) {
            const TextAttributes* beside = neighbour(text, i, i + 1, cleaned);
            id = text.palette.idOf(withoutLink(text.palette.at(id), beside));
        }
        appendRun(cleaned, text.runs[i].end, id);
    }
    text.runs = std::move(cleaned);
    return true;
}

bool removeColorEmojiFonts(FlatRuns& text) {
    if (!std::ranges::any_of(distinctSets(text), isEmojiSet)) return false;
    std::vector<FlatRun> cleaned;
    cleaned.reserve(text.runs.size());
    const auto isEmoji = [&](std::size_t run) {
        return hasColorEmojiFont(text.palette.at(text.runs[run].id));
    };
    for (std::size_t i = 0; i < text.runs.size();) {
        if (!isEmoji(i)) {
            appendRun(cleaned, text.runs[i].end, text.runs[i].id);
            ++i;
            continue;
        }
        std::size_t end = i + 1;
        while (end < text.runs.size() && isEmoji(end)) ++end;
        const TextAttributes* beside = neighbour(text, i, end, cleaned);
        const TextAttributes taken = beside == nullptr ? TextAttributes() : *beside;
        for (; i < end; ++i) {
            const TextAttributes before = text.palette.at(text.runs[i].id);
            const auto id = text.palette.idOf(withValueOf(before, &taken, attributeNames().font));
            appendRun(cleaned, text.runs[i].end, id);
        }
    }
    text.runs = std::move(cleaned);
    return true;
}

FlatRuns cleanedRuns(const RichText& text) {
    FlatRuns runs = FlatTextAccess::flattenedRuns(text, {0, kFlatTextLimit - 1});
    removeLinkFormatting(runs);
    removeColorEmojiFonts(runs);
    return runs;
}

}  // namespace QZCore
