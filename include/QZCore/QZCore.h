// The whole library.
#pragma once

#include "QZCore/bezier.h"
#include "QZCore/codecs.h"
#include "QZCore/color.h"
#include "QZCore/dates.h"
#include "QZCore/foundation.h"
#include "QZCore/geometry.h"
#include "QZCore/markdown.h"
#include "QZCore/model.h"
#include "QZCore/platform.h"
#include "QZCore/richtext.h"
