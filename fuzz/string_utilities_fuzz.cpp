// The string utilities on arbitrary UTF-16, unpaired surrogates and all.
#include <cmath>
#include <cstring>

#include "QZCore/codecs.h"
#include "QZCore/foundation/log.h"
#include "QZCore/geometry/stored_sizes.h"
#include "require.h"

using namespace QZCore;

namespace {

struct Silence final : LogSink {
    void write(StringView) override {}
};

/// The bytes as UTF-16 units in the machine's order; an odd byte is dropped.
String unitsOf(const std::uint8_t* data, std::size_t size) {
    String text(size / 2, u'\0');
    if (!text.empty()) std::memcpy(text.data(), data, text.size() * 2);
    return text;
}

/// The units of a text, in order of their values.
std::size_t sumOfUnits(StringView text) {
    std::size_t sum = 0;
    for (const char16_t unit : text) sum += unit;
    return sum;
}

void takeApart(StringView text) {
    for (const auto& row : csvRowsOfColumns(text)) require(!row.empty());
    std::size_t units = 0;
    for (const String& line : componentsSeparatedByLineSeparators(text)) units += line.size();
    require(units <= text.size());
    require(stringFromTemplate(text, {}) == text);
    require(stringByRemovingHTML(text).size() <= text.size());
}

/// The entries joined to a text, each key and its value by `between`.
String joined(const Dictionary& dictionary, StringView between, StringView behind) {
    String text;
    for (const auto& [key, value] : dictionary) {
        if (!text.empty()) text += behind;
        text.append(*key.string()).append(between).append(*value.string());
    }
    return text;
}

void readPairs(StringView text) {
    const Dictionary query = dictionaryWithQueryString(text);
    require(dictionaryWithQueryString(joined(query, u"=", u"&")) == query);
    const Dictionary pairs = dictionaryWithKeyObjectString(text, u":", u";");
    require(dictionaryWithKeyObjectString(joined(pairs, u" : ", u";\t"), u":", u";") == pairs);
    const Dictionary turns = dictionaryWithKeyObjectString(text, u"|");
    require(dictionaryWithKeyObjectString(u"|" + joined(turns, u"|", u"|"), u"|") == turns);
}

void readNumbers(StringView text) {
    Dictionary dictionary{{u"text", text}};
    (void)boolForKey(dictionary, u"text");
    (void)unsignedIntegerForKey(dictionary, u"text");
    setDouble(dictionary, doubleForKey(dictionary, u"text"), u"number");
    require(doubleForKey(dictionary, u"number") == doubleForKey(dictionary, u"text"));
    const Size size = sizeForKey(dictionary, u"text");
    if (std::isinf(size.width) || std::isinf(size.height)) return;
    setSize(dictionary, size, u"size");
    require(sizeForKey(dictionary, u"size") == size);
}

void transform(StringView text) {
    const String reversed = reverse(text);
    require(reversed.size() == text.size() && sumOfUnits(reversed) == sumOfUnits(text));
    require(rot13(text).size() == text.size());
    String trimmed(text);
    trimWhitespace(trimmed);
    require(text.ends_with(trimmed) && containsNonWhitespace(trimmed) == !trimmed.empty());
    const String spaceless = stringByRemovingCharactersInSet(text, CharacterSet::whitespace());
    require(stringByRemovingCharactersInSet(spaceless, CharacterSet::whitespace()) == spaceless);
    (void)stringByExpandingJoinedCapitalizedWords(text);
    (void)friendlyPath(text);
    const String name = fileSafeTruncatedToMaxLength(text, 255, u"name");
    require(!name.empty() && name.size() <= 255 && name.find(u'/') == String::npos);
    require(fileNameOnly(text).size() <= text.size());
}

void transport(StringView text) {
    const String wellFormed = fromUTF8(toUTF8(text));
    require(stringFromQuotedPrintableFormat(stringToQuotedPrintableFormat(text)) == wellFormed);
    (void)stringFromQuotedPrintableFormat(text);
    // Query encoding leaves no "=", so that this decodes its "%" alone.
    require(stringFromQuotedPrintableFormat(percentEncodeQuery(text)) == wellFormed);
    (void)percentEncodePath(text);
    if (const auto uuid = decodeURLSafeBase64UUID(text)) {
        require(isUUID(*uuid));
        require(decodeURLSafeBase64UUID(*encodeUUIDAsURLSafeBase64(*uuid)) == uuid);
    }
}

void compare(StringView a, StringView b) {
    require(compareToVersion(a, b) == -compareToVersion(b, a));
    require(finderFileComparison(a, b, u"de") == -finderFileComparison(b, a, u"de"));
    require(finderFileComparison(a, a, u"") == 0);
    require(isCaseInsensitiveEqualToString(a, b) == isCaseInsensitiveEqualToString(b, a));
    require(caseInsensitiveCompareOfFileNameOnly(a, b) ==
            -caseInsensitiveCompareOfFileNameOnly(b, a));
    const bool occurs = countOccurrencesOfString(a, b) > 0;
    require(stringContainsStringFromArray(a, {String(b)}) == occurs);
    for (const std::uint32_t options : {0U, 1U, 2U, 9U, 13U, 129U, 385U}) {
        if (containsString(a, b, options)) require(!a.empty() && !b.empty());
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool silenced = (setLogSink(std::make_shared<Silence>()), true);
    (void)silenced;
    const String text = unitsOf(data, size);
    takeApart(text);
    readPairs(text);
    readNumbers(text);
    transform(text);
    transport(text);
    const StringView whole = text;
    compare(whole.substr(0, text.size() / 2), whole.substr(text.size() / 2));
    for (const TextEncoding encoding : {TextEncoding::Utf8, TextEncoding::Utf16LittleEndian,
                                        TextEncoding::ShiftJis, TextEncoding::Windows1252}) {
        (void)stringWithData({data, size}, encoding);
    }
    if (const auto decoded = stringWithData({data, size}, TextEncoding::Utf16LittleEndian)) {
        require(fromUTF8(toUTF8(*decoded)) == *decoded);
    }
    return 0;
}
