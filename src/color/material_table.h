// The colours of the Material Design palette of 2014, as published, by shade and
// then by hue: red, pink, purple, deep purple, indigo, blue, light blue, cyan,
// teal, green, light green, lime, yellow, amber, orange, deep orange, brown, grey,
// blue grey.
//
// The last colour of each shade ends in a stray "@", which reading passes over.
// Kept as it was written.
#pragma once

#include <array>
#include <span>

#include "QZCore/foundation/text.h"

namespace QZCore {

/// A shade as it is written.
struct MaterialRow {
    StringView key;
    std::array<StringView, 19> colors;  // empty ones are none
};

inline constexpr std::array kMaterialRows{
    MaterialRow{u"50",
                {u"#ffebee", u"#fce4ec", u"#f3e5f5", u"#ede7f6", u"#e8eaf6", u"#e3f2fd", u"#e1f5fe",
                 u"#e0f7fa", u"#e0f2f1", u"#e8f5e9", u"#f1f8e9", u"#f9fbe7", u"#fffde7", u"#fff8e1",
                 u"#fff3e0", u"#fbe9e7", u"#efebe9", u"#fafafa", u"#eceff1@"}},
    MaterialRow{u"100",
                {u"#ffcdd2", u"#f8bbd0", u"#e1bee7", u"#d1c4e9", u"#c5cae9", u"#bbdefb", u"#b3e5fc",
                 u"#b2ebf2", u"#b2dfdb", u"#c8e6c9", u"#dcedc8", u"#f0f4c3", u"#fff9c4", u"#ffecb3",
                 u"#ffe0b2", u"#ffccbc", u"#d7ccc8", u"#f5f5f5", u"#cfd8dc@"}},
    MaterialRow{u"200",
                {u"#ef9a9a", u"#f48fb1", u"#ce93d8", u"#b39ddb", u"#9fa8da", u"#90caf9", u"#81d4fa",
                 u"#80deea", u"#80cbc4", u"#a5d6a7", u"#c5e1a5", u"#e6ee9c", u"#fff59d", u"#ffe082",
                 u"#ffcc80", u"#ffab91", u"#bcaaa4", u"#eeeeee", u"#b0bec5@"}},
    MaterialRow{u"300",
                {u"#e57373", u"#f06292", u"#ba68c8", u"#9575cd", u"#7986cb", u"#64b5f6", u"#4fc3f7",
                 u"#4dd0e1", u"#4db6ac", u"#81c784", u"#aed581", u"#dce775", u"#fff176", u"#ffd54f",
                 u"#ffb74d", u"#ff8a65", u"#a1887f", u"#e0e0e0", u"#90a4ae@"}},
    MaterialRow{u"400",
                {u"#ef5350", u"#ec407a", u"#ab47bc", u"#7e57c2", u"#5c6bc0", u"#42a5f5", u"#29b6f6",
                 u"#26c6da", u"#26a69a", u"#66bb6a", u"#9ccc65", u"#d4e157", u"#ffee58", u"#ffca28",
                 u"#ffa726", u"#ff7043", u"#8d6e63", u"#bdbdbd", u"#78909c@"}},
    MaterialRow{u"500",
                {u"#f44336", u"#e91e63", u"#9c27b0", u"#673ab7", u"#3f51b5", u"#2196f3", u"#03a9f4",
                 u"#00bcd4", u"#009688", u"#4caf50", u"#8bc34a", u"#cddc39", u"#ffeb3b", u"#ffc107",
                 u"#ff9800", u"#ff5722", u"#795548", u"#9e9e9e", u"#607d8b@"}},
    MaterialRow{u"600",
                {u"#e53935", u"#d81b60", u"#8e24aa", u"#5e35b1", u"#3949ab", u"#1e88e5", u"#039be5",
                 u"#00acc1", u"#00897b", u"#43a047", u"#7cb342", u"#c0ca33", u"#fdd835", u"#ffb300",
                 u"#fb8c00", u"#f4511e", u"#6d4c41", u"#757575", u"#546e7a@"}},
    MaterialRow{u"700",
                {u"#d32f2f", u"#c2185b", u"#7b1fa2", u"#512da8", u"#303f9f", u"#1976d2", u"#0288d1",
                 u"#0097a7", u"#00796b", u"#388e3c", u"#689f38", u"#afb42b", u"#fbc02d", u"#ffa000",
                 u"#f57c00", u"#e64a19", u"#5d4037", u"#616161", u"#455a64@"}},
    MaterialRow{u"800",
                {u"#c62828", u"#ad1457", u"#6a1b9a", u"#4527a0", u"#283593", u"#1565c0", u"#0277bd",
                 u"#00838f", u"#00695c", u"#2e7d32", u"#558b2f", u"#9e9d24", u"#f9a825", u"#ff8f00",
                 u"#ef6c00", u"#d84315", u"#4e342e", u"#424242", u"#37474f@"}},
    MaterialRow{u"900",
                {u"#b71c1c", u"#880e4f", u"#4a148c", u"#311b92", u"#1a237e", u"#0d47a1", u"#01579b",
                 u"#006064", u"#004d40", u"#1b5e20", u"#33691e", u"#827717", u"#f57f17", u"#ff6f00",
                 u"#e65100", u"#bf360c", u"#3e2723", u"#212121", u"#263238@"}},
    MaterialRow{u"a100",
                {u"#ff8a80", u"#ff80ab", u"#ea80fc", u"#b388ff", u"#8c9eff", u"#82b1ff", u"#80d8ff",
                 u"#84ffff", u"#a7ffeb", u"#b9f6ca", u"#ccff90", u"#f4ff81", u"#ffff8d", u"#ffe57f",
                 u"#ffd180", u"#ff9e80@"}},
    MaterialRow{u"a200",
                {u"#ff5252", u"#ff4081", u"#e040fb", u"#7c4dff", u"#536dfe", u"#448aff", u"#40c4ff",
                 u"#18ffff", u"#64ffda", u"#69f0ae", u"#b2ff59", u"#eeff41", u"#ffff00", u"#ffd740",
                 u"#ffab40", u"#ff6e40@"}},
    MaterialRow{u"a400",
                {u"#ff1744", u"#f50057", u"#d500f9", u"#651fff", u"#3d5afe", u"#2979ff", u"#00b0ff",
                 u"#00e5ff", u"#1de9b6", u"#00e676", u"#76ff03", u"#c6ff00", u"#ffea00", u"#ffc400",
                 u"#ff9100", u"#ff3d00@"}},
    MaterialRow{u"a700",
                {u"#d50000", u"#c51162", u"#aa00ff", u"#6200ea", u"#304ffe", u"#2962ff", u"#0091ea",
                 u"#00b8d4", u"#00bfa5", u"#00c853", u"#64dd17", u"#aeea00", u"#ffd600", u"#ffab00",
                 u"#ff6d00", u"#dd2c00@"}},
};

}  // namespace QZCore
