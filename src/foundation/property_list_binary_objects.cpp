#include "foundation/property_list_binary_objects.h"

#include <bit>
#include <cmath>

#include "foundation/property_list_formats.h"
#include "foundation/property_list_scalars.h"

namespace QZCore {
namespace {

constexpr std::string_view kMagic = "bplist00";
constexpr std::size_t kTrailerSize = 32;

/// A count of 15 means that the real one follows.
constexpr std::uint64_t kLongCount = 15;

/// Dates count from 1 January 2001, 00:00 UTC.
constexpr double kEpoch = 978'307'200;

std::uint64_t numberFrom(DataView bytes) {
    std::uint64_t value = 0;
    for (const std::uint8_t byte : bytes) value = value << 8 | byte;
    return value;
}

double realFrom(DataView bytes) {
    const std::uint64_t bits = numberFrom(bytes);
    return bytes.size() == 4 ? std::bit_cast<float>(static_cast<std::uint32_t>(bits))
                             : std::bit_cast<double>(bits);
}

/// Integers of 8 bytes are signed, shorter ones are not. Those of 16 bytes are
/// signed, too, and must fit into 64 bits of either kind.
std::optional<Value> integerFrom(DataView bytes) {
    if (bytes.size() < 8) return Value(numberFrom(bytes));
    const std::uint64_t low = numberFrom(bytes.last(8));
    const auto signedLow = static_cast<std::int64_t>(low);
    if (bytes.size() == 8) return Value(signedLow);
    const std::uint64_t high = numberFrom(bytes.first(8));
    if (high == 0) return Value(low);
    if (high == UINT64_MAX && signedLow < 0) return Value(signedLow);
    return std::nullopt;
}

std::optional<Value> dateFrom(DataView bytes) {
    const Date date{realFrom(bytes) + kEpoch};
    if (!(std::abs(date.secondsSince1970) <= kFarthestDate)) return std::nullopt;
    return Value(date);
}

std::optional<Value> textFrom(DataView bytes, std::size_t width) {
    String text(bytes.size() / width, u'\0');
    for (std::size_t i = 0; i < text.size(); ++i) {
        const DataView unit = bytes.subspan(i * width, width);
        text[i] = static_cast<char16_t>(numberFrom(unit));
        if (width == 1 && text[i] >= 0x80) return std::nullopt;
    }
    if (!isPropertyListText(text)) return std::nullopt;
    return Value(std::move(text));
}

std::optional<Value> constantFrom(std::uint64_t which) {
    if (which == 8) return Value(false);
    if (which == 9) return Value(true);
    return std::nullopt;
}

/// Reads the count that follows as an integer object of its own.
bool takeLongCount(BinaryObject& object) {
    if (object.rest.empty()) return false;
    const std::uint8_t head = object.rest[0];
    const std::size_t size = std::size_t{1} << (head & 15U);
    if (static_cast<BinaryKind>(head >> 4) != BinaryKind::Integer || size > 8) return false;
    if (object.rest.size() - 1 < size) return false;
    object.count = numberFrom(object.rest.subspan(1, size));
    object.rest = object.rest.subspan(1 + size);
    return true;
}

bool hasLongCounts(const BinaryObject& object) {
    return object.isContainer() || object.kind == BinaryKind::Bytes ||
           object.kind == BinaryKind::Ascii || object.kind == BinaryKind::Utf16;
}

}  // namespace

bool isBinaryPropertyList(DataView bytes) { return textOf(bytes).starts_with(kMagic); }

std::optional<DataView> BinaryObject::elements(std::uint64_t number, std::size_t width) const {
    if (number > rest.size() / width) return std::nullopt;
    return rest.first(number * width);
}

std::optional<Value> BinaryObject::scalar() const {
    const auto read = [this](std::uint64_t number, std::size_t width, auto from) {
        const auto bytes = elements(number, width);
        return bytes ? from(*bytes) : std::nullopt;
    };
    const std::size_t size = std::size_t{1} << (count & 15U);
    switch (kind) {
        case BinaryKind::Constant:
            return constantFrom(count);
        case BinaryKind::Integer:
            return size <= 16 ? read(1, size, integerFrom) : std::nullopt;
        case BinaryKind::Real:
            if (size != 4 && size != 8) return std::nullopt;
            return read(1, size,
                        [](DataView bytes) { return std::optional(Value(realFrom(bytes))); });
        case BinaryKind::Date:
            return size == 8 ? read(1, size, dateFrom) : std::nullopt;
        case BinaryKind::Bytes:
            return read(count, 1, [](DataView bytes) {
                return std::optional(Value(Data(bytes.begin(), bytes.end())));
            });
        case BinaryKind::Ascii:
            return read(count, 1, [](DataView bytes) { return textFrom(bytes, 1); });
        case BinaryKind::Utf16:
            return read(count, 2, [](DataView bytes) { return textFrom(bytes, 2); });
        case BinaryKind::Reference:
            if (count >= 8) return std::nullopt;
            return read(count + 1, 1,
                        [](DataView bytes) { return std::optional(Value(numberFrom(bytes))); });
        default:
            return std::nullopt;
    }
}

std::optional<BinaryObjects> BinaryObjects::in(DataView bytes) {
    if (bytes.size() < kMagic.size() + kTrailerSize) return std::nullopt;
    const std::size_t end = bytes.size() - kTrailerSize;
    const DataView trailer = bytes.subspan(end);
    const std::size_t offsetSize = trailer[6];
    const std::size_t referenceSize = trailer[7];
    const std::uint64_t count = numberFrom(trailer.subspan(8, 8));
    const std::uint64_t top = numberFrom(trailer.subspan(16, 8));
    const std::uint64_t tableAt = numberFrom(trailer.subspan(24, 8));
    const auto isSize = [](std::size_t size) { return size >= 1 && size <= 8; };
    if (!isSize(offsetSize) || !isSize(referenceSize)) return std::nullopt;
    if (tableAt < kMagic.size() || tableAt > end) return std::nullopt;
    if (count > (end - tableAt) / offsetSize || top >= count) return std::nullopt;
    BinaryObjects found;
    found.objects_ = bytes.first(tableAt);
    found.offsets_ = bytes.subspan(tableAt, count * offsetSize);
    found.offsetSize_ = offsetSize;
    found.referenceSize_ = referenceSize;
    found.top_ = top;
    return found;
}

std::optional<BinaryObject> BinaryObjects::object(std::size_t number) const {
    const std::uint64_t at = numberFrom(offsets_.subspan(number * offsetSize_, offsetSize_));
    if (at < kMagic.size() || at >= objects_.size()) return std::nullopt;
    const std::uint8_t head = objects_[at];
    BinaryObject object{static_cast<BinaryKind>(head >> 4), head & 15U, objects_.subspan(at + 1)};
    const bool isLong = hasLongCounts(object) && object.count == kLongCount;
    if (isLong && !takeLongCount(object)) return std::nullopt;
    return object;
}

std::optional<DataView> BinaryObjects::references(const BinaryObject& container) const {
    const std::size_t perElement = container.kind == BinaryKind::Dictionary ? 2 : 1;
    return container.elements(container.count, perElement * referenceSize_);
}

std::optional<std::size_t> BinaryObjects::reference(DataView references, std::size_t index) const {
    const std::uint64_t number =
        numberFrom(references.subspan(index * referenceSize_, referenceSize_));
    if (number >= count()) return std::nullopt;
    return number;
}

}  // namespace QZCore
