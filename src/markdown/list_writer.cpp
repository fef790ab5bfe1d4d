#include "markdown/list_writer.h"

#include <algorithm>

#include "markdown/render_text.h"
#include "richtext/attribute_names.h"

namespace QZCore {
namespace {

TextAttributes lineFeedAttributes() {
    return {
        {attributeNames().font, Value::boxed(FontManager::shared().userFont(kFontDefaultSize))}};
}

}  // namespace

ListWriter::ListWriter(ListLook look, const TextAttributes& prefix, TextLists textLists,
                       AttributePalette& palette)
    : look_(std::move(look)),
      palette_(palette),
      prefix_(palette.idOf(prefix)),
      lineFeed_(palette.idOf(lineFeedAttributes())),
      textLists_{std::move(textLists)} {}

std::uint32_t ListWriter::pushed(std::uint32_t lists, StringView markerFormat) {
    const auto next = static_cast<std::uint32_t>(textLists_.size());
    const auto [at, isNew] = numbers_.try_emplace({lists, String(markerFormat)}, next);
    if (isNew) textLists_.push_back(textLists_[lists].with({String(markerFormat)}));
    return at->second;
}

void ListWriter::writeItem(const ListItem& item, std::uint32_t lists, const FlatSlice& text,
                           RunWalk& runs, FlatWriter& out) {
    Paragraph& paragraph = paragraphOf(item, lists);
    out.append(u"\t" + look_.markerOf(item) + u"\t", inParagraph(paragraph, prefix_));
    out.append(text, runs, [&](std::uint32_t id) { return inParagraph(paragraph, id); });
    if (!out.text().ends_with(u'\n')) out.append(u"\n", lineFeed_);
}

void ListWriter::writeOther(const FlatSlice& text, RunWalk& runs, FlatWriter& out) const {
    out.append(text, runs);
    out.append(u"\n", lineFeed_);
}

/// The number of the attributes `id` with the style of the paragraph put in.
std::uint32_t ListWriter::inParagraph(Paragraph& paragraph, std::uint32_t id) {
    const std::uint32_t mark = id & kIgnoreMark;
    return mark | paragraph.ids(id & ~kIgnoreMark, [&](std::uint32_t old) {
        const TextAttributes before = palette_.at(old);
        return palette_.idOf(
            before.withAttribute(attributeNames().paragraphStyle, paragraph.style));
    });
}

ListWriter::Paragraph& ListWriter::paragraphOf(const ListItem& item, std::uint32_t lists) {
    const ParagraphKey key{lists, item.level, ListLook::widthClassOf(item)};
    if (last_ != nullptr && key == lastKey_) return *last_;
    const auto [at, isNew] = paragraphs_.try_emplace(key);
    if (isNew) at->second.style = Value::boxed(look_.styleOf(item, textLists_[lists]));
    last_ = &at->second;
    lastKey_ = key;
    return *last_;
}

}  // namespace QZCore
