#include "richtext/rtf_writer.h"

#include <map>
#include <tuple>
#include <vector>

#include "foundation/unit_search.h"
#include "richtext/flat_text.h"
#include "richtext/paragraph_fixing.h"
#include "richtext/rtf_character_codes.h"
#include "richtext/rtf_hyperlink.h"
#include "richtext/rtf_list_table.h"
#include "richtext/rtf_paragraph_codes.h"

namespace QZCore {
namespace {

constexpr std::uint16_t kLineFeed = u'\n';
constexpr std::uint16_t kReturn = u'\r';
constexpr std::uint16_t kSeparator = 0x2029;

/// Where the paragraph around `start` may end.
std::size_t paragraphEndFrom(StringView text, std::size_t start) {
    return findFirst(text, start,
                     [](auto c) { return (c == kLineFeed) | (c == kReturn) | (c == kSeparator); });
}

/// Writes the text paragraph by paragraph, and the tables in front of it at
/// the end, when it is known what they hold.
class RtfWriter {
public:
    RtfWriter(const FlatText& text, RtfPictures& pictures)
        : text_(text), pictures_(pictures), codes_(text.palette.size()) {}

    [[nodiscard]] Data write() {
        body_.reserve(2 * text_.text.size());
        while (at_ < text_.text.size()) writeParagraph();
        closeRun();
        body_.closeGroup();
        RtfOutput head;
        head.mark("{\\rtf1\\ansi\\ansicpg1252\\uc1\n");
        tables_.fonts.write(head);
        tables_.colors.write(head);
        lists_.write(head);
        Data document;
        document.reserve(head.bytes().size() + body_.bytes().size());
        document.assign(head.bytes().begin(), head.bytes().end());
        document.insert(document.end(), body_.bytes().begin(), body_.bytes().end());
        return document;
    }

private:
    /// A paragraph: its text, and its end, which may be of two units.
    struct Paragraph {
        std::size_t contentEnd;
        std::size_t end;
    };

    [[nodiscard]] Paragraph paragraphAt(std::size_t start) const {
        const StringView text = text_.text;
        const std::size_t end = paragraphEndFrom(text, start);
        if (end == text.size()) return {end, end};
        return {end, paragraphEndsBefore(text, end + 1) ? end + 1 : end + 2};
    }

    void writeParagraph() {
        const Paragraph paragraph = paragraphAt(at_);
        const ParagraphStyle* found = attributes().paragraphStyle();
        const ParagraphStyle& style = found == nullptr ? plainStyle_ : *found;
        const StringView content = StringView(text_.text).substr(at_, paragraph.contentEnd - at_);
        const auto item = rtfListItemIn(content, style);
        if (!item) lists_.endLists();
        const std::size_t list = item ? lists_.listOf(*item, style.headIndent) : 0;
        writeParagraphCodes({found, list, item ? item->level : 0}, style, item);
        if (item) writeMarker(*item);
        writeRuns(paragraph);
    }

    struct Look {
        const ParagraphStyle* style;
        std::size_t list;
        std::size_t level;

        friend bool operator<(const Look& a, const Look& b) {
            return std::tie(a.style, a.list, a.level) < std::tie(b.style, b.list, b.level);
        }
    };

    /// Paragraphs look like the one before unless something else is said.
    void writeParagraphCodes(const Look& look, const ParagraphStyle& style,
                             const std::optional<RtfListItem>& item) {
        std::string& codes = looks_[look];
        if (codes.empty()) {
            codes = item ? itemCodes(look, style, *item) : rtfParagraphCodes(style, tables_);
        }
        if (codes == look_) return;
        look_ = codes;
        body_.words(look_);
    }

    /// The reader draws the marker at the indent of the first line, and a tab
    /// behind it.
    std::string itemCodes(const Look& look, ParagraphStyle style, const RtfListItem& item) {
        style.firstLineHeadIndent = item.markerStop;
        style.tabStops.clear();
        RtfOutput codes;
        codes.words(rtfParagraphCodes(style, tables_));
        codes.word("ls", static_cast<std::int64_t>(look.list));
        codes.word("ilvl", static_cast<std::int64_t>(look.level));
        return codes.bytes();
    }

    void writeMarker(const RtfListItem& item) {
        body_.openGroup();
        body_.word("listtext");
        body_.words(codesOf(id()));
        body_.text(item.marker);
        body_.word("tab");
        body_.closeGroup();
        advanceTo(at_ + item.markerLength);
    }

    void writeRuns(const Paragraph& paragraph) {
        while (at_ < paragraph.contentEnd) {
            const std::size_t end =
                std::min<std::size_t>(text_.runs[run_].end, paragraph.contentEnd);
            const bool isLast = end == paragraph.contentEnd;
            writeRun(end, isLast && end < paragraph.end && text_.runs[run_].end > end);
        }
        if (at_ < paragraph.end && !endIsWritten_) writeRun(paragraph.contentEnd, true);
        endIsWritten_ = false;
        advanceTo(paragraph.end);
    }

    /// The text up to `end`, all of one look; with the end of the paragraph
    /// when that looks the same.
    void writeRun(std::size_t end, bool withParagraphEnd) {
        const TextAttributes& look = attributes();
        const Value* link = look.link();
        if (link != nullptr) openField(*link);
        openRun(codesOf(id()));
        writeText(look, end);
        if (withParagraphEnd) body_.paragraphEnd();
        endIsWritten_ = withParagraphEnd;
        if (link != nullptr || withParagraphEnd) closeRun();
        if (link != nullptr) body_.mark("}}");
        advanceTo(end);
    }

    void openField(const Value& link) {
        closeRun();
        body_.openGroup();
        body_.word("field");
        body_.openIgnorableGroup("fldinst");
        body_.text(hyperlinkInstruction(link));
        body_.mark("}{");
        body_.word("fldrslt");
    }

    /// Each look stands in a group of its own, which is what all readers
    /// understand. Neighbours that look the same share it.
    void openRun(std::string_view codes) {
        if (codes == runCodes_) return;
        closeRun();
        if (codes.empty()) return;
        body_.openGroup();
        body_.words(codes);
        runCodes_ = codes;
    }

    void closeRun() {
        if (!runCodes_.empty()) body_.closeGroup();
        runCodes_ = {};
    }

    void writeText(const TextAttributes& look, std::size_t end) {
        const StringView text = StringView(text_.text).substr(at_, end - at_);
        const TextAttachment* attachment = look.attachment();
        if (attachment == nullptr) return body_.text(text);
        for (const char16_t unit : text) {
            if (unit == kAttachmentCharacter) {
                pictures_.write(*attachment, body_);
            } else {
                body_.text({&unit, 1});
            }
        }
    }

    [[nodiscard]] std::uint32_t id() const { return text_.runs[run_].id; }
    [[nodiscard]] const TextAttributes& attributes() const { return text_.palette.at(id()); }

    [[nodiscard]] const std::string& codesOf(std::uint32_t id) {
        if (codes_[id].empty()) codes_[id] = rtfCharacterCodes(text_.palette.at(id), tables_);
        return codes_[id];
    }

    void advanceTo(std::size_t position) {
        at_ = position;
        while (run_ < text_.runs.size() && text_.runs[run_].end <= position) ++run_;
    }

    const ParagraphStyle plainStyle_;
    const FlatText& text_;
    RtfPictures& pictures_;
    RtfTables tables_;
    RtfListTable lists_;
    RtfOutput body_;
    std::vector<std::string> codes_;  // by the numbers of attributes
    std::map<Look, std::string> looks_;
    std::string_view look_;      // of the paragraph before
    std::string_view runCodes_;  // of the open run
    bool endIsWritten_ = false;
    std::size_t at_ = 0;
    std::size_t run_ = 0;
};

}  // namespace

Data rtfDocument(const RichText& text, RtfPictures& pictures) {
    const FlatText flat = FlatTextAccess::flattened(text, {0, kFlatTextLimit - 1});
    return RtfWriter(flat, pictures).write();
}

}  // namespace QZCore
