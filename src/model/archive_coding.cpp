// What the classes in an archive see of it.

#include <algorithm>

#include "QZCore/model/archive.h"
#include "model/archive_reader.h"
#include "model/archive_writer.h"

namespace QZCore {

// ---- Encoding ----

bool ArchiveEncoder::allowsKeyedCoding() const { return writer_.coding() == ArchiveCoding::Keyed; }

// Objects are taken by value: what the caller keeps is shared then, and found
// when it is encoded once more.

void ArchiveEncoder::encodeObject(Value object, StringView forKey) {  // NOLINT(performance-*)
    if (!allowsKeyedCoding()) return writer_.failCoding();
    writer_.addContent(object, forKey);
}

void ArchiveEncoder::encodeObject(Value object) {  // NOLINT(performance-*)
    if (allowsKeyedCoding()) return writer_.failCoding();
    writer_.addContent(object);
}

void ArchiveEncoder::encodeContent(Value object, StringView forKey) {  // NOLINT(performance-*)
    if (allowsKeyedCoding()) return writer_.addContent(object, forKey);
    writer_.addContent(object);
}

// ---- Decoding ----

bool ArchiveDecoder::allowsKeyedCoding() const { return reader_.coding() == ArchiveCoding::Keyed; }

bool ArchiveDecoder::containsValueForKey(StringView key) const {
    return std::ranges::find(form_.keys, key) != form_.keys.end();
}

std::optional<Value> ArchiveDecoder::decodeObjectForKey(StringView key) const {
    return reader_.content(number_, form_.positionOf(key));
}

std::optional<Value> ArchiveDecoder::decodeObjectForKey(StringView key,
                                                        const ArchiveClasses& ofClasses) const {
    const std::size_t position = form_.positionOf(key);
    if (!reader_.isContentWithin(number_, position, ofClasses)) return std::nullopt;
    return reader_.content(number_, position);
}

std::optional<Value> ArchiveDecoder::decodeObject() {
    if (allowsKeyedCoding()) return Value();
    return reader_.content(number_, next_++);
}

std::optional<Value> ArchiveDecoder::decodeContent(StringView forKey) {
    return allowsKeyedCoding() ? decodeObjectForKey(forKey) : decodeObject();
}

}  // namespace QZCore
