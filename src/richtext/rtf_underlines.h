// The styles of underlines that RTF knows.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace QZCore {

/// A style and its control word.
struct RtfUnderline {
    std::int32_t style;
    std::string_view word;
};

inline constexpr std::int32_t kSingleLine = 1;
inline constexpr std::int32_t kDoubleLine = 9;

/// The line stands in the low bits, its pattern in the second byte; the top
/// bit leaves out the blanks. Any other style is written as a single line.
inline constexpr std::array kRtfUnderlines{
    RtfUnderline{kSingleLine, "ul"},   RtfUnderline{2, "ulth"},
    RtfUnderline{kDoubleLine, "uldb"}, RtfUnderline{0x101, "uld"},
    RtfUnderline{0x201, "uldash"},     RtfUnderline{0x301, "uldashd"},
    RtfUnderline{0x401, "uldashdd"},   RtfUnderline{0x8001, "ulw"},
};

}  // namespace QZCore
