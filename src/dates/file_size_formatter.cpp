#include "QZCore/dates/file_size_formatter.h"

namespace QZCore {
namespace {

constexpr std::uint64_t kKilobyte = 1000;
constexpr std::uint64_t kMegabyte = 1000 * kKilobyte;
constexpr std::uint64_t kGigabyte = 1000 * kMegabyte;

/// `bytes` in units, halves rounded up.
std::uint64_t rounded(std::uint64_t bytes, std::uint64_t unit) {
    return bytes / unit + (bytes % unit >= unit / 2 ? 1 : 0);
}

String withOneDecimal(std::uint64_t bytes, std::uint64_t unit) {
    const std::uint64_t tenths = rounded(bytes, unit / 10);
    return unsignedString(tenths / 10) + u'.' + unsignedString(tenths % 10);
}

/// A negative integer is read as the large unsigned one with the same bits.
std::uint64_t sizeOf(const Value& number) {
    if (number.kind() != ValueKind::Integer) return number.unsignedIntegerValue();
    return static_cast<std::uint64_t>(number.integerValue());
}

String sizeText(std::uint64_t bytes) {
    if (bytes < kKilobyte) return unsignedString(bytes) + u" bytes";
    if (bytes < kMegabyte) return unsignedString(rounded(bytes, kKilobyte)) + u" KB";
    if (bytes < kGigabyte) return withOneDecimal(bytes, kMegabyte) + u" MB";
    return withOneDecimal(bytes, kGigabyte) + u" GB";
}

}  // namespace

String QZFileSizeFormatter::stringForObjectValue(const Value& object) const {
    if (object.string() != nullptr) return *object.string();
    return object.isNumber() ? sizeText(sizeOf(object)) : String();
}

bool QZFileSizeFormatter::getObjectValue(Value& /*object*/, StringView /*forString*/,
                                         String* errorDescription) const {
    if (errorDescription != nullptr) *errorDescription = u"Unable to set the file size.";
    return false;
}

}  // namespace QZCore
