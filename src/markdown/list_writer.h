// List items as paragraphs of a flat text.
#pragma once

#include <cstdint>
#include <map>
#include <tuple>
#include <utility>
#include <vector>

#include "markdown/flat_writer.h"
#include "markdown/list_look.h"
#include "richtext/number_map.h"

namespace QZCore {

/// Writes the items of lists whose markers look alike.
class ListWriter {
public:
    /// Numbers attributes by `palette`, which must outlive this. `prefix` are
    /// the attributes of the markers, `textLists` the lists around each list
    /// itself.
    ListWriter(ListLook look, const TextAttributes& prefix, TextLists textLists,
               AttributePalette& palette);

    /// The text lists around the list itself, by their number.
    static constexpr std::uint32_t kOutermost = 0;
    /// The number of the text lists `lists` with one more inside.
    [[nodiscard]] std::uint32_t pushed(std::uint32_t lists, StringView markerFormat);

    /// Adds an item that stands in the text lists `lists` as a paragraph.
    void writeItem(const ListItem& item, std::uint32_t lists, const FlatSlice& text, RunWalk& runs,
                   FlatWriter& out);
    /// Adds a line that is no item as a paragraph.
    void writeOther(const FlatSlice& text, RunWalk& runs, FlatWriter& out) const;
    /// Adds text with the attributes of the markers.
    void writePlain(StringView text, FlatWriter& out) const { out.append(text, prefix_); }

private:
    /// Items with the same key share their paragraph style.
    struct ParagraphKey {
        std::uint32_t lists = 0;
        std::uint32_t level = 0;
        std::size_t widthClass = 0;

        friend bool operator==(const ParagraphKey&, const ParagraphKey&) = default;
        friend bool operator<(const ParagraphKey& a, const ParagraphKey& b) {
            return std::tie(a.lists, a.level, a.widthClass) <
                   std::tie(b.lists, b.level, b.widthClass);
        }
    };

    /// A paragraph style, and sets of attributes with it put in.
    struct Paragraph {
        Value style;
        NumberMap ids;
    };

    [[nodiscard]] Paragraph& paragraphOf(const ListItem& item, std::uint32_t lists);
    [[nodiscard]] std::uint32_t inParagraph(Paragraph& paragraph, std::uint32_t id);

    ListLook look_;
    AttributePalette& palette_;
    std::uint32_t prefix_;
    std::uint32_t lineFeed_;
    std::vector<TextLists> textLists_;  // by number, the outermost first
    std::map<std::pair<std::uint32_t, String>, std::uint32_t> numbers_;
    std::map<ParagraphKey, Paragraph> paragraphs_;
    ParagraphKey lastKey_;
    Paragraph* last_ = nullptr;
};

}  // namespace QZCore
