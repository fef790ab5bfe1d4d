#include "runs_writer.h"

#include "QZCore/platform/fonts.h"

namespace qznote {
namespace {

using namespace QZCore;

std::string quoted(StringView text) {
    std::string line = "\"";
    for (const char byte : toUTF8(text)) {
        if (byte == '\n') {
            line += "\\n";
        } else if (byte == '\t') {
            line += "\\t";
        } else {
            if (byte == '"' || byte == '\\') line += '\\';
            line += byte;
        }
    }
    return line + '"';
}

std::string number(double value) { return toUTF8(shortestString(value)); }

void addFont(std::string& line, const Font& font, const Font& usual) {
    if (font.familyName != usual.familyName) line += " family " + quoted(font.familyName);
    if (font.pointSize != usual.pointSize) line += " size " + number(font.pointSize);
    if ((font.traits & kFontBold) != 0) line += " bold";
    if ((font.traits & kFontItalic) != 0) line += " italic";
}

void addAttachment(std::string& line, const TextAttachment& attachment) {
    const bool caution = attachment.image != nullptr && attachment.image->isCaution;
    line += caution ? " missing-image " : " image ";
    line += number(attachment.width) + "x" + number(attachment.height) + " " +
            quoted(attachment.alternativeText);
}

/// One attribute that is no font.
void addAttribute(std::string& line, const TextAttribute& attribute) {
    const Value& value = attribute.value;
    if (const auto* color = value.boxedValue<Color>()) {
        line += attribute.name == NSForegroundColorAttributeName ? " color " : " background ";
        line += toUTF8(color->stringForColor());
    } else if (const auto* style = value.boxedValue<ParagraphStyle>()) {
        if (*style != ParagraphStyle())
            line += " paragraph (" + toUTF8(descriptionOf(*style)) + ")";
    } else if (const auto* attachment = value.boxedValue<TextAttachment>()) {
        addAttachment(line, *attachment);
    } else if (attribute.name == NSUnderlineStyleAttributeName && value == Value(1)) {
        line += " underline";
    } else if (attribute.name == NSStrikethroughStyleAttributeName && value == Value(1)) {
        line += " strikethrough";
    } else {
        line += " " + toUTF8(attribute.name.text()) + " " + quoted(value.description());
    }
}

}  // namespace

std::string runLines(const RichText& text) {
    constexpr double kUsualSize = 12;
    const Font usual = sharedFontCatalog()->userFont(kUsualSize);
    std::string lines;
    for (const TextRunView run : text.runs()) {
        lines += quoted(text.string(run.range));
        if (const Font* font = run.attributes.font()) addFont(lines, *font, usual);
        for (const TextAttribute& attribute : run.attributes.entries()) {
            if (!(attribute.name == NSFontAttributeName)) addAttribute(lines, attribute);
        }
        lines += "\n";
    }
    return lines;
}

}  // namespace qznote
