// Geometry: points, sizes and rectangles in the plane; distances, angles and
// rotation; where lines cross; the layout of rectangles; rotated rectangles;
// convex hulls.
//
// The y axis points down. Coordinates are doubles, scalar results floats: those
// are promised to the bit, and documents depend on them. The functions have C
// linkage where their signatures exist in C. Nothing keeps state; every function
// may be called from any thread, with any values.
#pragma once

#include "QZCore/geometry/angles.h"
#include "QZCore/geometry/descriptions.h"
#include "QZCore/geometry/distances.h"
#include "QZCore/geometry/hull.h"
#include "QZCore/geometry/intersections.h"
#include "QZCore/geometry/placement.h"
#include "QZCore/geometry/plane.h"
#include "QZCore/geometry/points.h"
#include "QZCore/geometry/rectangles.h"
#include "QZCore/geometry/rotated_rectangles.h"
#include "QZCore/geometry/sentinels.h"
#include "QZCore/geometry/sizes.h"
#include "QZCore/geometry/stored_sizes.h"
#include "QZCore/geometry/whole_numbers.h"
