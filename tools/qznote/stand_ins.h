// What stands in the output for what cannot be shown there.
#pragma once

#include "QZCore/color.h"
#include "QZCore/foundation/text.h"
#include "QZCore/richtext/rich_text.h"

namespace qznote {

/// Red, green and blue from 0 to 255.
struct ColorBytes {
    int red = 0;
    int green = 0;
    int blue = 0;
};

/// The components of `color`, clamped; what is not a number counts as 0.
[[nodiscard]] ColorBytes colorBytes(const QZCore::Color& color);

/// `text` with "[a sketch 64x48]" in place of each character that stands for the
/// image in `attributes`.
[[nodiscard]] QZCore::String withImagesNamed(QZCore::StringView text,
                                             const QZCore::TextAttributes& attributes);

/// The text in `range` with its images named.
[[nodiscard]] QZCore::String plainText(const QZCore::RichText& text, QZCore::Range range);

/// `text` with control characters other than the tab as the symbols that stand
/// for them, so that it cannot steer a terminal.
[[nodiscard]] QZCore::String withVisibleControls(QZCore::StringView text);

/// Whether `unit` is a control character, the tab and line ends included.
[[nodiscard]] constexpr bool isControl(char16_t unit) {
    return unit < 0x20 || (unit >= 0x7F && unit < 0xA0);
}

}  // namespace qznote
