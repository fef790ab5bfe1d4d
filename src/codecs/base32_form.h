// The form of base32 texts. They may be stored: the alphabet never changes.
#pragma once

#include "QZCore/foundation/text.h"

namespace QZCore {

/// The symbol of each value of five bits.
inline constexpr StringView kBase32Alphabet = u"23456789ABCDEFGHJKLMNPQRSTUVWXYZ";

inline constexpr std::size_t kBase32BitsInSymbol = 5;

// Eight symbols stand for five bytes.
inline constexpr std::size_t kBase32SymbolsInGroup = 8;
inline constexpr std::size_t kBase32BytesInGroup = 5;

}  // namespace QZCore
