// What an RTF document defines at its start: fonts, colours and lists.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "QZCore/richtext/font_manager.h"
#include "richtext/rtf_list_item.h"
#include "richtext/rtf_words.h"

namespace QZCore {

/// The fonts that are numbered by a font table.
class RtfFonts {
public:
    /// A control word of the table.
    void word(std::string_view name, RtfNumber number);
    /// Text of the table: names, each up to a semicolon.
    void name(StringView text);
    /// Text of another name for the last font.
    void alternativeName(StringView text);

    /// The code page of the font `number`; nothing for the document's own.
    [[nodiscard]] std::optional<std::int32_t> codePageOf(std::int32_t number) const;
    /// The code page of the names that the table has reached.
    [[nodiscard]] std::optional<std::int32_t> codePageOfTable() const { return codePageOf(last_); }

    /// The installed font for the look `character`, or one that is not
    /// installed but has its name; nothing when the look asks for none.
    [[nodiscard]] std::optional<Font> fontOf(const RtfCharacter& character) const;

private:
    struct Entry {
        String name;
        String alternative;
        bool isNamed = false;  // to the end
        std::optional<std::int32_t> codePage;
    };

    [[nodiscard]] Font fontNamed(const Entry& entry, const Font& wanted) const;

    FontManager fonts_ = FontManager::shared();
    std::unordered_map<std::int32_t, Entry> entries_;
    std::int32_t last_ = -1;
};

/// The colours that are numbered by a colour table.
class RtfColors {
public:
    void word(std::string_view name, RtfNumber number);
    /// Text of the table: each semicolon ends a colour.
    void text(StringView text);
    /// The colour `number`; nothing for the reader's own and for a number that
    /// is not in the table.
    [[nodiscard]] const std::optional<Color>& at(std::int32_t number) const;

private:
    struct Components {
        std::int32_t red = 0;
        std::int32_t green = 0;
        std::int32_t blue = 0;
    };

    std::vector<std::optional<Color>> colors_;
    std::optional<Components> next_;
    std::optional<Color> none_;
};

/// The lists of a document.
class RtfLists {
public:
    struct Level {
        std::int32_t numbering = 0;
        std::int32_t indent = 0;       // in twips
        std::int32_t firstIndent = 0;  // counted from `indent`
    };

    /// A control word of the table of lists, or of that of their overrides.
    void word(std::string_view name, RtfNumber number);
    void overrideWord(std::string_view name, RtfNumber number);
    /// The levels of the list with the override number `number`; none when
    /// there is no such list.
    [[nodiscard]] const std::vector<Level>& levelsOf(std::int32_t number) const;

private:
    std::vector<std::vector<Level>> lists_;
    std::unordered_map<std::int32_t, std::size_t> places_;  // of lists, by identifier
    std::unordered_map<std::int32_t, std::int32_t> overrides_;
    std::int32_t overridden_ = 0;
    std::vector<Level> none_;
};

/// All of them.
struct RtfDefinitions {
    RtfFonts fonts{};
    RtfColors colors{};
    RtfLists lists{};
    /// The links of the text so far, numbered from 1 on.
    std::vector<Value> links{};
};

}  // namespace QZCore
