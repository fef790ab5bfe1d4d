#include "model/ancestry.h"

namespace QZCore {

Ancestry::Ancestry(const QZTreeNodes& nodes) {
    for (const auto& node : nodes) climbFrom(node.get());
}

/// Goes up to the first node that is known already. Ancestors that go round
/// end there, too.
void Ancestry::climbFrom(const QZTreeNode* node) {
    const std::uint32_t first = table_.count();
    while (node != nullptr && table_.add(node)) {
        parents_.push_back(table_.count());  // the next number, if the parent is new
        node = node->parent().get();
    }
    if (table_.count() == first) return;
    parents_.back() = node == nullptr ? kNone : table_.find(node);
    for (std::uint32_t number = table_.count(); number-- > first;) topDown_.push_back(number);
}

}  // namespace QZCore
