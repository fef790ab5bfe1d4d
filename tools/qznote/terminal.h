// The output of a terminal.
#pragma once

#include <string>
#include <utility>

#include "QZCore/richtext/rich_text.h"

namespace qznote {

/// Collects lines, and knows what is switched on in the one at hand.
class Terminal {
public:
    /// Adds text in the look of `attributes`. Control characters other than the
    /// tab are shown as symbols.
    void write(QZCore::StringView text, const QZCore::TextAttributes& attributes);

    /// Adds text without any look.
    void write(QZCore::StringView text) { write(text, {}); }

    /// Gives the line from here to the edge of the window the background of
    /// `attributes`.
    void fillLine(const QZCore::TextAttributes& attributes);

    /// Ends the line with everything switched off.
    void endLine();

    /// All that was written.
    [[nodiscard]] std::string take() { return std::move(out_); }

private:
    void switchTo(const QZCore::TextAttributes& attributes);
    void follow(std::string target);

    std::string out_;
    std::string codes_;
    std::string target_;
};

}  // namespace qznote
