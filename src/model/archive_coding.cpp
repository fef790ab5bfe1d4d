// What the classes in an archive see of it.

#include <algorithm>

#include "QZCore/model/archive.h"
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

// ---- Decoding ----

bool ArchiveDecoder::containsValueForKey(StringView key) const {
    return std::ranges::find(keys_, key) != keys_.end();
}

std::optional<Value> ArchiveDecoder::decodeObjectForKey(StringView key) const {
    const auto found = std::ranges::find(keys_, key);
    if (found == keys_.end()) return Value();
    return made_[contents_[static_cast<std::size_t>(found - keys_.begin())]];
}

std::optional<Value> ArchiveDecoder::decodeObject() {
    if (allowsKeyedCoding() || next_ == contents_.size()) return Value();
    return made_[contents_[next_++]];
}

}  // namespace QZCore
