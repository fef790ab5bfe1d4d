#include <algorithm>
#include <array>

#include "QZCore/codecs/parsing.h"
#include "platform/text_decoding.h"

namespace QZCore {
namespace {

struct EncodingRow {
    TextEncoding encoding;
    const char* charset;
};

constexpr std::array kEncodings{
    EncodingRow{TextEncoding::Ascii, "US-ASCII"},
    EncodingRow{TextEncoding::EucJapanese, "EUC-JP"},
    EncodingRow{TextEncoding::Utf8, "UTF-8"},
    EncodingRow{TextEncoding::IsoLatin1, "ISO-8859-1"},
    EncodingRow{TextEncoding::ShiftJis, "Shift_JIS"},
    EncodingRow{TextEncoding::IsoLatin2, "ISO-8859-2"},
    EncodingRow{TextEncoding::Utf16, "UTF-16"},
    EncodingRow{TextEncoding::Windows1251, "windows-1251"},
    EncodingRow{TextEncoding::Windows1252, "windows-1252"},
    EncodingRow{TextEncoding::Windows1253, "windows-1253"},
    EncodingRow{TextEncoding::Windows1254, "windows-1254"},
    EncodingRow{TextEncoding::Windows1250, "windows-1250"},
    EncodingRow{TextEncoding::Utf32, "UTF-32"},
    EncodingRow{TextEncoding::Utf16BigEndian, "UTF-16BE"},
    EncodingRow{TextEncoding::Utf16LittleEndian, "UTF-16LE"},
    EncodingRow{TextEncoding::Utf32BigEndian, "UTF-32BE"},
    EncodingRow{TextEncoding::Utf32LittleEndian, "UTF-32LE"},
};

}  // namespace

std::optional<String> stringWithData(DataView data, TextEncoding encoding) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    const auto row = std::ranges::find(kEncodings, encoding, &EncodingRow::encoding);
    if (row == kEncodings.end()) return std::nullopt;
    std::string_view bytes = textOf(data);
    if (encoding == TextEncoding::Utf8 && bytes.starts_with(kByteOrderMark)) {
        bytes.remove_prefix(kByteOrderMark.size());
    }
    return decodedText(bytes, row->charset);
}

}  // namespace QZCore
