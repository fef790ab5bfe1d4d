// Which elements of HTML stand in which, whatever tags are missing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <unordered_map>
#include <vector>

#include "QZCore/foundation/text.h"

namespace QZCore {

/// The open elements by name, outermost first. Every question costs the same
/// however many are open.
class HtmlNesting {
public:
    /// The number of open elements.
    [[nodiscard]] std::size_t size() const { return open_.size(); }

    /// How many elements are left when `element` starts: an item ends the item
    /// before it, a block the paragraph around it.
    [[nodiscard]] std::size_t leftByStartOf(StringView element) const;
    /// How many are left when an end tag ends `element`; all when there is none
    /// that it could end: nothing reaches out of the cell of a table.
    [[nodiscard]] std::size_t leftByEndOf(StringView element) const;

    /// Opens an element in the innermost one.
    void open(StringView element);
    /// Ends the innermost element.
    void closeInnermost();

    /// Whether an element changes the look of text only. One that is left open
    /// goes on behind the block around it.
    [[nodiscard]] static bool isFormatting(StringView element);
    /// Whether an element has no contents and no end tag.
    [[nodiscard]] static bool isVoid(StringView element);
    /// Whether what is left open in the element ends with it.
    [[nodiscard]] static bool endsFormatting(StringView element);

private:
    using Places = std::vector<std::size_t>;

    /// The place of the innermost of the elements, counted from 1; 0 for none.
    [[nodiscard]] std::size_t innermost(std::initializer_list<StringView> elements) const;
    [[nodiscard]] std::size_t innermostCell() const;

    std::unordered_map<String, Places> places_;
    std::vector<Places*> open_;
};

}  // namespace QZCore
