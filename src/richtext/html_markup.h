// The ground of HTML: escaped text, elements that nest, and images as URIs.
#pragma once

#include <vector>

#include "QZCore/foundation/text.h"
#include "QZCore/platform/images.h"

namespace QZCore {

/// Appends `text` as it stands in a page, between tags and in attribute values
/// alike. Control characters other than the tab and the line feed, and unpaired
/// surrogates, become U+FFFD.
void appendEscaped(String& page, StringView text);

/// The bytes of `image` as a "data:" URI.
[[nodiscard]] String dataUri(const Image& image);

/// The attribute `name` with an escaped value and a blank in front; nothing for
/// an empty value.
[[nodiscard]] String markupAttribute(StringView name, StringView value);

/// An element that text stands in.
struct Element {
    Element(StringView name, StringView attributes = {});

    /// Its tags.
    String start;
    String end;

    /// Whether both start with the same tag.
    friend bool operator==(const Element& a, const Element& b) { return a.start == b.start; }
};

/// Elements in each other, the outermost first.
using Elements = std::vector<Element>;

/// The tags that start and end elements around stretches of text, nested
/// properly. What two neighbouring stretches have in common, from the outermost
/// element on, stays open between them.
class NestedElements {
public:
    /// Tags are appended to `page`, which must outlive this.
    explicit NestedElements(String& page) : page_(page) {}
    NestedElements(const NestedElements&) = delete;
    NestedElements& operator=(const NestedElements&) = delete;

    /// Ends and starts elements so that exactly those in `wanted` are open,
    /// which must live until the next change.
    void change(const Elements& wanted);
    /// Ends all that are open.
    void close() { change(none_); }

private:
    String& page_;
    const Elements none_;
    const Elements* open_ = &none_;
};

}  // namespace QZCore
