// HTML as a sequence of tags and texts.
//
// Tags, comments, raw texts and character references are told apart by the
// rules of the HTML standard, so that any text is HTML. Comments, document
// types and what else is not shown are left out. Linear in the text, however
// many attributes a tag has and whatever is left open.
#pragma once

#include <cstdint>
#include <vector>

#include "QZCore/foundation/text.h"

namespace QZCore {

/// An attribute of a tag.
struct HtmlAttribute {
    /// In lower case.
    String name;
    /// With its references resolved.
    String value;
};

enum class HtmlTokenKind : std::uint8_t { Text, StartTag, EndTag };

/// A tag or a text.
struct HtmlToken {
    HtmlTokenKind kind = HtmlTokenKind::Text;
    /// The text with its references resolved; of a tag the name in lower case.
    String text;
    /// The attributes of a start tag, in order.
    std::vector<HtmlAttribute> attributes = {};

    /// The value of the first attribute `name`, or null.
    [[nodiscard]] const String* find(StringView name) const;
};

/// Reads one token after the other.
class HtmlTokenizer {
public:
    /// `html`, whose lines end in line feeds, must outlive this.
    explicit HtmlTokenizer(StringView html) : html_(html) {}

    /// Reads the next token into `token` and returns whether there was one. The
    /// contents of elements that hold no markup, as "style", are one text.
    [[nodiscard]] bool next(HtmlToken& token);

private:
    enum class Contents : std::uint8_t { Markup, Raw, References };

    [[nodiscard]] char16_t unitAt(std::size_t at) const {
        return at < html_.size() ? html_[at] : u'\0';
    }
    [[nodiscard]] static Contents contentsOf(StringView element);
    [[nodiscard]] std::size_t endOfContents() const;
    [[nodiscard]] bool readMarkup(HtmlToken& token);
    void readText(HtmlToken& token, std::size_t end);
    [[nodiscard]] bool readTag(HtmlToken& token);
    [[nodiscard]] bool readAttributes(HtmlToken& token);
    [[nodiscard]] HtmlAttribute readAttribute();
    [[nodiscard]] String readValue();
    [[nodiscard]] String readName(StringView ends);
    void skipComment();
    void skipThrough(StringView end);
    void skipBlanks();

    StringView html_;
    std::size_t at_ = 0;
    Contents contents_ = Contents::Markup;
    String element_;            // that holds no markup
    bool isTextAhead_ = false;  // a "<" here starts no markup
};

}  // namespace QZCore
