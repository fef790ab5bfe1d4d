// Markdown: the dialect's syntax, its detection in plain text, and its rendering
// into rich text under a style sheet, and rich text written back.
#pragma once

#include "QZCore/markdown/detection.h"
#include "QZCore/markdown/emoji.h"
#include "QZCore/markdown/lists.h"
#include "QZCore/markdown/rendering.h"
#include "QZCore/markdown/style_sheet.h"
#include "QZCore/markdown/syntax.h"
#include "QZCore/markdown/writing.h"
