// The attributes of text that looks as an element of HTML does.
#pragma once

#include <map>
#include <tuple>

#include "QZCore/richtext/font_manager.h"
#include "richtext/html_look.h"

namespace QZCore {

/// Makes attributes, each font once.
class HtmlAttributes {
public:
    /// The attributes of text in `look`, without those of its paragraph.
    [[nodiscard]] TextAttributes attributesOf(const HtmlLook& look);

private:
    using Key = std::tuple<String, double, bool, bool>;

    [[nodiscard]] const Value& fontOf(const HtmlLook& look);

    FontManager fonts_ = FontManager::shared();
    std::map<Key, Value> made_;
};

}  // namespace QZCore
