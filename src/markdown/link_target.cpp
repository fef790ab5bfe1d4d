#include "markdown/link_target.h"

#include "foundation/percent_encoding.h"
#include "markdown/escape_scanner.h"

namespace QZCore {

String withoutEscapes(StringView text) {
    String plain;
    plain.reserve(text.size());
    std::size_t copied = 0;
    for (std::size_t escape = findEscape(text, 0); escape < text.size();
         escape = findEscape(text, escape + kEscapeLength)) {
        plain.append(text, copied, escape - copied);
        copied = escape + 1;
    }
    return plain.append(text, copied);
}

std::optional<URL> urlForTarget(StringView target) {
    // A URL holds no backslash, so one without escapes stays as it is.
    if (auto url = URL::fromString(target)) return url;
    const String plain = withoutEscapes(target);
    if (auto url = URL::fromString(plain)) return url;
    return URL::fromString(percentEncoded(toUTF8(plain), kQueryBytes));
}

Value linkForTarget(StringView target) {
    if (auto url = urlForTarget(target)) return *std::move(url);
    return withoutEscapes(target);
}

}  // namespace QZCore
