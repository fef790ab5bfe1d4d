#include "model/archive_graph.h"

#include <algorithm>
#include <utility>

namespace QZCore {

void ArchiveGraph::addObject(Walk walk) {
    starts_.push_back(references_.size());
    walks_.push_back(walk);
}

ArchiveGraph::Order ArchiveGraph::makingOrder(Number root) const {
    enum class State : std::uint8_t { New, Open, Done };
    struct Step {
        Number object;
        std::size_t next;  // of its references
    };
    std::vector<State> states(walks_.size(), State::New);
    states[0] = State::Done;
    std::vector<Number> order;
    std::vector<Step> path;
    const auto enter = [&](Number object) {
        states[object] = State::Open;
        path.push_back({object, 0});
    };
    if (states[root] == State::New) enter(root);
    while (!path.empty()) {
        Step& step = path.back();
        const auto references = referencesOf(step.object);
        if (step.next == references.size()) {
            states[step.object] = State::Done;
            order.push_back(step.object);
            path.pop_back();
            continue;
        }
        const Number object = references[step.next++];
        if (states[object] == State::Open) return {{}, u"something is inside itself"};
        if (states[object] == State::New) enter(object);
    }
    if (unfoldsTooMuch(order)) return {{}, u"objects are shared too often"};
    return {std::move(order), {}};
}

/// Who walks through what was read meets shared objects again and again, so a
/// short archive could keep a walk busy for ever.
bool ArchiveGraph::unfoldsTooMuch(std::span<const Number> order) const {
    constexpr std::uint64_t kAlwaysAllowed = 65'536;
    constexpr std::uint64_t kAllowedForEach = 16;
    const auto objects = std::ranges::count_if(
        order, [this](Number number) -> bool { return walks_[number] == Walk::Onward; });
    const std::uint64_t limit =
        kAlwaysAllowed + kAllowedForEach * static_cast<std::uint64_t>(objects);
    std::vector<std::uint64_t> unfolded(walks_.size());
    for (const Number number : order) {
        if (walks_[number] == Walk::Ended) continue;
        std::uint64_t sum = walks_[number] == Walk::Onward ? 1 : 0;
        for (const Number reference : referencesOf(number)) {
            sum += unfolded[reference];
            if (sum > limit) return true;
        }
        unfolded[number] = sum;
    }
    return false;
}

}  // namespace QZCore
