// What is read from an archive can be archived, and comes back as the same; and
// a tree that was read can be walked.

#include "QZCore/foundation/dictionary.h"
#include "QZCore/model/archive.h"
#include "QZCore/model/tree_node.h"
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

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ArchiveClasses classes{.objects = {archivedClass<QZTreeNode>(u"QZTreeNode")}};
    const PropertyListResult read = unarchivedValue({data, size}, classes);
    require(read.error.empty() || read.value.isAbsent());
    if (!read.error.empty()) return 0;
    if (const auto root = objectIn<QZTreeNode>(read.value)) checkTree(*root);

    for (const ArchiveCoding coding : {ArchiveCoding::Keyed, ArchiveCoding::Sequential}) {
        const PropertyListData written = archivedData(read.value, classes, coding);
        require(written.data.has_value());
        const PropertyListResult again = unarchivedValue(*written.data, classes);
        require(again.error.empty());
        require(archivedData(again.value, classes, coding).data == written.data);
    }
    return 0;
}
