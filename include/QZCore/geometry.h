// Geometry: points, sizes and rectangles in the plane, and sizes as they are
// stored.
#pragma once

#include "QZCore/geometry/plane.h"
#include "QZCore/geometry/stored_sizes.h"
