// A path as a plain list of what is drawn.
#pragma once

#include <vector>

#include "QZCore/bezier/bezier_path.h"

namespace QZCore::testing {

/// One element, and where it begins and ends.
struct Piece {
    PathElementType type;
    Point segment[4];  // a line has its ends only, in the first and the last place
};

/// To which move-to a close-path returns.
enum class Return { ToLastMove, ToLastMoveAfterClose };

inline std::vector<Piece> piecesOf(const BezierPath& path, Return closing = Return::ToLastMove) {
    std::vector<Piece> pieces;
    Point current;
    Point start;
    for (std::size_t i = 0; i < path.elementCount(); ++i) {
        Point p[3];
        const PathElementType type = path.elementAtIndex(i, p);
        const Point end = type == PathElementType::ClosePath
                              ? start
                              : p[type == PathElementType::CurveTo ? 2 : 0];
        const bool isAfterClose = i == 0 || pieces.back().type == PathElementType::ClosePath;
        const bool starts = closing == Return::ToLastMove || isAfterClose;
        if (type == PathElementType::MoveTo && starts) start = end;
        pieces.push_back({type, {current, p[0], p[1], end}});
        current = end;
    }
    return pieces;
}

}  // namespace QZCore::testing
