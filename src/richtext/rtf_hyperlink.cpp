#include "richtext/rtf_hyperlink.h"

#include <optional>

#include "QZCore/foundation/data.h"

namespace QZCore {
namespace {

constexpr StringView kHyperlink = u"HYPERLINK";

/// Reads an instruction word by word.
class InstructionReader {
public:
    explicit InstructionReader(StringView instruction) : rest_(instruction) {}

    /// The next word, or what stands between quotation marks; nothing at the
    /// end.
    [[nodiscard]] std::optional<String> next() {
        rest_ = rest_.substr(std::min(rest_.find_first_not_of(u' '), rest_.size()));
        if (rest_.empty()) return std::nullopt;
        return rest_.front() == u'"' ? quoted() : plain();
    }

private:
    String plain() {
        const StringView word = rest_.substr(0, rest_.find(u' '));
        rest_.remove_prefix(word.size());
        return String(word);
    }

    String quoted() {
        String word;
        std::size_t at = 1;
        for (; at < rest_.size() && rest_[at] != u'"'; ++at) {
            if (rest_[at] == u'\\' && at + 1 < rest_.size()) ++at;
            word.push_back(rest_[at]);
        }
        rest_ = rest_.substr(std::min(at + 1, rest_.size()));
        return word;
    }

    StringView rest_;
};

bool hasScheme(StringView target) {
    const auto isLetter = [](char16_t c) { return (c | 0x20) >= u'a' && (c | 0x20) <= u'z'; };
    const std::size_t colon = target.find(u':');
    if (colon == StringView::npos || !isLetter(target.front())) return false;
    const StringView scheme = target.substr(0, colon);
    return scheme.find_first_of(u"/?#") == StringView::npos;
}

}  // namespace

String hyperlinkInstruction(const Value& link) {
    String instruction(kHyperlink);
    instruction += u" \"";
    for (const char16_t unit : link.stringValue()) {
        if (unit == u'"' || unit == u'\\') instruction += u'\\';
        instruction += unit;
    }
    return instruction + u"\"";
}

Value linkOfInstruction(StringView instruction) {
    InstructionReader words(instruction);
    const auto kind = words.next();
    if (!kind || !equalsIgnoringAsciiCase(*kind, kHyperlink)) return {};
    String target;
    while (const auto word = words.next()) {
        if (*word == u"\\l") {
            target += u"#" + words.next().value_or(String());
        } else if (*word == u"\\o" || *word == u"\\t") {
            (void)words.next();  // a tip, or a window
        } else if (!word->starts_with(u'\\')) {
            target = *word + target;
        }
    }
    if (target.empty()) return {};
    const auto url = hasScheme(target) ? URL::fromString(target) : std::nullopt;
    return url ? Value(*url) : Value(target);
}

}  // namespace QZCore
