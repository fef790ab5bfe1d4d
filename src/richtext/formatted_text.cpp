#include "QZCore/richtext/formatted_text.h"

namespace QZCore {

RichText attributedStringForObjectValue(const Formatter& formatter, const Value& object,
                                        const TextAttributes& withDefaultAttributes) {
    return RichText(formatter.stringForObjectValue(object), withDefaultAttributes);
}

}  // namespace QZCore
