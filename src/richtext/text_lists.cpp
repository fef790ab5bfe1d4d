#include "QZCore/richtext/text_lists.h"

#include <algorithm>
#include <utility>

#include "foundation/hash.h"
#include "model/release.h"

namespace QZCore {

/// A list and those around it.
struct TextLists::Link {
    Link(TextList innermost, std::shared_ptr<const Link> around)
        : list(std::move(innermost)),
          outer(std::move(around)),
          size(outer == nullptr ? 1 : outer->size + 1),
          hash(hashCombine(outer == nullptr ? 0 : outer->hash, hashText(list.markerFormat))) {}
    Link(const Link&) = delete;
    Link& operator=(const Link&) = delete;
    ~Link() {
        if (outer != nullptr) Release<std::shared_ptr<const Link>>::later(std::move(outer));
    }

    TextList list;
    std::shared_ptr<const Link> outer;
    std::size_t size;
    std::size_t hash;
};

TextLists::TextLists(std::initializer_list<TextList> lists) {
    for (const TextList& list : lists) *this = with(list);
}

std::size_t TextLists::size() const { return empty() ? 0 : innermost_->size; }

TextLists TextLists::with(TextList innermost) const {
    TextLists lists;
    lists.innermost_ = std::make_shared<const Link>(std::move(innermost), innermost_);
    return lists;
}

std::vector<TextList> TextLists::lists() const {
    std::vector<TextList> lists;
    lists.reserve(size());
    for (const Link* link = innermost_.get(); link != nullptr; link = link->outer.get()) {
        lists.push_back(link->list);
    }
    std::ranges::reverse(lists);
    return lists;
}

bool operator==(const TextLists& a, const TextLists& b) {
    const TextLists::Link* mine = a.innermost_.get();
    const TextLists::Link* theirs = b.innermost_.get();
    if (a.size() != b.size() || hashOf(a) != hashOf(b)) return false;
    // Both end together, and where they share what lies around, that is equal.
    for (; mine != theirs; mine = mine->outer.get(), theirs = theirs->outer.get()) {
        if (mine->list != theirs->list) return false;
    }
    return true;
}

std::size_t hashOf(const TextLists& lists) { return lists.empty() ? 0 : lists.innermost_->hash; }

}  // namespace QZCore
