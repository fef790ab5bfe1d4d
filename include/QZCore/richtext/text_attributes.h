// TextAttributes: the formatting of one stretch of rich text.
//
// A set of attributes is an immutable value from names to values. Equal sets
// are stored once in the process, so copying and comparing one costs the same
// whatever it holds. Sets may be used from any thread.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <vector>

#include "QZCore/color/color.h"
#include "QZCore/export.h"
#include "QZCore/foundation/text.h"
#include "QZCore/foundation/value.h"
#include "QZCore/platform/fonts.h"
#include "QZCore/platform/images.h"
#include "QZCore/richtext/paragraph_style.h"

namespace QZCore {

// ---- Attribute names --------------------------------------------------------

/// The name of an attribute. Each name is stored once in the process, so that
/// copying and comparing one costs little.
class QZ_EXPORT AttributeName {
public:
    /// The name `text`.
    AttributeName(StringView text);
    /// The name `text`.
    AttributeName(const char16_t* text) : AttributeName(StringView(text)) {}
    /// The name `text`.
    AttributeName(const String& text) : AttributeName(StringView(text)) {}

    /// The name as text.
    [[nodiscard]] const String& text() const { return *text_; }
    /// Whether both are the same name.
    [[nodiscard]] bool operator==(const AttributeName& other) const { return text_ == other.text_; }
    /// Whether the name is `text`.
    [[nodiscard]] bool operator==(StringView text) const { return *text_ == text; }

private:
    const String* text_;
};

/// A `Font`.
inline constexpr StringView NSFontAttributeName = u"font";
/// A `Color`; an absent one counts as black.
inline constexpr StringView NSForegroundColorAttributeName = u"foregroundColor";
/// A `Color`; an absent one means that the background shows through.
inline constexpr StringView NSBackgroundColorAttributeName = u"backgroundColor";
/// An integer: 0 none, 1 single.
inline constexpr StringView NSUnderlineStyleAttributeName = u"underlineStyle";
/// A `Color`; an absent one means the foreground colour.
inline constexpr StringView NSUnderlineColorAttributeName = u"underlineColor";
/// An integer: 0 none, 1 single.
inline constexpr StringView NSStrikethroughStyleAttributeName = u"strikethroughStyle";
/// A number of points, upwards.
inline constexpr StringView NSBaselineOffsetAttributeName = u"baselineOffset";
/// An integer level, positive up, negative down.
inline constexpr StringView NSSuperscriptAttributeName = u"superscript";
/// A `ParagraphStyle`.
inline constexpr StringView NSParagraphStyleAttributeName = u"paragraphStyle";
/// A `URL` or a string.
inline constexpr StringView NSLinkAttributeName = u"link";
/// A `TextAttachment`, carried by one `kAttachmentCharacter`.
inline constexpr StringView NSAttachmentAttributeName = u"attachment";
/// An array of numbers: embedded writing directions.
inline constexpr StringView NSWritingDirectionAttributeName = u"writingDirection";
/// A string: the family of the font, in results that describe a whole text.
inline constexpr StringView NSFontFamilyAttribute = u"fontFamily";

/// The character that stands for an attachment.
inline constexpr char16_t kAttachmentCharacter = 0xFFFC;

// ---- Attachments ------------------------------------------------------------

/// Something that is no text and stands in one: an image.
struct TextAttachment {
    /// The image; empty when there is none to show.
    std::shared_ptr<const Image> image;
    /// The size at which it is shown, in points.
    double width = 0;
    /// The height, like the width.
    double height = 0;
    /// What stands for the image where it cannot be seen.
    String alternativeText;
    /// Where the image came from; may be empty.
    String source;

    /// Whether both show an equal image in the same way.
    [[nodiscard]] QZ_EXPORT bool operator==(const TextAttachment& other) const;
};

/// A number that is the same for equal attachments.
[[nodiscard]] QZ_EXPORT std::size_t hashOf(const TextAttachment& attachment);
/// The size and the alternative text.
[[nodiscard]] QZ_EXPORT String descriptionOf(const TextAttachment& attachment);

// ---- Attributes -------------------------------------------------------------

/// One attribute: its name and its value.
struct TextAttribute {
    /// One of the names above, or the caller's own.
    AttributeName name;
    /// Never absent in a set.
    Value value;
};

/// An immutable set of attributes.
class QZ_EXPORT TextAttributes {
public:
    /// No attributes.
    TextAttributes() noexcept = default;
    /// The given attributes; a later one of the same name wins, and an absent
    /// value is left out.
    TextAttributes(std::initializer_list<TextAttribute> attributes);
    /// The given attributes, likewise.
    explicit TextAttributes(std::vector<TextAttribute> attributes);

    // ---- Reading ----

    /// Whether there are no attributes.
    [[nodiscard]] bool empty() const { return node_ == nullptr; }
    /// The attributes, sorted by name.
    [[nodiscard]] const std::vector<TextAttribute>& entries() const;
    /// The value of the attribute `name`, or null. Valid as long as a set with
    /// these attributes exists.
    [[nodiscard]] const Value* find(StringView name) const;
    /// The value of the attribute `name`; absent when there is none.
    [[nodiscard]] Value objectForKey(StringView name) const;

    // The well-known attributes by type; null or 0 when the attribute is
    // absent or holds something else.

    /// The font.
    [[nodiscard]] const Font* font() const;
    /// The foreground colour.
    [[nodiscard]] const Color* foregroundColor() const;
    /// The background colour.
    [[nodiscard]] const Color* backgroundColor() const;
    /// The paragraph style.
    [[nodiscard]] const ParagraphStyle* paragraphStyle() const;
    /// The attachment.
    [[nodiscard]] const TextAttachment* attachment() const;
    /// The link, a URL or a string.
    [[nodiscard]] const Value* link() const;
    /// The underline style; 0 is none, 1 single.
    [[nodiscard]] std::int32_t underlineStyle() const;
    /// The strikethrough style; 0 is none, 1 single.
    [[nodiscard]] std::int32_t strikethroughStyle() const;

    // ---- Making others ----

    /// These attributes with `value` under `name`; without it when the value is
    /// absent.
    [[nodiscard]] TextAttributes withAttribute(AttributeName name, const Value& value) const;
    /// These attributes without `name`.
    [[nodiscard]] TextAttributes withoutAttribute(StringView name) const;
    /// These attributes and those of `other`, which win.
    [[nodiscard]] TextAttributes mergedWith(const TextAttributes& other) const;

    /// The attributes that both hold with the same value.
    [[nodiscard]] TextAttributes intersectedWith(const TextAttributes& other) const;

    /// These attributes as they are without a link: when there is one, it is
    /// left out together with the foreground colour and the underline style
    /// that showed it.
    [[nodiscard]] TextAttributes textAttributesByRemovingLinkAttributes() const;

    // ---- Comparing ----

    /// Whether both hold equal values under the same names; of two colours
    /// also whether they are the same fixed colour. A number that is not one
    /// counts as equal to another such number.
    [[nodiscard]] bool operator==(const TextAttributes& other) const {
        return node_ == other.node_;
    }
    /// A number that is the same for equal sets.
    [[nodiscard]] std::size_t hash() const { return reinterpret_cast<std::size_t>(node_) >> 4; }

    // ---- Life ----

    TextAttributes(const TextAttributes& other) noexcept;
    TextAttributes(TextAttributes&& other) noexcept;
    TextAttributes& operator=(const TextAttributes& other) noexcept;
    TextAttributes& operator=(TextAttributes&& other) noexcept;
    ~TextAttributes();

private:
    struct Node;
    struct Table;

    explicit TextAttributes(Node* node) : node_(node) {}

    Node* node_ = nullptr;  // null stands for the empty set
};

}  // namespace QZCore
