#include "QZCore/richtext/variables.h"

#include "QZCore/codecs/transforming.h"
#include "QZCore/foundation/preferences.h"
#include "QZCore/richtext/rich_text.h"
#include "platform/letter_case.h"
#include "richtext/attribute_names.h"
#include "richtext/link_look.h"
#include "richtext/variable_dates.h"
#include "richtext/variable_matches.h"

namespace QZCore {
namespace {

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
        : text_(text), prefix_(prefix), suffix_(suffix), options_(options) {
        readText();
    }

    [[nodiscard]] bool hasPrefix() const { return variables_->hasPrefix(); }

    /// Returns how many were replaced.
    std::int64_t replace(StringView name, const Value& value) {
        std::int64_t count = 0;
        const auto matches = variables_->matches(name);
        // The last first, so that the others stay where they are.
        for (auto match = matches.rbegin(); match != matches.rend(); ++match) {
            const StringView tail =
                StringView(plain_).substr(match->tail.location, match->tail.length);
            const auto replacement = textFor(name, value, parsedTail(tail));
            if (!replacement) continue;
            put(*replacement, match->whole);
            ++count;
        }
        if (count > 0) readText();
        return count;
    }

private:
    void readText() {
        plain_ = text_.string();
        variables_.emplace(plain_, prefix_, suffix_);
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

    void put(StringView replacement, Range range) {
        text_.replaceCharactersInRange(range, replacement);
        if (replacement.find(u"://") == StringView::npos) return;
        const auto url = URL::fromString(replacement);
        if (!url) return;
        const TextAttributes link =
            linkLook(Preferences::shared()).withAttribute(attributeNames().link, *url);
        text_.addAttributes(link, {range.location, replacement.size()});
    }

    RichText& text_;
    StringView prefix_;
    StringView suffix_;
    std::uint32_t options_;
    String plain_;  // the text before the variables of a name are replaced
    std::optional<VariableSearch> variables_;
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
