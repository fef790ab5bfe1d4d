// Colours in streams of typed values: a header, an object with its class and
// the class above, the number of the model and the components.

#include <array>
#include <bit>

#include "color/legacy_color.h"
#include "color/legacy_color_space.h"

namespace QZCore {
namespace {

/// Stands before a number that does not fit one byte.
constexpr std::string_view kReal = "\x83";

constexpr std::string_view kLittleEndianStart =
    "\x04\x0B"
    "streamtyped\x81\xE8\x03";
constexpr std::string_view kBigEndianStart =
    "\x04\x0B"
    "typedstream\x81\x03\xE8";
constexpr char kColorObjectBytes[] =
    "\x84\x01@\x84\x84\x84\x07"
    "NSColor\0"
    "\x84\x84\x08"
    "NSObject\0\x85\x84\x01"
    "c";
constexpr std::string_view kColorObject{kColorObjectBytes, sizeof kColorObjectBytes - 1};

/// A walk over the bytes of a stream.
class StreamScanner {
public:
    explicit StreamScanner(DataView bytes) : rest_(textOf(bytes)) {}

    bool take(std::string_view expected) {
        if (!rest_.starts_with(expected)) return false;
        rest_.remove_prefix(expected.size());
        return true;
    }

    bool takeStart() {
        isBigEndian_ = take(kBigEndianStart);
        return isBigEndian_ || take(kLittleEndianStart);
    }

    /// A number of one byte.
    std::optional<int> takeSmall() {
        if (rest_.empty()) return std::nullopt;
        const auto number = static_cast<std::int8_t>(rest_.front());
        rest_.remove_prefix(1);
        return number;
    }

    /// A component. Whole ones are written as integers.
    std::optional<double> takeComponent() {
        if (!take(kReal)) {
            const auto whole = takeSmall();
            return whole && *whole >= 0 ? std::optional<double>(*whole) : std::nullopt;
        }
        std::uint32_t bits = 0;
        if (rest_.size() < sizeof bits) return std::nullopt;
        for (std::size_t i = 0; i < sizeof bits; ++i) {
            const auto byte = static_cast<std::uint8_t>(rest_[i]);
            const std::size_t place = isBigEndian_ ? sizeof bits - 1 - i : i;
            bits |= static_cast<std::uint32_t>(byte) << 8 * place;
        }
        rest_.remove_prefix(sizeof bits);
        return std::bit_cast<float>(bits);
    }

private:
    std::string_view rest_;
    bool isBigEndian_ = false;
};

}  // namespace

std::optional<Color> streamedLegacyColor(DataView bytes) {
    StreamScanner scanner(bytes);
    if (!scanner.takeStart() || !scanner.take(kColorObject)) return std::nullopt;
    const auto space = scanner.takeSmall();
    if (!space || !scanner.take(isWhite(*space) ? "\x84\x02"
                                                  "ff"
                                                : "\x84\x04"
                                                  "ffff")) {
        return std::nullopt;
    }
    std::array<double, 4> components{};
    const std::size_t count = isWhite(*space) ? 2 : 4;
    for (std::size_t i = 0; i < count; ++i) {
        const auto component = scanner.takeComponent();
        if (!component) return std::nullopt;
        components[i] = *component;
    }
    return legacyColorOf(*space, {components.data(), count});
}

std::optional<Color> legacyColor(DataView bytes) {
    const auto streamed = streamedLegacyColor(bytes);
    return streamed ? streamed : keyedLegacyColor(bytes);
}

}  // namespace QZCore
