#include <algorithm>
#include <mutex>
#include <utility>

#include "QZCore/model/archived_class.h"

namespace QZCore {
namespace {

struct KnownClasses {
    std::mutex mutex;
    std::vector<ArchivedClass> rows;
};

KnownClasses& knownClasses() {
    static KnownClasses& known = *new KnownClasses;
    return known;
}

}  // namespace

bool registerArchivedClass(ArchivedClass archived) {
    KnownClasses& known = knownClasses();
    const std::lock_guard lock(known.mutex);
    const auto row = std::ranges::find(known.rows, archived.name, &ArchivedClass::name);
    if (row != known.rows.end()) return *row->type == *archived.type;
    known.rows.push_back(std::move(archived));
    return true;
}

std::optional<ArchivedClass> registeredArchivedClass(StringView name) {
    KnownClasses& known = knownClasses();
    const std::lock_guard lock(known.mutex);
    const auto row = std::ranges::find(known.rows, name, &ArchivedClass::name);
    return row == known.rows.end() ? std::nullopt : std::optional(*row);
}

}  // namespace QZCore
