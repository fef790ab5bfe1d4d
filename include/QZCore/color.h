// Colours: the value type, the strings that colours are stored as, the named
// colours, the material palette, gradients, and typed access to colours in
// dictionaries and preferences.
#pragma once

#include "QZCore/color/color.h"
#include "QZCore/color/color_bytes.h"
#include "QZCore/color/gradient.h"
#include "QZCore/color/material_colors.h"
#include "QZCore/color/named_colors.h"
#include "QZCore/color/stored_colors.h"
