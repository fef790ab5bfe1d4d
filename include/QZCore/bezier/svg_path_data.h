// SVG path data: paths as texts like "M0,0 L10,0 C10,5 5,10 0,10 Z".
//
// What is written reads back as the same path, to the bit, in every program that
// reads numbers exactly. What is read may use all of the language: relative
// commands, horizontal and vertical lines, smooth curves, quadratic curves and
// elliptical arcs, which become cubic curves.
#pragma once

#include <cstddef>

#include "QZCore/bezier/bezier_path.h"
#include "QZCore/export.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

/// The elements as absolute commands M, L, C and Z, the coordinates with as many
/// digits as it takes to tell them from all others. A path that begins without a
/// move-to is written with "M0,0" in front, where it begins. The data end before the
/// first element that has a coordinate which is not finite: SVG cannot write those.
[[nodiscard]] QZ_EXPORT String svgPathData(const BezierPath& path);

/// What path data say, as far as they are understood.
struct SvgPathReading {
    /// The elements up to the first mistake.
    BezierPath path;
    /// How many units of the text they take, with the space around them: all, if
    /// there is no mistake.
    std::size_t length = 0;
};

/// Reads path data as a browser does: everything before the first mistake counts. A
/// mistake is what the grammar does not allow, and also a number or a coordinate
/// beyond the doubles. Of a command with several groups of arguments the whole groups
/// before it count. Text without commands is an empty path. An arc whose radii the
/// doubles cannot work with is a line.
[[nodiscard]] QZ_EXPORT SvgPathReading readSvgPathData(StringView data);

}  // namespace QZCore
