// Lists rendered by their rules one by one, for comparison: nodes under nodes,
// written by recursion, without any memory of what was worked out before.
#pragma once

#include <cmath>
#include <memory>
#include <vector>

#include "QZCore/markdown.h"
#include "platform/letters.h"
#include "support/engine_matches.h"
#include "support/markdown_settings.h"

namespace QZCore::testing {

class PlainList {
public:
    PlainList(const MarkdownSettings& settings, const RichText& markdown, bool hasTitle)
        : preferences_(settings.preferences()), styles_(settings.styles()) {
        RichText list = markdown;
        const bool endsBlank = list.string().ends_with(u"\n\n");
        prefix_ = commonAttributes(list);
        joinLines(list);
        if (endsBlank) list.deleteCharactersInRange({list.length() - 2, 2});
        readLines(list, *settings.syntax().expressionForKey(kMarkdownListLine));
        const bool indents =
            preferences_.boolForKey(u"Markdown Inline Lists Indent First Level") ||
            (hasTitle && preferences_.boolForKey(
                             u"Markdown Inline Lists Only If Titled Indent First Level", true));
        firstLevel_ = indents ? 0 : 1;
        writeChildren(root_, 0, {});
        if (endsBlank) result_.appendAttributedString(RichText(u"\n\n", prefix_));
    }

    [[nodiscard]] const RichText& result() const { return result_; }

private:
    struct Node {
        Node* parent = nullptr;
        StringView format;  // empty for a line that is no item
        RichText text;
        std::vector<std::unique_ptr<Node>> children = {};
    };

    static TextAttributes commonAttributes(const RichText& text) {
        TextAttributes common = text.attributesAtIndex(0);
        for (std::size_t i = 1; i < text.length(); ++i) {
            const TextAttributes other = text.attributesAtIndex(i);
            const TextAttributes before = common;
            for (const TextAttribute& entry : before.entries()) {
                const TextAttributes mine{{entry.name, entry.value}};
                const TextAttributes theirs{{entry.name, other.objectForKey(entry.name.text())}};
                if (!(mine == theirs)) common = common.withoutAttribute(entry.name.text());
            }
        }
        return common;
    }

    static void joinLines(RichText& list) {
        for (std::size_t i = list.length() - 1; i-- > 1;) {
            const String text = list.string();
            if (text[i] != u'\n' || !isLetter(codePointAt(text, i + 1).value)) continue;
            list.replaceCharactersInRange({i, 1}, u" ");
        }
    }

    void readLines(const RichText& list, const MarkdownExpression& listLine) {
        const String text = list.string();
        const auto items = engineMatches(&listLine, text);
        Node* parent = &root_;
        Node* last = &root_;
        std::size_t depth = 0;
        std::size_t level = 0;
        std::size_t at = 0;
        auto item = items.begin();
        while (at < text.size()) {
            std::size_t end = at;
            while (end < text.size() && !isNewline(text[end])) ++end;
            if (item != items.end() && item->range().location == at) {
                const Range blanks = item->group(1);
                level = std::min(rawLevel(text.substr(blanks.location, blanks.length)), level + 1);
                if (level > depth && last != &root_) {
                    parent = last;
                    ++depth;
                }
                for (; depth > level; --depth) parent = parent->parent;
                const char16_t marker = text[item->group(2).location];
                const bool isBullet = StringView(u"*+-").find(marker) != StringView::npos;
                const Range content = item->group(3);
                last = add(*parent, isBullet ? u"{disc}" : u"{decimal}",
                           list.attributedSubstringFromRange(content));
                end = content.end();
                ++item;
            } else if (at < end || at > 0) {
                add(*last, {}, list.attributedSubstringFromRange({at, end - at}));
            }
            at = StringView(text).substr(end, 2) == u"\r\n" ? end + 2 : end + 1;
        }
    }

    std::size_t rawLevel(StringView blanks) const {
        if (blanks.starts_with(u'\t')) return blanks.size();
        const auto perLevel = preferences_.integerForKey(u"Import List Spaces Per Indent", 4);
        return blanks.size() / static_cast<std::size_t>(std::max<std::int64_t>(1, perLevel));
    }

    static Node* add(Node& parent, StringView format, const RichText& text) {
        parent.children.push_back(std::make_unique<Node>(Node{&parent, format, text}));
        return parent.children.back().get();
    }

    static std::size_t numberOfItems(const Node& parent) {
        std::size_t number = 0;
        for (const auto& child : parent.children) number += child->format.empty() ? 0 : 1;
        return number;
    }

    void writeChildren(const Node& parent, double level, const TextLists& lists) {
        std::size_t position = 0;
        for (const auto& child : parent.children) {
            if (child->format.empty()) {
                result_.appendAttributedString(child->text);
                endLine();
                continue;
            }
            writeItem(*child, level + 1, ++position, lists);
            writeChildren(*child, level + 1, lists.with({String(child->format)}));
        }
    }

    void writeItem(const Node& item, double level, std::size_t position, const TextLists& lists) {
        const bool isNumbered = item.format == u"{decimal}";
        const bool alternates =
            preferences_.boolForKey(u"Markdown Inline Lists Alternate Discs", true);
        const String disc = alternates && std::fmod(level, 2) == 0 ? u"\u25E6" : u"\u25CF";
        const String marker =
            isNumbered ? integerString(static_cast<std::int64_t>(position)) + u"." : disc;
        const std::size_t start = result_.length();
        result_.appendAttributedString(RichText(u"\t" + marker + u"\t", prefix_));
        result_.appendAttributedString(item.text);
        const String widest = String(numberOfItems(*item.parent) / 10, u'9') + u"9.";
        const double width =
            std::ceil(sharedFontCatalog()->widthOfText(isNumbered ? widest : marker, prefixFont()));
        const double gap = number(u"Markdown Inline Lists Marker To Text Gap", 5);
        const double indent = std::max(
            width, level * width +
                       (level - firstLevel_) * number(u"Markdown Inline Lists Indentions", 9) +
                       gap);
        ParagraphStyle style = spacedStyle();
        style.textLists = lists;
        style.firstLineHeadIndent = 0;
        style.headIndent = indent;
        style.tabStops = {{TextAlignment::Right, indent - gap}, {TextAlignment::Natural, indent}};
        result_.addAttributes({{NSParagraphStyleAttributeName, Value::boxed(style)}},
                              {start, result_.length() - start});
        endLine();
    }

    void endLine() {
        const Font font = sharedFontCatalog()->userFont(12);
        result_.appendAttributedString(
            RichText(u"\n", {{NSFontAttributeName, Value::boxed(font)}}));
    }

    Font prefixFont() const {
        return prefix_.font() != nullptr ? *prefix_.font() : sharedFontCatalog()->userFont(12);
    }

    ParagraphStyle spacedStyle() const {
        const Dictionary defaults{
            {kStyleLineSpacing, number(u"Markdown Inline Lists Line Spacing", 0)},
            {kStyleParagraphSpacingAfter,
             number(u"Markdown Inline Lists Paragraph Spacing After", 0)}};
        const Value* user = styles_.find(u"-");
        const TextAttributes resolved = fontAttributesWithDefaultStyle(
            &defaults, user == nullptr ? nullptr : user->dictionary(), prefixFont());
        ParagraphStyle style;
        if (preferences_.boolForKey(u"Markdown Lists Start With Common Attributes", true) &&
            prefix_.paragraphStyle() != nullptr) {
            style = *prefix_.paragraphStyle();
        }
        style.lineSpacing = resolved.paragraphStyle()->lineSpacing;
        style.paragraphSpacingBefore = resolved.paragraphStyle()->paragraphSpacingBefore;
        style.paragraphSpacing = resolved.paragraphStyle()->paragraphSpacing;
        return style;
    }

    double number(StringView key, double otherwise) const {
        return preferences_.doubleForKey(key, otherwise);
    }

    const Preferences& preferences_;
    const StyleSheet styles_;
    TextAttributes prefix_;
    double firstLevel_ = 1;
    Node root_;
    RichText result_;
};

}  // namespace QZCore::testing
