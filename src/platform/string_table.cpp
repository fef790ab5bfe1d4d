#include "QZCore/platform/string_table.h"

#include "platform/shared_service.h"

namespace QZCore {
namespace {

class Untranslated final : public StringTable {
public:
    [[nodiscard]] String localizedString(StringView key) const override { return String(key); }
};

SharedService<const StringTable>& sharedTable() {
    static auto& service = *new SharedService<const StringTable>(std::make_shared<Untranslated>());
    return service;
}

}  // namespace

StringTable::~StringTable() = default;

std::shared_ptr<const StringTable> sharedStringTable() { return sharedTable().current(); }

std::shared_ptr<const StringTable> setSharedStringTable(std::shared_ptr<const StringTable> table) {
    return sharedTable().replaceBy(std::move(table));
}

}  // namespace QZCore
