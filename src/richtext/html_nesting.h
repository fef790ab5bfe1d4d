// Which elements of HTML stand in which, whatever tags are missing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <unordered_map>
#include <vector>

#include "richtext/html_elements.h"

namespace QZCore {

/// The open elements by their numbers, outermost first. Every question costs
/// the same however many are open.
class HtmlNesting {
public:
    /// The number of the element `name`.
    [[nodiscard]] std::uint32_t numberOf(StringView name);

    /// The number of open elements.
    [[nodiscard]] std::size_t size() const { return open_.size(); }

    /// How many elements are left when `element` starts: an item ends the item
    /// before it, a block the paragraph around it.
    [[nodiscard]] std::size_t leftByStartOf(std::uint32_t element) const;
    /// How many are left when an end tag ends `element`; all when there is none
    /// that it could end: nothing reaches out of the cell of a table.
    [[nodiscard]] std::size_t leftByEndOf(std::uint32_t element) const;

    /// Opens an element in the innermost one.
    void open(std::uint32_t element);
    /// Ends the innermost element.
    void closeInnermost();

private:
    using Numbers = std::initializer_list<std::uint32_t>;

    /// The place of the innermost of the elements, counted from 1; 0 for none.
    [[nodiscard]] std::size_t innermost(Numbers elements) const;
    [[nodiscard]] std::size_t innermostList() const;
    [[nodiscard]] std::size_t innermostBarrier() const;
    [[nodiscard]] std::size_t innermostHeading() const;

    std::vector<std::vector<std::size_t>> places_{kHtmlElementCount};  // by element
    std::vector<std::uint32_t> open_;
    std::unordered_map<String, std::uint32_t> others_;  // that are not in the table
};

}  // namespace QZCore
