#include "richtext/rtf_output.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "richtext/rtf_units.h"

namespace QZCore {
namespace {

bool isPlain(char16_t unit) {
    return unit >= 0x20 && unit < 0x7F && unit != u'\\' && unit != u'{' && unit != u'}';
}

void appendNumber(std::string& bytes, std::int64_t number) {
    char digits[24];
    bytes.append(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
}

}  // namespace

std::int32_t twipsOf(double points) {
    constexpr double kMost = 1'000'000;
    if (std::isnan(points)) return 0;
    return static_cast<std::int32_t>(
        std::lround(std::clamp(points * kTwipsPerPoint, -kMost, kMost)));
}

void RtfOutput::word(std::string_view name) {
    bytes_ += '\\';
    bytes_ += name;
    endsWithWord_ = true;
}

void RtfOutput::word(std::string_view name, std::int64_t number) {
    word(name);
    appendNumber(bytes_, number);
}

void RtfOutput::words(std::string_view words) {
    bytes_ += words;
    endsWithWord_ = endsWithWord_ || !words.empty();
}

void RtfOutput::openIgnorableGroup(std::string_view name) {
    mark("{\\*");
    word(name);
}

void RtfOutput::mark(std::string_view bytes) {
    bytes_ += bytes;
    endsWithWord_ = false;
}

void RtfOutput::paragraphEnd() {
    word("par");
    mark("\n");
}

void RtfOutput::text(StringView units) {
    for (std::size_t at = 0; at < units.size();) {
        std::size_t end = at;
        while (end < units.size() && isPlain(units[end])) ++end;
        if (end == at) {
            escape(units[at++]);
            continue;
        }
        if (endsWithWord_) bytes_ += ' ';
        endsWithWord_ = false;
        bytes_.append(units.begin() + at, units.begin() + end);
        at = end;
    }
}

void RtfOutput::escape(char16_t unit) {
    switch (unit) {
        case u'\t':
            return word("tab");
        case u'\f':
            return word("page");
        case 0x2028:
            return word("line");
        case u'\\':
            return mark("\\\\");
        case u'{':
            return mark("\\{");
        case u'}':
            return mark("\\}");
        default:
            break;
    }
    word("u", static_cast<std::int16_t>(unit));
    const bool isInCodePage = unit >= 0xA0 && unit <= 0xFF;
    isInCodePage ? byte(static_cast<std::uint8_t>(unit)) : mark("?");
}

void RtfOutput::byte(std::uint8_t value) {
    constexpr char kDigits[] = "0123456789abcdef";
    const char bytes[] = {'\\', '\'', kDigits[value >> 4], kDigits[value & 15]};
    mark({bytes, sizeof bytes});
}

}  // namespace QZCore
