#include "richtext/html_references.h"

#include <algorithm>
#include <array>

#include "foundation/unit_search.h"

namespace QZCore {
namespace {

struct NamedReference {
    StringView name;
    StringView text;
};

constexpr NamedReference kNamedReferences[] = {
#include "richtext/html_references.inc"
};
static_assert(std::ranges::is_sorted(kNamedReferences, {}, &NamedReference::name),
              "names are searched by halves");

constexpr std::size_t kLongestName = 32;
static_assert(std::ranges::all_of(kNamedReferences,
                                  [](auto& row) { return row.name.size() <= kLongestName; }));

const NamedReference* findNamed(StringView name) {
    const auto* row = std::ranges::lower_bound(kNamedReferences, name, {}, &NamedReference::name);
    return row != std::end(kNamedReferences) && row->name == name ? row : nullptr;
}

bool isAsciiAlphanumeric(char16_t unit) {
    return (unit >= u'0' && unit <= u'9') || (unit >= u'A' && unit <= u'Z') ||
           (unit >= u'a' && unit <= u'z');
}

/// The number that a digit stands for; `base` for any other unit.
char32_t digitValue(char16_t unit, char32_t base) {
    const char16_t lower = unit | 0x20;
    const char32_t value = unit >= u'0' && unit <= u'9'     ? unit - U'0'
                           : lower >= u'a' && lower <= u'f' ? lower - U'a' + 10
                                                            : base;
    return std::min(value, base);
}

/// What a number stands for; those of C1 controls are those of Windows-1252.
char32_t codePointForNumber(char32_t number) {
    constexpr char32_t kReplacement = 0xFFFD;
    constexpr std::array<char16_t, 32> kWindows{
        0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
        0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
        0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};
    const bool isSurrogate = number >= 0xD800 && number < 0xE000;
    if (number == 0 || number > 0x10FFFF || isSurrogate) return kReplacement;
    return number >= 0x80 && number < 0xA0 ? kWindows[number - 0x80] : number;
}

/// Resolves the references of one text.
class Resolving {
public:
    Resolving(StringView text, ReferencePlace place) : text_(text), place_(place) {}

    [[nodiscard]] String resolved() {
        out_.reserve(text_.size());
        while (at_ < text_.size()) {
            const std::size_t mark = findUnit(text_, at_, u'&');
            out_ += text_.substr(at_, mark - at_);
            at_ = mark;
            if (at_ == text_.size() || readReference()) continue;
            out_ += u'&';
            ++at_;
        }
        return std::move(out_);
    }

private:
    [[nodiscard]] char16_t unitAt(std::size_t at) const {
        return at < text_.size() ? text_[at] : u'\0';
    }

    bool readReference() { return unitAt(at_ + 1) == u'#' ? readNumber() : readName(); }

    bool readNumber() {
        constexpr char32_t kTooLarge = 0x110000;
        const bool isHexadecimal = (unitAt(at_ + 2) | 0x20) == u'x';
        const char32_t base = isHexadecimal ? 16 : 10;
        const std::size_t start = at_ + (isHexadecimal ? 3 : 2);
        std::size_t end = start;
        char32_t number = 0;
        for (; digitValue(unitAt(end), base) < base; ++end) {
            number = std::min<char32_t>(number * base + digitValue(unitAt(end), base), kTooLarge);
        }
        if (end == start) return false;
        appendCodePoint(out_, codePointForNumber(number));
        at_ = unitAt(end) == u';' ? end + 1 : end;
        return true;
    }

    /// The longest name counts, so that "&notit;" is "&not" and "it;".
    bool readName() {
        const StringView rest = text_.substr(at_ + 1, kLongestName);
        std::size_t length = 0;
        while (length < rest.size() && isAsciiAlphanumeric(rest[length])) ++length;
        if (length < rest.size() && rest[length] == u';') ++length;
        for (; length > 1; --length) {
            const NamedReference* row = findNamed(rest.substr(0, length));
            if (row == nullptr) continue;
            const char16_t next = unitAt(at_ + 1 + length);
            const bool isOpen = !row->name.ends_with(u';');
            if (isOpen && place_ == ReferencePlace::Attribute &&
                (next == u'=' || isAsciiAlphanumeric(next))) {
                return false;
            }
            out_ += row->text;
            at_ += 1 + length;
            return true;
        }
        return false;
    }

    StringView text_;
    ReferencePlace place_;
    String out_;
    std::size_t at_ = 0;
};

}  // namespace

String withReferencesResolved(StringView text, ReferencePlace place) {
    return Resolving(text, place).resolved();
}

}  // namespace QZCore
