// Text and data codecs: operations on strings that the platform's own string
// type lacks.
//
// All are free functions that take the text first and return new values; only
// `trimWhitespace` changes its argument. Indices and lengths count UTF-16 code
// units. No operation throws or logs unless its comment says so; unpaired
// surrogates and NUL are characters like any other. "No string" is nothing
// (`std::nullopt`). Every function may be called from any thread.
#pragma once

#include "QZCore/codecs/character_set.h"
#include "QZCore/codecs/comparing.h"
#include "QZCore/codecs/file_names.h"
#include "QZCore/codecs/parsing.h"
#include "QZCore/codecs/transforming.h"
#include "QZCore/codecs/uuid.h"
#include "QZCore/foundation/text.h"
