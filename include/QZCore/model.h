// The object model: trees, attributed objects, pairs, archives, settings, undo,
// and measuring time.
#pragma once

#include "QZCore/model/archive.h"
#include "QZCore/model/archived_class.h"
#include "QZCore/model/attributed_object.h"
#include "QZCore/model/objects.h"
#include "QZCore/model/pair.h"
#include "QZCore/model/property_selector.h"
#include "QZCore/model/settings.h"
#include "QZCore/model/stopwatch.h"
#include "QZCore/model/tree_node.h"
#include "QZCore/model/undo_action.h"
#include "QZCore/model/undo_manager.h"
