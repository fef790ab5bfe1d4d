// Which classes there are in which objects of an archive.
#pragma once

#include <cstdint>
#include <vector>

#include "model/archive_graph.h"

namespace QZCore {

/// A set of classes by their numbers.
class ClassSet {
public:
    void add(std::size_t number) {
        if (words_.size() <= number / 64) words_.resize(number / 64 + 1);
        words_[number / 64] |= std::uint64_t{1} << number % 64;
    }

    /// 64 classes at a time.
    [[nodiscard]] std::uint64_t word(std::size_t index) const {
        return index < words_.size() ? words_[index] : 0;
    }

private:
    std::vector<std::uint64_t> words_;
};

/// For each object of an archive its own class and, when it is a plain value,
/// those of all that it holds. What an object of a class holds is hidden in it.
class ClassUse {
public:
    ClassUse(const ArchiveGraph& graph, std::size_t classes)
        : graph_(graph), words_((classes + 63) / 64), bits_((graph.count() + 1) * words_) {}

    /// Notes an object of a class; all that it refers to has been noted.
    void note(ArchiveGraph::Number object, std::size_t classNumber, bool isPlain) {
        std::uint64_t* own = bitsOf(object);
        own[classNumber / 64] |= std::uint64_t{1} << classNumber % 64;
        if (!isPlain) return;
        for (const ArchiveGraph::Number content : graph_.referencesOf(object)) {
            const std::uint64_t* used = bitsOf(content);
            for (std::size_t i = 0; i < words_; ++i) own[i] |= used[i];
        }
    }

    /// Whether all classes in the object are in the set.
    [[nodiscard]] bool isWithin(ArchiveGraph::Number object, const ClassSet& allowed) const {
        const std::uint64_t* used = bits_.data() + object * words_;
        for (std::size_t i = 0; i < words_; ++i) {
            if ((used[i] & ~allowed.word(i)) != 0) return false;
        }
        return true;
    }

private:
    [[nodiscard]] std::uint64_t* bitsOf(ArchiveGraph::Number object) {
        return bits_.data() + object * words_;
    }

    const ArchiveGraph& graph_;
    const std::size_t words_;
    std::vector<std::uint64_t> bits_;
};

}  // namespace QZCore
