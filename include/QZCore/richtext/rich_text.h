// RichText: UTF-16 text whose stretches carry attributes.
//
// A rich text is a value. Copies are cheap: they share their contents until
// one of them is changed. The text is cut into runs, each with one set of
// attributes; two neighbouring runs never have equal sets.
//
// Look-ups and edits find their place through an index of one step for every
// 200,000 units. Edits take any range: what lies beyond the end of the text is
// ignored.
//
// Different threads may read one rich text at the same time, and may change
// different copies.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <optional>
#include <vector>

#include "QZCore/color/color.h"
#include "QZCore/export.h"
#include "QZCore/foundation/data.h"
#include "QZCore/foundation/range.h"
#include "QZCore/foundation/text.h"
#include "QZCore/foundation/value.h"
#include "QZCore/richtext/text_attributes.h"

namespace QZCore {

/// A stretch of a text with one set of attributes.
struct TextRun {
    /// Where it stands in the text.
    Range range;
    /// What all of its units carry.
    TextAttributes attributes;
};

/// Text with attributes.
class QZ_EXPORT RichText {
public:
    // ---- Making ----

    /// An empty text.
    RichText();
    /// `text`, all of it with `attributes`.
    explicit RichText(StringView text, const TextAttributes& attributes = {});

    /// The text that a page of HTML shows: fonts, colours, decorations, shifts,
    /// links, paragraphs, lists, tables with tabs, and images, of which nothing
    /// is fetched. Style sheets and styles within the page count. The font is
    /// the user's unless the page names another, links are not underlined, and
    /// black text has the default colour of text. A "px" is 0.75 points. HTML
    /// of 2^29 units or more cannot be read and gives nothing; any other text
    /// can. Linear in the HTML, whatever is left open or nested.
    [[nodiscard]] static std::optional<RichText> attributedStringWithHTML(StringView html);

    // ---- Reading ----

    /// The number of UTF-16 units.
    [[nodiscard]] std::size_t length() const;
    /// Whether there is no text.
    [[nodiscard]] bool empty() const { return length() == 0; }
    /// The plain text, as a copy.
    [[nodiscard]] String string() const;
    /// The plain text in `range`, as a copy.
    [[nodiscard]] String string(Range range) const;
    /// The unit at `index`; U+0000 at or beyond the end.
    [[nodiscard]] char16_t characterAtIndex(std::size_t index) const;

    /// The run that contains `index`, as far as it reaches; an empty run at the
    /// end of the text for an index at or beyond it.
    [[nodiscard]] TextRun runAtIndex(std::size_t index) const;
    /// The attributes at `index`; none at or beyond the end.
    [[nodiscard]] TextAttributes attributesAtIndex(std::size_t index) const;

    /// A value and the longest stretch around a position over which it is the
    /// same.
    struct AttributeRange {
        /// Absent where the attribute is not set.
        Value value;
        /// Where the value is the same.
        Range range;
    };
    /// The value of the attribute `name` at `index`, absent included, and the
    /// longest range around `index` within `inRange` over which it is equal.
    /// An index outside of `inRange` or of the text gives an empty range.
    [[nodiscard]] AttributeRange attributeAtIndex(StringView name, std::size_t index,
                                                  Range inRange) const;
    /// The same within the whole text.
    [[nodiscard]] AttributeRange attributeAtIndex(StringView name, std::size_t index) const;

    /// The paragraphs that `range` touches, with their ends; for an empty range
    /// the paragraph around its location.
    [[nodiscard]] Range paragraphRangeForRange(Range range) const;

    /// The part in `range` with its attributes.
    [[nodiscard]] RichText attributedSubstringFromRange(Range range) const;

    /// Whether both have the same text and the same attributes everywhere.
    [[nodiscard]] QZ_EXPORT bool operator==(const RichText& other) const;

    // ---- Walking the runs ----

    class RunIterator;
    class RunSequence;

    /// The runs in order, for a loop. The walk shows the text as it was when
    /// this was called, even when the text changes meanwhile.
    [[nodiscard]] RunSequence runs() const;
    /// The runs that touch `range`, cut to it.
    [[nodiscard]] RunSequence runs(Range range) const;
    /// The number of runs. Walks all of them.
    [[nodiscard]] std::size_t numberOfRuns() const;

    // ---- Changing the text ----

    /// Replaces the text in `range`. The new text takes the attributes of the
    /// first replaced unit; inserted text those of the unit before it, or at
    /// the start those of the unit after it.
    void replaceCharactersInRange(Range range, StringView withString);
    /// Replaces the part in `range` by another text with its own attributes.
    void replaceCharactersInRange(Range range, const RichText& withAttributedString);
    /// Inserts another text before `atIndex`.
    void insertAttributedString(const RichText& string, std::size_t atIndex);
    /// Appends another text.
    void appendAttributedString(const RichText& string);
    /// Deletes the text in `range`.
    void deleteCharactersInRange(Range range);

    // ---- Changing attributes ----

    /// Replaces all attributes in `range`.
    void setAttributes(const TextAttributes& attributes, Range range);
    /// Sets one attribute in `range`; an absent value removes it.
    void addAttribute(StringView name, const Value& value, Range range);
    /// Sets the given attributes in `range` and keeps the others.
    void addAttributes(const TextAttributes& attributes, Range range);
    /// Removes one attribute in `range`.
    void removeAttribute(StringView name, Range range);

    // ---- Asking about the whole text ----

    /// What the text has in common, without the look of links and the font of
    /// colour emoji; nothing for an empty text. To be shown as its style.
    ///
    /// A text of one run gives the attributes of that run with the font's
    /// family under `NSFontFamilyAttribute`, its size under "fontSize", and
    /// black for no colour or the default colour of text. Any other text gives:
    /// - the font, when all runs have it; else one of the same family, size,
    ///   traits and weight as far as all runs agree (regular where they do
    ///   not), or only the size under "fontSize" when the families differ;
    /// - the foreground colour of all runs, else the one of more than half of
    ///   the characters, else the one of the fewest. Deliberately the fewest:
    ///   a change then keeps the rare colours apart from the others.
    /// - background colour, underline and strikethrough that all runs have;
    /// - the paragraph style of all runs, else one with the alignment and the
    ///   line height that all runs share, if any.
    [[nodiscard]] std::optional<TextAttributes> commonAttributes() const;

    /// Whether some font in `range` belongs to a family that can have `trait`,
    /// as `FontManager::canFont` tells. An empty range asks about the font at
    /// its location. False for a location at or beyond the end.
    [[nodiscard]] bool canApplyTrait(std::uint32_t trait, Range range) const;
    /// The same for the whole text.
    [[nodiscard]] bool canApplyTrait(std::uint32_t trait) const;

    /// Whether the fonts in `range` have `trait`. Only those count whose family
    /// can have it. One that lacks the trait makes the answer false only when
    /// it stands behind one that has it: "plain, bold" has the bold trait,
    /// "bold, plain" has not. Deliberate: toggling a trait relies on it. An
    /// empty range asks about the font at its location. False for a location
    /// at or beyond the end.
    [[nodiscard]] bool doesHaveTrait(std::uint32_t trait, Range range) const;
    /// The same for the whole text.
    [[nodiscard]] bool doesHaveTrait(std::uint32_t trait) const;

    /// Whether all fonts, colour emoji left out, have one family and one size.
    [[nodiscard]] bool hasSameFontAndSize() const;
    /// Whether all foreground colours print as one string, links and colour
    /// emoji left out. No colour and the default colour of text are black.
    [[nodiscard]] bool hasSameTextColor() const;
    /// Whether any part is a link.
    [[nodiscard]] bool containsLinks() const;
    /// The link of which the whole text is a part; absent when there is none.
    [[nodiscard]] Value urlLink() const;
    /// Whether any part has the font of colour emoji.
    [[nodiscard]] bool containsAppleColorEmoji() const;
    /// Whether any paragraph stands in a text block or in a list.
    [[nodiscard]] bool containsTextBlocksOrLists() const;
    /// Whether any paragraph has a writing direction of its own, or any part
    /// an embedded one.
    [[nodiscard]] bool containsWritingDirection() const;
    /// How many `kAttachmentCharacter`s the text has.
    [[nodiscard]] std::size_t numberOfAttachments() const;

    // ---- Serialising ----

    /// The text as an RTF document: ASCII, the rest of Unicode as escapes. What
    /// RTF holds is told in "QZCore/richtext/rtf.h". PNG and JPEG images stand
    /// in the document; for others their alternative text does.
    [[nodiscard]] Data RTF() const;
    /// The text with its images as files: a ZIP archive, not compressed, of
    /// the document "TXT.rtf" and of "image-1.png" and so on, to which the
    /// document refers.
    [[nodiscard]] Data RTFD() const;
    /// `RTFD` when the text has attachments, else `RTF`.
    [[nodiscard]] Data RTForRTFD() const;

    // ---- Links ----

    /// `string` as a link to `withURL`, in `withColor` when that is given and
    /// not the clear colour, underlined or with the underline style 0.
    [[nodiscard]] static RichText hyperlinkFromString(StringView string, const Value& withURL,
                                                      const std::optional<Color>& withColor,
                                                      bool underline);
    /// Appends such a link.
    void appendLinkedString(StringView string, const Value& withURL,
                            const std::optional<Color>& withColor, bool underline);
    /// Shows every link in `color`; without one, or with the clear colour,
    /// links keep their colour and lose the colour of their underline. Sets
    /// the underline style of every link to 1 or 0.
    void addFormattingForLinksWithColor(const std::optional<Color>& color, bool underline);
    /// A copy with links formatted in that way.
    [[nodiscard]] RichText stringByAddingFormattingForLinksWithColor(
        const std::optional<Color>& color, bool underline) const;
    /// Takes every link away and gives its text the foreground colour and the
    /// underline style of what stands before it, or at the start of the text
    /// of what stands behind it, unless that is the last character or nothing.
    /// The three flags are not consulted: all three are always removed.
    void removeFormattingForLinksIncludingColor(bool color, bool underline, bool linkAttribute);

    // ---- Small changes ----

    /// Gives text whose foreground colour prints like `color` another one, or
    /// none. Nothing happens when both print alike.
    void replaceTextForegroundColor(const Color& color, const std::optional<Color>& withColor);
    /// Deletes every `kAttachmentCharacter`.
    void removeAttachments();
    /// Gives text in the font of colour emoji the font of what stands beside
    /// it, found as for links, or no font.
    void removeAppleColorEmoji();
    /// Appends text without attributes.
    void appendString(StringView string);
    /// Appends what `stringWithFormat` makes, without attributes.
    void appendFormat(StringView format, std::initializer_list<Value> arguments);
    /// Removes the white space at the start; that at the end stays, as
    /// `trimWhitespace` of strings has it.
    void trimWhitespace();

    /// Restyles `toRange` and keeps what deviates in it on purpose. Where the
    /// range has one value of an attribute, or none, it takes the given one.
    /// Where it has several:
    /// - fonts are replaced, and each run keeps its bold and italic;
    /// - underline, strikethrough and baseline offset stay;
    /// - a run keeps its colour when the whole text has another in common, and
    ///   likewise its paragraph style;
    /// - other attributes are replaced.
    ///
    /// A number under "fontSize" changes the size of each font only, after the
    /// fonts. Without a background among the attributes, one that all of the
    /// text has is removed from the range. Then the attributes are fixed.
    /// Nothing happens without attributes or in an empty range.
    void applyFontAttributes(const TextAttributes& attributes, Range toRange);
    /// Restyles the whole text.
    void applyFontAttributes(const TextAttributes& attributes);

    // ---- Variables ----

    /// Replaces every variable that `dictionary` gives a value for, in the order
    /// of its names, and returns how many were replaced. A name with pattern
    /// characters is a regular expression, which must also occur as it is
    /// written. See "QZCore/richtext/variables.h" for the form of variables and
    /// for `options`, a sum of `VariableOptions`.
    ///
    /// - A string is put in as it is, or in the letter case that stands behind
    ///   the first slash: "uppercase", "lowercase" or "capitalize".
    /// - A number is put in as its shortest decimal form.
    /// - A date is formatted. The name decides what is written: the date if it
    ///   contains "Date", the time if it contains "Time" or the format begins
    ///   with "WithTime". "Long" and "Full" times are medium beside a date by
    ///   the preferences "Long Date With Time Medium" (on unless set) and "Full
    ///   Date With Time Medium" (off unless set). The character before a slash
    ///   is not part of the format: "Short /uppercase" is short.
    /// - Other values, formats that are not allowed, and patterns and dates that
    ///   give no text leave the variable where it is. So does a name whose values
    ///   would make what is put in longer than 2^24 units altogether, since
    ///   values may contain variables of later names.
    ///
    /// A replacement that is a URL with "://" becomes a link in the colour of
    /// the preference "Link Color", underlined unless "Link Underline" is off.
    /// As soon as the prefix is gone no more names are tried. Nothing happens
    /// with an empty prefix or suffix, or when the preference "Ignore Variable
    /// Replacements" is on.
    std::int64_t replaceVariablesWithDictionary(const Dictionary& dictionary, StringView withPrefix,
                                                StringView suffix, std::uint32_t options);

    // ---- Editing in batches ----

    /// Opens a batch of edits. Batches nest.
    void beginEditing();
    /// Closes a batch of edits. When the outermost closes, the attributes of
    /// the paragraphs that were changed are fixed. Without an open batch
    /// nothing happens.
    void endEditing();

    /// Makes the attributes of all paragraphs that `range` touches consistent:
    /// a font that cannot show a character is replaced, for that character, by
    /// one that can; all of a paragraph takes the paragraph style of its first
    /// character; attachments stay only on `kAttachmentCharacter`.
    void fixAttributesInRange(Range range);

    // ---- Life ----

    /// A copy has no open batch of edits.
    RichText(const RichText& other);
    RichText(RichText&& other) noexcept;
    RichText& operator=(const RichText& other);
    RichText& operator=(RichText&& other) noexcept;
    ~RichText();

private:
    class Store;
    friend struct AttributeSweep;
    friend struct FlatTextAccess;

    Store& changeableStore();
    template <class Change>
    void changeAttributes(Range range, Change change);
    void noteEdit(Range range, std::size_t newLength);

    std::shared_ptr<Store> store_;
    // The edits of the open batch leave this many units untouched at the start
    // and at the end.
    std::size_t untouchedPrefix_ = 0;
    std::size_t untouchedSuffix_ = 0;
    bool edited_ = false;
    int editingDepth_ = 0;
};

/// A number that is the same for equal texts. Its cost is bounded.
[[nodiscard]] QZ_EXPORT std::size_t hashOf(const RichText& text);

/// A batch of edits that closes with its scope.
class QZ_EXPORT RichTextEditing {
public:
    /// Opens a batch on `text`, which must outlive it.
    explicit RichTextEditing(RichText& text) : text_(text) { text_.beginEditing(); }
    ~RichTextEditing() { text_.endEditing(); }
    RichTextEditing(const RichTextEditing&) = delete;
    RichTextEditing& operator=(const RichTextEditing&) = delete;

private:
    RichText& text_;
};

/// A run as a walk shows it; the attributes belong to the text.
struct TextRunView {
    /// Where it stands in the text.
    Range range;
    /// What all of its units carry.
    const TextAttributes& attributes;
};

/// Walks the runs of a text from one to the next.
class QZ_EXPORT RichText::RunIterator {
public:
    /// The run that the walk has reached.
    [[nodiscard]] TextRunView operator*() const { return {range_, *attributes_}; }
    /// Goes on to the next run.
    RunIterator& operator++();
    /// Whether both have reached the same place.
    [[nodiscard]] bool operator==(const RunIterator& other) const {
        return range_.location == other.range_.location;
    }

private:
    friend class RunSequence;
    RunIterator(const Store& store, Range range);

    void readRun(std::size_t start);

    const Store* store_;
    std::size_t end_;
    std::size_t piece_ = 0;
    std::size_t run_ = 0;
    std::size_t pieceStart_ = 0;
    Range range_;
    const TextAttributes* attributes_ = nullptr;
};

/// The runs of a text, for a loop.
class QZ_EXPORT RichText::RunSequence {
public:
    /// The first run.
    [[nodiscard]] RunIterator begin() const;
    /// The end of the walk.
    [[nodiscard]] RunIterator end() const;

private:
    friend class RichText;
    RunSequence(std::shared_ptr<const Store> store, Range range)
        : store_(std::move(store)), range_(range) {}

    std::shared_ptr<const Store> store_;
    Range range_;
};

}  // namespace QZCore
