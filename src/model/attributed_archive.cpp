// Attributed objects in archives.

#include "QZCore/model/archive.h"
#include "QZCore/model/attributed_object.h"
#include "model/archived_boxes.h"

namespace QZCore {
namespace {

// Stored in documents.
constexpr StringView kAttributesKey = u"QZAttributes";
constexpr StringView kClassName = u"QZAttributedObject";
constexpr StringView kRichTextName = u"RichText";

}  // namespace

ArchivedClass QZAttributedObject::archived() {
    return archivedClass<QZAttributedObject>(kClassName);
}

ArchivedClass QZAttributedObject::ownClass() const { return archived(); }

ArchiveClasses QZAttributedObject::archivableClasses() const {
    ArchiveClasses classes{.objects = archivedBoxes()};
    classes.objects.push_back(archived());
    classes.objects.push_back(ownClass());
    if (auto richText = registeredArchivedClass(kRichTextName)) {
        classes.objects.push_back(*std::move(richText));
    }
    return classes;
}

void QZAttributedObject::encodeWithCoder(ArchiveEncoder& coder) const {
    coder.encodeContent(attributes_, kAttributesKey);
}

std::shared_ptr<QZAttributedObject> QZAttributedObject::initWithCoder(ArchiveDecoder& coder) {
    auto object = std::make_shared<QZAttributedObject>();
    object->readFromCoder(coder);
    return object;
}

void QZAttributedObject::readFromCoder(ArchiveDecoder& coder) {
    auto attributes = coder.allowsKeyedCoding()
                          ? coder.decodeObjectForKey(kAttributesKey, archivableClasses())
                          : coder.decodeObject();
    if (!attributes || attributes->dictionary() == nullptr) return;
    attributes_ = *std::move(attributes);
    mayBeShared_ = true;
}

}  // namespace QZCore
