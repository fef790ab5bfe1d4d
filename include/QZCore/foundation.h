// The types that every part of the library shares: text, ranges, data, dates,
// values and their containers, the log, preferences, property lists.
#pragma once

#include "QZCore/foundation/data.h"
#include "QZCore/foundation/dictionary.h"
#include "QZCore/foundation/files.h"
#include "QZCore/foundation/log.h"
#include "QZCore/foundation/object.h"
#include "QZCore/foundation/preferences.h"
#include "QZCore/foundation/property_list.h"
#include "QZCore/foundation/range.h"
#include "QZCore/foundation/text.h"
#include "QZCore/foundation/value.h"
