#include "QZCore/geometry/stored_sizes.h"

#include <optional>

#include "QZCore/foundation/dictionary.h"
#include "QZCore/foundation/preferences.h"

namespace QZCore {
namespace {

/// Stored in documents and settings.
String sizeText(Size size) {
    return u"{" + shortestString(size.width) + u", " + shortestString(size.height) + u"}";
}

/// A walk over the parts of a size's text.
class SizeScanner {
public:
    explicit SizeScanner(StringView text) : rest_(trimmedOfWhitespaceAndNewlines(text)) {}

    bool take(char16_t sign) {
        rest_ = trimmedOfWhitespaceAndNewlines(rest_);
        if (rest_.empty() || rest_.front() != sign) return false;
        rest_.remove_prefix(1);
        return true;
    }

    bool takeNumber(double& number) {
        const ReadNumber read = readDouble(rest_);
        rest_.remove_prefix(read.length);
        number = read.value;
        return read.length > 0;
    }

    [[nodiscard]] bool isAtEnd() const { return rest_.empty(); }

private:
    StringView rest_;
};

std::optional<Size> sizeFromText(StringView text) {
    SizeScanner scanner(text);
    Size size;
    const bool isWhole = scanner.take(u'{') && scanner.takeNumber(size.width) &&
                         scanner.take(u',') && scanner.takeNumber(size.height) &&
                         scanner.take(u'}') && scanner.isAtEnd();
    return isWhole ? std::optional(size) : std::nullopt;
}

Size storedSize(const Value& stored, Size withDefault) {
    if (stored.isAbsent()) return withDefault;
    const String* text = stored.string();
    return text == nullptr ? Size() : sizeFromText(*text).value_or(Size());
}

}  // namespace

Size sizeForKey(const Dictionary& dictionary, StringView key, Size withDefault) {
    return storedSize(dictionary.objectForKey(key), withDefault);
}

void setSize(Dictionary& dictionary, Size size, StringView forKey) {
    dictionary.setObject(sizeText(size), forKey);
}

Size sizeForKey(const Preferences& preferences, StringView key, Size withDefault) {
    return storedSize(preferences.objectForKey(key), withDefault);
}

void setSize(Preferences& preferences, Size size, StringView forKey) {
    preferences.setObject(sizeText(size), forKey);
}

}  // namespace QZCore
