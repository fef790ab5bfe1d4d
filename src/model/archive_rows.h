// The classes of an archive by number.
#pragma once

#include <typeindex>
#include <unordered_map>
#include <vector>

#include "QZCore/model/archived_class.h"
#include "model/class_use.h"

namespace QZCore {

/// The classes of a list and those that they bring along as parts. The plain
/// ones come first, by their own numbers.
class ArchiveRows {
public:
    static constexpr std::size_t kNone = SIZE_MAX;
    static constexpr std::size_t kPlainClasses = 8;

    explicit ArchiveRows(const ArchiveClasses& classes);

    /// The number of all classes.
    [[nodiscard]] std::size_t count() const { return kPlainClasses + rows_.size(); }
    /// The number of a plain class.
    [[nodiscard]] static std::size_t numberOf(PlainClass plain) {
        return static_cast<std::size_t>(plain);
    }
    /// The number of the class with a name, or `kNone`.
    [[nodiscard]] std::size_t numberOf(StringView name) const;
    /// The number of the class of `object`, or `kNone`.
    [[nodiscard]] std::size_t numberOf(const Object& object) const;

    /// The class with a number that is no plain one.
    [[nodiscard]] const ArchivedClass& operator[](std::size_t number) const {
        return *rows_[number - kPlainClasses];
    }

    /// The classes that are allowed everywhere.
    [[nodiscard]] const ClassSet& allowed() const { return allowed_; }
    /// The classes that are allowed in objects of the class with the number.
    [[nodiscard]] const ClassSet& allowedInside(std::size_t number) const {
        return allowedInside_[number - kPlainClasses];
    }

private:
    void add(const ArchivedClass& row);

    std::vector<const ArchivedClass*> rows_;
    std::unordered_map<StringView, std::size_t> byName_;
    std::unordered_map<std::type_index, std::size_t> byType_;
    ClassSet allowed_;
    std::vector<ClassSet> allowedInside_;
};

}  // namespace QZCore
