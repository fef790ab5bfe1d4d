// The forms that notes are read from and written in.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "QZCore/foundation/data.h"
#include "QZCore/markdown/style_sheet.h"
#include "QZCore/richtext/rich_text.h"

namespace qznote {

/// What a writer knows beside the text.
struct Writing {
    /// What the text is called.
    QZCore::String title;
    /// The look of the bulk of the text.
    QZCore::TextAttributes base;
};

/// A form in which notes are written.
struct OutputFormat {
    std::string_view name;
    /// What files of the form are called, as ".md", between blanks.
    std::string_view endings;
    /// For people.
    std::string_view explanation;
    std::string (*write)(const QZCore::RichText& text, const Writing& writing);
};

/// A form from which notes are read.
struct InputFormat {
    std::string_view name;
    std::string_view endings;
    /// Nothing for what cannot be read.
    std::optional<QZCore::RichText> (*read)(QZCore::DataView bytes,
                                            const QZCore::StyleSheet& styles);
};

/// All of them, in the order in which they are explained.
[[nodiscard]] std::span<const OutputFormat> outputFormats();
/// All of them; the first is that of files without an ending of their own.
[[nodiscard]] std::span<const InputFormat> inputFormats();

/// The format of that name, or null.
template <class Format>
[[nodiscard]] const Format* formatNamed(std::span<const Format> formats, std::string_view name) {
    for (const Format& format : formats) {
        if (format.name == name) return &format;
    }
    return nullptr;
}

/// The format of a file of that name by its ending, or null.
template <class Format>
[[nodiscard]] const Format* formatOfFile(std::span<const Format> formats, std::string_view file) {
    const std::size_t dot = file.rfind('.');
    if (dot == file.npos) return nullptr;
    const std::string ending = " " + std::string(file.substr(dot)) + " ";
    for (const Format& format : formats) {
        if (format.endings.find(ending) != format.endings.npos) return &format;
    }
    return nullptr;
}

}  // namespace qznote
