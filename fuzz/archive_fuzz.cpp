// What is read from an archive can be archived, and comes back as the same; a
// tree that was read can be walked, and an attributed object be compared.

#include "QZCore/foundation/dictionary.h"
#include "QZCore/model/archive.h"
#include "QZCore/model/attributed_object.h"
#include "QZCore/model/tree_node.h"
#include "QZCore/platform/fonts.h"
#include "QZCore/richtext/rich_text.h"
#include "require.h"

using namespace QZCore;

namespace {

void checkTree(const QZTreeNode& root) {
    const QZTreeNodes nodes = root.allChildrenRecursively();
    require(nodes.size() == root.numberOfAllChildrenRecursively());
    require(root.maxLevel() <= nodes.size());
    require(root.copyWithZone()->numberOfAllChildrenRecursively() == nodes.size());
    require(QZTreeNode::removeDescendantsFromNodesInArray(nodes).size() <= nodes.size());
    require(!root.description().empty());
}

void checkText(const RichText& text) {
    const RichText copy = text.attributedSubstringFromRange({0, text.length()});
    require(copy == text && hashOf(copy) == hashOf(text));
    require(!text.RTF().empty());
}

void checkAttributes(const QZAttributedObject& object) {
    require(!object.description().empty());
    const auto copy = object.copyWithZone();  // without absent elements of arrays
    require(copy->copyWithZone()->hash() == copy->hash());
    QZAttributedObject other;
    other.setAttributesFromObject(object);
    other.setAttribute(Value(), u"a");
    for (const auto& [key, value] : object.attributes()) {
        if (const auto* text = value.boxedValue<RichText>()) checkText(*text);
    }
}

/// How exactly a value comes back. What is shared between attributes of texts
/// and elsewhere need not be shared afterwards: equal attributes are kept once.
enum class Law { SameBytes, SameDescription };

void checkArchive(DataView bytes, const ArchiveClasses& classes, Law law) {
    const PropertyListResult read = unarchivedValue(bytes, classes);
    require(read.error.empty() || read.value.isAbsent());
    if (!read.error.empty()) return;
    if (const auto root = objectIn<QZTreeNode>(read.value)) checkTree(*root);
    if (const auto root = objectIn<QZAttributedObject>(read.value)) checkAttributes(*root);
    if (const auto* root = read.value.boxedValue<RichText>()) checkText(*root);

    for (const ArchiveCoding coding : {ArchiveCoding::Keyed, ArchiveCoding::Sequential}) {
        const PropertyListData written = archivedData(read.value, classes, coding);
        require(written.data.has_value());
        const PropertyListResult again = unarchivedValue(*written.data, classes);
        require(again.error.empty());
        const PropertyListData rewritten = archivedData(again.value, classes, coding);
        require(rewritten.data.has_value());
        require(again.value.description() == read.value.description());
        if (law == Law::SameBytes) require(rewritten.data == written.data);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool fontsAreMadeUp = [] {
        (void)setSharedFontCatalog(makeInMemoryFontCatalog());
        return true;
    }();
    require(fontsAreMadeUp);
    checkArchive({data, size}, {.objects = {archivedClass<QZTreeNode>(u"QZTreeNode")}},
                 Law::SameBytes);
    checkArchive({data, size}, QZAttributedObject().archivableClasses(), Law::SameDescription);
    return 0;
}
