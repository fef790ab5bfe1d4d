// The names of the library's own attributes, looked up once.
#pragma once

#include "QZCore/richtext/text_attributes.h"

namespace QZCore {

/// The names that the text system itself reads and writes.
struct AttributeNames {
    AttributeName font = NSFontAttributeName;
    AttributeName foregroundColor = NSForegroundColorAttributeName;
    AttributeName backgroundColor = NSBackgroundColorAttributeName;
    AttributeName underlineStyle = NSUnderlineStyleAttributeName;
    AttributeName strikethroughStyle = NSStrikethroughStyleAttributeName;
    AttributeName paragraphStyle = NSParagraphStyleAttributeName;
    AttributeName link = NSLinkAttributeName;
    AttributeName attachment = NSAttachmentAttributeName;
};

[[nodiscard]] inline const AttributeNames& attributeNames() {
    static const AttributeNames& names = *new AttributeNames;
    return names;
}

}  // namespace QZCore
