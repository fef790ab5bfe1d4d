// What formatters write, as rich text.
#pragma once

#include "QZCore/dates/formatter.h"
#include "QZCore/export.h"
#include "QZCore/foundation/value.h"
#include "QZCore/richtext/rich_text.h"

namespace QZCore {

/// The text that `formatter` writes for `object`, all of it with the given
/// attributes. The operation of every formatter, which stands here because
/// formatters know nothing of rich text.
[[nodiscard]] QZ_EXPORT RichText attributedStringForObjectValue(
    const Formatter& formatter, const Value& object, const TextAttributes& withDefaultAttributes);

}  // namespace QZCore
