#include "richtext/rtf_code_pages.h"

#include <algorithm>
#include <string>

#include "platform/text_decoding.h"

namespace QZCore {
namespace {

constexpr char16_t kReplacement = 0xFFFD;

struct CharsetRow {
    std::int32_t charset;
    std::int32_t codePage;
};

constexpr std::array kCharsets{
    CharsetRow{0, 1252},
    CharsetRow{kSymbolCharset, kSymbolCodePage},
    CharsetRow{77, kOldRomanCodePage},
    CharsetRow{128, 932},
    CharsetRow{129, 949},
    CharsetRow{130, 1361},
    CharsetRow{134, 936},
    CharsetRow{136, 950},
    CharsetRow{161, 1253},
    CharsetRow{162, 1254},
    CharsetRow{163, 1258},
    CharsetRow{177, 1255},
    CharsetRow{178, 1256},
    CharsetRow{186, 1257},
    CharsetRow{204, 1251},
    CharsetRow{222, 874},
    CharsetRow{238, 1250},
    CharsetRow{255, 437},
};

struct CodePageRow {
    std::int32_t codePage;
    const char* name;
};

/// Code pages in which a character may take several bytes.
constexpr std::array kMultibytePages{
    CodePageRow{932, "windows-31j"}, CodePageRow{936, "GBK"},       CodePageRow{949, "windows-949"},
    CodePageRow{950, "Big5"},        CodePageRow{54936, "GB18030"}, CodePageRow{65001, "UTF-8"},
};

std::string nameOf(std::int32_t codePage) {
    if (codePage == kOldRomanCodePage) return "macintosh";
    if (codePage == 28591) return "ISO-8859-1";
    const bool isWindows = codePage == 874 || (codePage >= 1250 && codePage <= 1258);
    return (isWindows ? "windows-" : "cp") + std::to_string(codePage);
}

/// What is valid of `bytes`, and what is not byte by byte.
void decodeMultibyte(std::string_view bytes, const char* charset, String& to) {
    if (const auto text = decodedText(bytes, charset)) {
        to += *text;
        return;
    }
    for (const char byte : bytes) {
        const auto unit = static_cast<unsigned char>(byte);
        to += unit < 0x80 ? char16_t{unit} : kReplacement;
    }
}

char16_t symbolOf(std::size_t byte) {
    constexpr std::size_t kBullet = 0xB7;
    constexpr std::size_t kPrivateUse = 0xF000;
    if (byte == kBullet) return u'\u2022';
    return static_cast<char16_t>(byte < 0x80 ? byte : kPrivateUse + byte);
}

char16_t characterOf(std::size_t byte, std::int32_t codePage) {
    if (byte < 0x80) return static_cast<char16_t>(byte);
    if (codePage == kSymbolCodePage) return symbolOf(byte);
    const char bytes[] = {static_cast<char>(byte)};
    for (const std::int32_t page : {codePage, kWesternCodePage}) {
        const auto text = decodedText({bytes, 1}, nameOf(page).c_str());
        if (text && text->size() == 1) return text->front();
    }
    return kReplacement;
}

}  // namespace

std::optional<std::int32_t> codePageOfCharset(std::int32_t charset) {
    const auto* row = std::ranges::find(kCharsets, charset, &CharsetRow::charset);
    if (row == kCharsets.end()) return std::nullopt;
    return row->codePage;
}

void RtfCodePages::decode(std::string_view bytes, std::int32_t codePage, String& to) {
    const auto* row = std::ranges::find(kMultibytePages, codePage, &CodePageRow::codePage);
    if (row != kMultibytePages.end()) return decodeMultibyte(bytes, row->name, to);
    const Table& table = tableOf(codePage);
    for (const char byte : bytes) to += table[static_cast<unsigned char>(byte)];
}

const RtfCodePages::Table& RtfCodePages::tableOf(std::int32_t codePage) {
    std::unique_ptr<Table>& table = tables_[codePage];
    if (table == nullptr) {
        table = std::make_unique<Table>();
        for (std::size_t byte = 0; byte < table->size(); ++byte) {
            (*table)[byte] = characterOf(byte, codePage);
        }
    }
    return *table;
}

}  // namespace QZCore
