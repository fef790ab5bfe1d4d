// Preferences and style sheets that a test writes as JSON.
#pragma once

#include <string>

#include "QZCore/markdown/rendering.h"
#include "tools/qznote/json_reader.h"

namespace QZCore::testing {

/// The settings of one case: {"preferences": {...}, "styles": {...}}.
class MarkdownSettings {
public:
    explicit MarkdownSettings(const std::string& json)
        : settings_(json.empty() ? Dictionary() : *qznote::readJson(json).dictionary()),
          preferences_(part(u"preferences")),
          syntax_(markdownSyntaxFromPreferences(preferences_)) {}

    [[nodiscard]] const MarkdownSyntax& syntax() const { return syntax_; }
    [[nodiscard]] const Preferences& preferences() const { return preferences_; }
    [[nodiscard]] StyleSheet styles() const { return part(u"styles"); }

private:
    [[nodiscard]] Dictionary part(StringView name) const {
        const Value value = settings_.objectForKey(name);
        return value.dictionary() == nullptr ? Dictionary() : *value.dictionary();
    }

    Dictionary settings_;
    Preferences preferences_;
    MarkdownSyntax syntax_;
};

}  // namespace QZCore::testing
