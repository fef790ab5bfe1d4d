#include "model/archive_rows.h"

namespace QZCore {

ArchiveRows::ArchiveRows(const ArchiveClasses& classes) {
    for (const ArchivedClass& row : classes.objects) add(row);
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        for (const ArchivedClass& part : rows_[i]->parts) add(part);
    }
    for (const PlainClass plain : classes.plain) allowed_.add(numberOf(plain));
    for (const ArchivedClass& row : classes.objects) allowed_.add(numberOf(row.name));
    for (const ArchivedClass* row : rows_) {
        ClassSet& inside = allowedInside_.emplace_back(allowed_);
        for (const ArchivedClass& part : row->parts) inside.add(numberOf(part.name));
    }
}

/// Of classes with the same name, the first counts.
void ArchiveRows::add(const ArchivedClass& row) {
    const std::size_t number = count();
    if (!byName_.try_emplace(row.name, number).second) return;
    byType_.try_emplace(*row.type, number);
    rows_.push_back(&row);
}

std::size_t ArchiveRows::numberOf(StringView name) const {
    const auto found = byName_.find(name);
    return found == byName_.end() ? kNone : found->second;
}

std::size_t ArchiveRows::numberOf(const Object& object) const {
    const auto found = byType_.find(typeid(object));
    return found == byType_.end() ? kNone : found->second;
}

}  // namespace QZCore
