// Rich text: paragraph styles, attributes, the text itself, stored font styles
// and the font manager that turns one into the other.
#pragma once

#include "QZCore/richtext/font_attributes.h"
#include "QZCore/richtext/font_manager.h"
#include "QZCore/richtext/paragraph_style.h"
#include "QZCore/richtext/rich_text.h"
#include "QZCore/richtext/text_attributes.h"
