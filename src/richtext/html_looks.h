// The looks of the elements of a page, each worked out once.
#pragma once

#include <memory>
#include <optional>
#include <unordered_map>
#include <utility>

#include "richtext/css_rules.h"
#include "richtext/html_attributes.h"
#include "richtext/html_look.h"
#include "richtext/html_tokenizer.h"

namespace QZCore {

/// What a start tag says, wherever it stands.
struct HtmlTag {
    HtmlToken token;
    std::uint32_t element = 0;  // a number of `HtmlNesting`
    CssKeys keys;
    CssDeclarations hints;
    CssDeclarations own;
};

/// An element, by its tag and by those around it.
struct HtmlStyled {
    HtmlStyled() = default;
    HtmlStyled(const HtmlStyled&) = delete;
    HtmlStyled& operator=(const HtmlStyled&) = delete;
    ~HtmlStyled();

    /// The element around; null for the outermost.
    std::shared_ptr<const HtmlStyled> around;
    std::shared_ptr<const HtmlTag> tag;
    CssPlace place;
    HtmlLook look;
    double rootFontSize = kFontDefaultSize;  // of the outermost element
    /// Made when text first needs them.
    std::optional<TextAttributes> attributes;
};

/// Gives elements their looks. Most elements of a page say what others have
/// said in the same place: the last few thousand are remembered.
class HtmlLooks {
public:
    HtmlLooks();

    /// Adds the rules of a style sheet.
    void addSheet(StringView sheet);

    /// The tag that `token` is, of the element with that number.
    [[nodiscard]] std::shared_ptr<const HtmlTag> tagOf(HtmlToken token, std::uint32_t element);
    /// The element that `tag` starts within another; null for the outermost.
    [[nodiscard]] std::shared_ptr<HtmlStyled> styled(
        const std::shared_ptr<const HtmlTag>& tag, const std::shared_ptr<const HtmlStyled>& around);
    /// The attributes of its text.
    [[nodiscard]] const TextAttributes& attributesOf(HtmlStyled& element);

private:
    using Place = std::pair<const HtmlStyled*, const HtmlTag*>;
    struct Hash {
        std::size_t operator()(const Place& place) const;
    };

    [[nodiscard]] CssKeys keysOf(const HtmlToken& token);
    [[nodiscard]] HtmlLook lookOf(const HtmlStyled& element) const;

    CssNames names_;  // go on from those of the default styles
    CssRules rules_{names_};
    HtmlAttributes attributes_;
    std::unordered_map<String, std::shared_ptr<const HtmlTag>> tags_;
    std::unordered_map<Place, std::shared_ptr<HtmlStyled>, Hash> styled_;
    String signature_;  // of the last tag
};

}  // namespace QZCore
