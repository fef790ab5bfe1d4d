// Text and data codecs: operations on strings, dictionaries and arrays that the
// platform's own types lack.
//
// All are free functions that take what they work on first, and most return new
// values; the comment says so where one changes its argument. Indices and
// lengths count UTF-16 code units, or elements. No operation throws, or logs
// unless its comment says so; unpaired surrogates and NUL are characters like
// any other. "No string" is nothing (`std::nullopt`). Every function may be
// called from any thread.
#pragma once

#include "QZCore/codecs/arrays.h"
#include "QZCore/codecs/binary_text.h"
#include "QZCore/codecs/bzip2.h"
#include "QZCore/codecs/character_set.h"
#include "QZCore/codecs/checksums.h"
#include "QZCore/codecs/comparing.h"
#include "QZCore/codecs/deep_copies.h"
#include "QZCore/codecs/dictionaries.h"
#include "QZCore/codecs/digests.h"
#include "QZCore/codecs/envelopes.h"
#include "QZCore/codecs/file_names.h"
#include "QZCore/codecs/formatting.h"
#include "QZCore/codecs/parsing.h"
#include "QZCore/codecs/property_list_data.h"
#include "QZCore/codecs/transforming.h"
#include "QZCore/codecs/typed_access.h"
#include "QZCore/codecs/uuid.h"
#include "QZCore/foundation/text.h"
