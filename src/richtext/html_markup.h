// The ground of HTML: escaped text, elements that nest, and images as URIs.
#pragma once

#include <string>
#include <vector>

#include "QZCore/foundation/text.h"
#include "QZCore/platform/images.h"

namespace QZCore {

/// `text` as it stands in a page, between tags and in attribute values alike.
/// Control characters other than the tab and the line feed, and unpaired
/// surrogates, become U+FFFD.
[[nodiscard]] std::string escapedMarkup(StringView text);

/// The bytes of `image` as a "data:" URI.
[[nodiscard]] std::string dataUri(const Image& image);

/// An element that text stands in.
struct Element {
    /// The name of the tag.
    std::string name;
    /// The attributes with a leading blank; empty when there are none.
    std::string attributes;

    /// Exact comparison of both fields.
    friend bool operator==(const Element&, const Element&) = default;
};

/// The attribute `name` with an escaped value; nothing for an empty value.
[[nodiscard]] std::string markupAttribute(std::string_view name, StringView value);

/// The tags that start and end elements around stretches of text, nested
/// properly. What two neighbouring stretches have in common, from the outermost
/// element on, stays open between them.
class NestedElements {
public:
    /// Tags are appended to `page`, which must outlive this.
    explicit NestedElements(std::string& page) : page_(page) {}

    /// Ends and starts elements so that exactly `wanted`, outermost first, are
    /// open.
    void change(std::vector<Element> wanted);

private:
    std::string& page_;
    std::vector<Element> open_;
};

}  // namespace QZCore
