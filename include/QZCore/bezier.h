// Paths of lines and cubic Bézier curves: building and comparing them, dashes,
// rigid transforms, snapping to pixels, bounds, measurement along a path, hits,
// crossings and distances, and smooth curves from freehand strokes; connectors
// and outlines; SVG path data.
#pragma once

#include "QZCore/bezier/affine_transform.h"
#include "QZCore/bezier/bezier_path.h"
#include "QZCore/bezier/connectors.h"
#include "QZCore/bezier/cubics.h"
#include "QZCore/bezier/curve_fitting.h"
#include "QZCore/bezier/svg_path_data.h"
