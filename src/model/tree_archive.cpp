#include <utility>

#include "QZCore/model/archive.h"
#include "QZCore/model/tree_node.h"

namespace QZCore {
namespace {

// Stored in documents.
constexpr StringView kDataKey = u"Data";
constexpr StringView kChildrenKey = u"Children";

/// The children as a value. Nodes without any share one list.
Value listOf(const QZTreeNodes& children) {
    static const Value& none = *new Value(Array());
    if (children.empty()) return none;
    Array list;
    list.reserve(children.size());
    for (const auto& child : children) list.push_back(Value(child));
    return list;
}

/// The nodes of a list; nothing when it holds something else.
std::optional<QZTreeNodes> nodesIn(const Value& list) {
    if (list.array() == nullptr) return std::nullopt;
    QZTreeNodes nodes;
    for (const Value& element : *list.array()) {
        nodes.push_back(objectIn<QZTreeNode>(element));
        if (nodes.back() == nullptr) return std::nullopt;
    }
    return nodes;
}

}  // namespace

void QZTreeNode::encodeWithCoder(ArchiveEncoder& coder) const {
    Value children = hasList() ? listOf(this->children()) : Value();
    if (!coder.allowsKeyedCoding()) {
        coder.encodeObject(data_);
        coder.encodeObject(std::move(children));
        return;
    }
    if (!data_.isAbsent()) coder.encodeObject(data_, kDataKey);
    if (!children.isAbsent()) coder.encodeObject(std::move(children), kChildrenKey);
}

std::shared_ptr<QZTreeNode> QZTreeNode::initWithCoder(ArchiveDecoder& coder) {
    auto node = treeNodeWithData({});
    return node->readFromCoder(coder) ? node : nullptr;
}

bool QZTreeNode::readFromCoder(ArchiveDecoder& coder) {
    const bool isKeyed = coder.allowsKeyedCoding();
    auto data = isKeyed ? coder.decodeObjectForKey(kDataKey) : coder.decodeObject();
    const auto children = isKeyed ? coder.decodeObjectForKey(kChildrenKey) : coder.decodeObject();
    if (!data || !children) return false;
    data_ = *std::move(data);
    if (children->isAbsent()) {
        list_ = std::make_unique<ChildList>();
        list_->isMissing = true;
        return true;
    }
    const auto nodes = nodesIn(*children);
    if (!nodes) return false;
    setChildren(*nodes);
    return true;
}

}  // namespace QZCore
