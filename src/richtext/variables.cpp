#include "QZCore/richtext/variables.h"

#include <utility>
#include <vector>

#include "QZCore/codecs/transforming.h"
#include "QZCore/foundation/preferences.h"
#include "QZCore/richtext/rich_text.h"
#include "platform/letter_case.h"
#include "richtext/attribute_names.h"
#include "richtext/link_look.h"
#include "richtext/variable_dates.h"
#include "richtext/variable_text.h"

namespace QZCore {
namespace {

// Values may contain variables: a few dozen, each twice in the one before, would
// fill the memory.
constexpr std::size_t kMostUnits = std::size_t{1} << 24;

String inLetterCase(StringView text, StringView letterCase) {
    if (letterCase == u"uppercase") return textInCase(text, LetterCase::Upper);
    if (letterCase == u"lowercase") return textInCase(text, LetterCase::Lower);
    if (letterCase == u"capitalize") return textInCase(text, LetterCase::Capitalized);
    return String(text);
}

/// Replaces the variables of one text, a name at a time.
class VariableReplacement {
public:
    VariableReplacement(RichText& text, StringView prefix, StringView suffix, std::uint32_t options)
        : text_(text), variables_(text.string(), prefix, suffix), options_(options) {}

    [[nodiscard]] bool hasPrefix() const { return variables_.hasPrefix(); }

    /// Returns how many were replaced.
    std::int64_t replace(StringView name, const Value& value) {
        const auto edits = editsFor(name, value);
        if (edits.empty()) return 0;
        // The last first, so that the others stay where they are.
        for (auto edit = edits.rbegin(); edit != edits.rend(); ++edit) put(*edit);
        variables_.apply(edits);
        return static_cast<std::int64_t>(edits.size());
    }

private:
    /// None if they would put in too much.
    [[nodiscard]] std::vector<VariableEdit> editsFor(StringView name, const Value& value) {
        std::vector<VariableEdit> edits;
        std::size_t length = 0;
        for (const VariableMatch& match : variables_.matches(name)) {
            const StringView tail =
                variables_.text().substr(match.tail.location, match.tail.length);
            auto text = textFor(name, value, parsedTail(tail));
            if (!text) continue;
            length += text->size();
            if (length > room_) return {};
            edits.push_back({match.whole, std::move(*text)});
        }
        room_ -= length;
        return edits;
    }

    [[nodiscard]] std::optional<String> textFor(StringView name, const Value& value,
                                                const VariableTail& tail) {
        if (!isAcceptedFormat(tail.format, options_)) return std::nullopt;
        std::optional<String> text;
        if (value.string() != nullptr) {
            text = inLetterCase(*value.string(), tail.letterCase);
        } else if (value.isNumber()) {
            text = value.stringValue();
        } else if (value.date() != nullptr) {
            text = dates_.written(*value.date(), name, tail);
        }
        const bool encodes = (options_ & kVariablePercentEncoding) != 0;
        return text && encodes ? percentEncodeQuery(*text) : text;
    }

    void put(const VariableEdit& edit) {
        text_.replaceCharactersInRange(edit.range, edit.text);
        if (edit.text.find(u"://") == String::npos) return;
        const auto url = URL::fromString(edit.text);
        if (!url) return;
        const TextAttributes link =
            linkLook(Preferences::shared()).withAttribute(attributeNames().link, *url);
        text_.addAttributes(link, {edit.range.location, edit.text.size()});
    }

    RichText& text_;
    VariableText variables_;  // of the characters of `text_`
    std::uint32_t options_;
    std::size_t room_ = kMostUnits;  // for what is put in
    VariableDates dates_;
};

}  // namespace

std::int64_t RichText::replaceVariablesWithDictionary(const Dictionary& dictionary,
                                                      StringView withPrefix, StringView suffix,
                                                      std::uint32_t options) {
    if (Preferences::shared().boolForKey(u"Ignore Variable Replacements")) return 0;
    const RichTextEditing editing(*this);
    VariableReplacement replacement(*this, withPrefix, suffix, options);
    std::int64_t count = 0;
    for (const auto& [name, value] : dictionary) {
        if (!replacement.hasPrefix()) break;
        if (name.string() != nullptr) count += replacement.replace(*name.string(), value);
    }
    return count;
}

}  // namespace QZCore
