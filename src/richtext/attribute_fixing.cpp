#include "richtext/attribute_fixing.h"

#include <utility>

#include "richtext/attribute_names.h"

namespace QZCore {

void AttributeFixing::fixAttributes(FlatText& text) {
    fixAttachments(text);
    paragraphs_.fixParagraphStyles(text);
    fonts_.fixFonts(text);
}

void AttributeFixing::fixAttachments(FlatText& text) {
    const auto hasAttachment = [&](const FlatRun& run) {
        return text.palette.at(run.id).attachment() != nullptr;
    };
    for (; knownIds_ < text.palette.size(); ++knownIds_) {
        hasAttachments_ |= text.palette.at(knownIds_).attachment() != nullptr;
    }
    if (!hasAttachments_) return;
    std::vector<FlatRun> fixed;
    std::uint32_t start = 0;
    bool changed = false;
    for (const FlatRun& run : text.runs) {
        if (!hasAttachment(run)) {
            appendRun(fixed, run.end, run.id);
            start = run.end;
            continue;
        }
        const std::uint32_t without =
            text.palette.idOf(text.palette.at(run.id).withoutAttribute(NSAttachmentAttributeName));
        for (; start < run.end; ++start) {
            const bool keeps = text.text[start] == kAttachmentCharacter;
            changed |= !keeps;
            appendRun(fixed, start + 1, keeps ? run.id : without);
        }
    }
    if (changed) text.runs = std::move(fixed);
}

}  // namespace QZCore
