#include "platform/folded_text.h"

#include <unicode/uchar.h>
#include <unicode/unorm2.h>
#include <unicode/ustring.h>

#include <array>

namespace QZCore {
namespace {

// No language stacks so many marks. Bounding a segment keeps the ordering of
// marks, which is quadratic within one, linear over the text.
constexpr std::size_t kLongestSegment = 32;

// More than anything that a segment can become.
constexpr std::int32_t kRoom = 512;

constexpr char32_t kFirstCombiningMark = 0x300;

const UNormalizer2* composing() {
    UErrorCode status = U_ZERO_ERROR;
    return unorm2_getNFCInstance(&status);
}

const UNormalizer2* decomposing() {
    UErrorCode status = U_ZERO_ERROR;
    return unorm2_getNFDInstance(&status);
}

/// What `convert` writes for `text`, or `text` itself when it fails.
template <class Convert>
String converted(const String& text, Convert convert) {
    std::array<char16_t, kRoom> units;
    UErrorCode status = U_ZERO_ERROR;
    const std::int32_t length =
        convert(text.data(), static_cast<std::int32_t>(text.size()), units.data(), &status);
    return U_SUCCESS(status) ? String(units.data(), static_cast<std::size_t>(length)) : text;
}

String decomposed(const String& text) {
    return converted(text, [](const char16_t* from, std::int32_t size, char16_t* to, auto* status) {
        return unorm2_normalize(decomposing(), from, size, to, kRoom, status);
    });
}

String withFoldedCase(const String& text) {
    return converted(text, [](const char16_t* from, std::int32_t size, char16_t* to, auto* status) {
        return u_strFoldCase(to, kRoom, from, size, U_FOLD_CASE_DEFAULT, status);
    });
}

/// Applies `change` to every code point of `text`, which appends what it
/// becomes.
template <class Change>
String mapped(const String& text, Change change) {
    String result;
    for (std::size_t at = 0; at < text.size();) {
        const CodePoint point = codePointAt(text, at);
        change(result, point.value);
        at += point.length;
    }
    return result;
}

bool hasPlainForm(char32_t point) {
    const auto type = u_getIntPropertyValue(static_cast<UChar32>(point), UCHAR_DECOMPOSITION_TYPE);
    return type == U_DT_WIDE || type == U_DT_NARROW;
}

void appendPlainForm(String& to, char32_t point) {
    UErrorCode status = U_ZERO_ERROR;
    std::array<char16_t, kRoom> units;
    const std::int32_t length =
        hasPlainForm(point)
            ? unorm2_getRawDecomposition(unorm2_getNFKDInstance(&status),
                                         static_cast<UChar32>(point), units.data(), kRoom, &status)
            : -1;
    if (length < 0 || U_FAILURE(status)) {
        appendCodePoint(to, point);
    } else {
        to.append(units.data(), static_cast<std::size_t>(length));
    }
}

void appendUnlessDiacritic(String& to, char32_t point) {
    const auto character = static_cast<UChar32>(point);
    const bool isMark =
        u_charType(character) == U_NON_SPACING_MARK && u_getCombiningClass(character) != 0;
    if (!isMark) appendCodePoint(to, point);
}

/// Where the segment ends that starts at `start`.
std::size_t segmentEnd(StringView text, std::size_t start, const Folding& folding) {
    std::size_t end = start + codePointAt(text, start).length;
    while (!folding.isLiteral && end < text.size() && end - start < kLongestSegment) {
        const CodePoint next = codePointAt(text, end);
        if (next.value < kFirstCombiningMark) break;
        if (unorm2_hasBoundaryBefore(composing(), static_cast<UChar32>(next.value))) break;
        end += next.length;
    }
    return end;
}

/// Whether folding leaves a segment alone that is the code point `point`; true
/// of most characters of scripts without cases.
bool isInert(char32_t point, const Folding& folding) {
    const auto character = static_cast<UChar32>(point);
    return !folding.ignoresWidth && unorm2_isInert(decomposing(), character) &&
           !u_hasBinaryProperty(character, UCHAR_CASE_SENSITIVE);
}

void appendFolded(String& to, StringView segment, const Folding& folding) {
    const CodePoint first = codePointAt(segment, 0);
    if (first.length == segment.size() && isInert(first.value, folding)) {
        to.append(segment);
        return;
    }
    String folded(segment);
    if (folding.ignoresWidth) folded = mapped(folded, appendPlainForm);
    if (!folding.isLiteral || folding.ignoresDiacritics) folded = decomposed(folded);
    if (folding.ignoresDiacritics) folded = mapped(folded, appendUnlessDiacritic);
    if (folding.ignoresCase) folded = withFoldedCase(folded);
    // Folding the case can leave marks in another order.
    if (folding.ignoresCase && !folding.isLiteral) folded = decomposed(folded);
    to.append(folded);
}

/// Whether the unit at `index` is an ASCII character without marks.
bool isPlainAscii(StringView text, std::size_t index) {
    const bool isMarked = index + 1 < text.size() && text[index + 1] >= kFirstCombiningMark;
    return text[index] < 0x80 && !isMarked;
}

char16_t foldedAscii(char16_t unit, const Folding& folding) {
    const bool lowers = folding.ignoresCase && unit >= u'A' && unit <= u'Z';
    return lowers ? static_cast<char16_t>(unit + (u'a' - u'A')) : unit;
}

}  // namespace

FoldedText foldedText(StringView text, Folding folding) {
    FoldedText folded;
    folded.units.reserve(text.size());
    folded.sources.reserve(text.size() + 1);
    for (std::size_t start = 0; start < text.size();) {
        std::size_t end = start + 1;
        if (isPlainAscii(text, start)) {
            folded.units.push_back(foldedAscii(text[start], folding));
        } else {
            end = segmentEnd(text, start, folding);
            appendFolded(folded.units, text.substr(start, end - start), folding);
        }
        folded.sources.resize(folded.units.size(), start);
        start = end;
    }
    folded.sources.push_back(text.size());
    return folded;
}

String caseFolded(StringView text) { return foldedText(text, {.ignoresCase = true}).units; }

}  // namespace QZCore
