// Rich text: paragraph styles, attributes, the text itself, stored font styles,
// the font manager that turns one into the other, RTF, and the editor.
#pragma once

#include "QZCore/richtext/archived_rich_text.h"
#include "QZCore/richtext/blocks.h"
#include "QZCore/richtext/editing_commands.h"
#include "QZCore/richtext/editor.h"
#include "QZCore/richtext/font_attributes.h"
#include "QZCore/richtext/font_manager.h"
#include "QZCore/richtext/formatted_text.h"
#include "QZCore/richtext/html.h"
#include "QZCore/richtext/list_items.h"
#include "QZCore/richtext/paragraph_style.h"
#include "QZCore/richtext/rich_text.h"
#include "QZCore/richtext/rtf.h"
#include "QZCore/richtext/text_attributes.h"
#include "QZCore/richtext/text_lists.h"
#include "QZCore/richtext/variables.h"
