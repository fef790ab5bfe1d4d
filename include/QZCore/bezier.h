// Paths of lines and cubic Bézier curves: building and comparing them, dashes,
// rigid transforms, snapping to pixels, bounds, and measurement along a path.
#pragma once

#include "QZCore/bezier/affine_transform.h"
#include "QZCore/bezier/bezier_path.h"
#include "QZCore/bezier/cubics.h"
