// The plainest possible rich text: one attribute set for each unit.
#pragma once

#include <algorithm>
#include <vector>

#include "QZCore/richtext/rich_text.h"

namespace QZCore::testing {

/// What a rich text must do, done the slow and obvious way.
struct RichTextTwin {
    String text;
    std::vector<TextAttributes> attributes;

    void replace(Range range, StringView with) {
        range = clampedRange(range, text.size());
        const bool inherits = range.length == 0 && range.location > 0;
        const std::size_t from = inherits ? range.location - 1 : range.location;
        const TextAttributes taken = from < attributes.size() ? attributes[from] : TextAttributes();
        splice(range, with, std::vector<TextAttributes>(with.size(), taken));
    }

    void replace(Range range, const RichText& with) {
        std::vector<TextAttributes> taken;
        for (std::size_t i = 0; i < with.length(); ++i) taken.push_back(with.attributesAtIndex(i));
        splice(clampedRange(range, text.size()), with.string(), taken);
    }

    /// Whether `other` has this text and these attributes, in runs that cut it
    /// into parts without a gap, no two neighbours equal.
    [[nodiscard]] bool matches(const RichText& other) const {
        if (other.string() != text || attributes.size() != text.size()) return false;
        std::size_t at = 0;
        const auto runs = other.runs();
        for (const TextRunView run : runs) {
            if (run.range.location != at || run.range.length == 0) return false;
            if (at > 0 && attributes[at - 1] == run.attributes) return false;
            for (; at < run.range.end(); ++at) {
                if (at >= text.size() || attributes[at] != run.attributes) return false;
            }
        }
        return at == text.size();
    }

    template <class Change>
    void change(Range range, Change newAttributes) {
        range = clampedRange(range, text.size());
        for (std::size_t i = range.location; i < range.end(); ++i) {
            attributes[i] = newAttributes(attributes[i]);
        }
    }

private:
    void splice(Range range, StringView with, const std::vector<TextAttributes>& taken) {
        text.replace(range.location, range.length, with);
        const auto at = attributes.begin() + static_cast<std::ptrdiff_t>(range.location);
        const auto after = attributes.erase(at, at + static_cast<std::ptrdiff_t>(range.length));
        attributes.insert(after, taken.begin(), taken.end());
    }
};

}  // namespace QZCore::testing
