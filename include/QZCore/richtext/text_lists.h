// The lists that a paragraph stands in.
//
// Lists lie in lists, and many paragraphs stand in the same ones. Paragraphs
// therefore share what lies around them: to copy lists, or to put one more
// inside of them, costs the same however deep they are.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <memory>
#include <vector>

#include "QZCore/export.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

/// A list that a paragraph belongs to.
struct TextList {
    /// The form of its markers, as "{disc}" or "{decimal}".
    String markerFormat;

    /// Whether both have the same marker format.
    friend bool operator==(const TextList&, const TextList&) = default;
};

/// Lists, each inside the one before.
class QZ_EXPORT TextLists {
public:
    /// No lists.
    TextLists() = default;
    /// The given lists, outermost first.
    TextLists(std::initializer_list<TextList> lists);

    /// Whether there is no list.
    [[nodiscard]] bool empty() const { return innermost_ == nullptr; }
    /// The number of the lists.
    [[nodiscard]] std::size_t size() const;
    /// These lists with `innermost` inside of them.
    [[nodiscard]] TextLists with(TextList innermost) const;
    /// The lists one by one, outermost first.
    [[nodiscard]] std::vector<TextList> lists() const;

    /// Whether the lists are equal one by one.
    friend QZ_EXPORT bool operator==(const TextLists& a, const TextLists& b);
    /// A number that is the same for equal lists.
    friend QZ_EXPORT std::size_t hashOf(const TextLists& lists);

private:
    struct Link;

    std::shared_ptr<const Link> innermost_;
};

}  // namespace QZCore
