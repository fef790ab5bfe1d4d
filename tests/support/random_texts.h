// Random texts, the same on every run.
#pragma once

#include <random>

#include "QZCore/foundation/text.h"

namespace QZCore::testing {

/// Makes texts from the units of an alphabet. A small alphabet, of the units
/// that a rule speaks of, reaches its corners soonest.
class RandomTexts {
public:
    explicit RandomTexts(StringView alphabet) : alphabet_(alphabet) {}

    /// A text of 0 to `longest` units.
    [[nodiscard]] String next(std::size_t longest) {
        String text(random_() % (longest + 1), u'\0');
        for (char16_t& unit : text) unit = alphabet_[random_() % alphabet_.size()];
        return text;
    }

private:
    String alphabet_;
    std::mt19937 random_{20260101};
};

}  // namespace QZCore::testing
