// The bytes of an input read as the script of an editing session.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "QZCore/richtext/rich_text.h"

/// Hands out numbers, ranges, texts and attributes; zeros behind the end.
class EditScript {
public:
    EditScript(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

    [[nodiscard]] bool isAtEnd() const { return at_ >= size_; }

    std::size_t below(std::size_t limit) { return byte() % limit; }

    /// A range that may reach beyond a text of `length` units, or stand nowhere.
    QZCore::Range range(std::size_t length) {
        const std::size_t location = byte() << 8 | byte();
        const std::size_t count = byte();
        if (count == 255) return {QZCore::kNotFound, below(2) * SIZE_MAX};
        return {location % (length + 3), count > 200 ? (count - 200) * 400 : count % 12};
    }

    /// Few different units, among them all that end paragraphs or stand for
    /// attachments; now and then up to `most` of the same.
    QZCore::String text(std::size_t most) {
        constexpr QZCore::StringView kUnits = u"ab C\n\r\u2029\uFFFC";
        const std::size_t size = byte();
        if (size > 240)
            return QZCore::String((size - 240) * most / 15, kUnits[below(kUnits.size())]);
        QZCore::String text(size % 6, u' ');
        for (char16_t& unit : text) unit = kUnits[below(kUnits.size())];
        return text;
    }

    QZCore::TextAttributes attributes() {
        using namespace QZCore;
        const auto number = [&](std::size_t limit) {
            const std::size_t value = below(limit);
            return value == 0 ? Value() : Value(static_cast<std::int64_t>(value));
        };
        const std::size_t alignment = below(4);
        const ParagraphStyle style{.alignment = textAlignmentForCode(std::int64_t(alignment))};
        return {
            {NSUnderlineStyleAttributeName, number(3)},
            {u"mark", number(3)},
            {NSAttachmentAttributeName, below(4) == 0 ? Value::boxed(TextAttachment()) : Value()},
            {NSParagraphStyleAttributeName, alignment == 0 ? Value() : Value::boxed(style)}};
    }

private:
    std::size_t byte() { return isAtEnd() ? 0 : data_[at_++]; }

    const std::uint8_t* data_;
    std::size_t size_;
    std::size_t at_ = 0;
};
