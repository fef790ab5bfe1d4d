#include "model/archive_table.h"

#include <utility>

#include "QZCore/foundation/dictionary.h"

namespace QZCore {
namespace {

using namespace archive_format;

/// The integer that a value holds when it is from 0 to `most`.
std::optional<ArchiveGraph::Number> numberUpTo(std::size_t most, const Value& value) {
    if (value.kind() != ValueKind::Integer || value.integerValue() < 0) return std::nullopt;
    if (value.unsignedIntegerValue() > most) return std::nullopt;
    return value.unsignedIntValue();
}

/// Fills a table. Every step answers whether its part is in order.
class TableReader {
public:
    explicit TableReader(const ArchiveRows& rows) : rows_(rows) {}

    bool read(Value archive) {
        table_.archive = std::move(archive);
        const Dictionary* parts = table_.archive.dictionary();
        return parts != nullptr && parts->objectForKey(kVersionKey) == Value(kVersion) &&
               readCoding(parts->objectForKey(kCodingKey)) &&
               readForms(parts->objectForKey(kFormsKey)) &&
               readObjects(parts->objectForKey(kObjectsKey)) &&
               readRoot(parts->objectForKey(kRootKey));
    }

    ArchiveTable take() { return std::move(table_); }

private:
    bool readCoding(const Value& coding) {
        table_.coding = coding == Value(kKeyed) ? ArchiveCoding::Keyed : ArchiveCoding::Sequential;
        return table_.coding == ArchiveCoding::Keyed || coding == Value(kSequential);
    }

    bool readForms(const Value& forms) {
        if (forms.array() == nullptr) return false;
        for (const Value& names : *forms.array()) {
            if (names.array() == nullptr || names.array()->empty()) return false;
            if (!readForm(*names.array())) return false;
        }
        return true;
    }

    bool readForm(const Array& names) {
        ArchiveForm& form = table_.forms.emplace_back();
        for (const Value& name : names) {
            if (name.string() == nullptr) return false;
            form.keys.push_back(*name.string());
        }
        form.name = std::move(form.keys.front());
        form.keys.erase(form.keys.begin());
        form.plain = rowNamed(form.name);
        form.classNumber = form.plain == nullptr ? rows_.numberOf(form.name)
                                                 : ArchiveRows::numberOf(form.plain->kind);
        return true;
    }

    bool readObjects(const Value& objects) {
        table_.objects = objects.array();
        if (table_.objects == nullptr || table_.objects->size() >= UINT32_MAX) return false;
        for (const Value& object : *table_.objects) {
            if (!readObject(object)) return false;
        }
        return true;
    }

    bool readObject(const Value& object) {
        const Array* parts = object.array();
        if (parts == nullptr) {
            table_.graph.addObject(ArchiveGraph::Walk::Through);
            return object.isNumber() || object.string() != nullptr || object.data() != nullptr;
        }
        if (parts->empty() || table_.forms.empty()) return false;
        const auto form = numberUpTo(table_.forms.size() - 1, parts->front());
        if (!form) return false;
        const auto* plain = table_.forms[*form].plain;
        const bool hasReferences =
            plain == nullptr || (plain->form != PlainForm::Date && plain->form != PlainForm::Text);
        if (hasReferences && !readReferences(*parts)) return false;
        table_.graph.addObject(walkOf(table_.forms[*form]));
        return true;
    }

    [[nodiscard]] ArchiveGraph::Walk walkOf(const ArchiveForm& form) const {
        if (form.plain != nullptr) return ArchiveGraph::Walk::Through;
        const bool isWalked =
            form.classNumber == ArchiveRows::kNone || rows_[form.classNumber].isWalked;
        return isWalked ? ArchiveGraph::Walk::Onward : ArchiveGraph::Walk::Ended;
    }

    bool readReferences(const Array& parts) {
        for (std::size_t i = 1; i < parts.size(); ++i) {
            const auto number = numberUpTo(table_.objects->size(), parts[i]);
            if (!number) return false;
            table_.graph.addReference(*number);
        }
        return true;
    }

    bool readRoot(const Value& root) {
        const auto number = numberUpTo(table_.objects->size(), root);
        table_.root = number.value_or(0);
        return number.has_value();
    }

    const ArchiveRows& rows_;
    ArchiveTable table_;
};

}  // namespace

std::optional<ArchiveTable> ArchiveTable::read(Value archive, const ArchiveRows& rows) {
    TableReader reader(rows);
    if (!reader.read(std::move(archive))) return std::nullopt;
    return reader.take();
}

}  // namespace QZCore
