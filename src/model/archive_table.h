// The objects of an archive as they are stored.
#pragma once

#include <algorithm>
#include <optional>
#include <vector>

#include "QZCore/model/archive.h"
#include "model/archive_format.h"
#include "model/archive_graph.h"
#include "model/archive_rows.h"

namespace QZCore {

/// What objects of one form have in common.
struct ArchiveForm {
    /// The class.
    String name;
    /// The keys of the contents; none in a sequential archive.
    std::vector<String> keys;
    /// The class by its number, or `ArchiveRows::kNone`.
    std::size_t classNumber = ArchiveRows::kNone;
    /// The form of plain values; null for objects of classes.
    const archive_format::PlainFormRow* plain = nullptr;

    /// The place of the content under `key`; beyond the contents when there is
    /// none.
    [[nodiscard]] std::size_t positionOf(StringView key) const {
        const auto found = std::find(keys.begin(), keys.end(), key);
        return static_cast<std::size_t>(found - keys.begin());
    }
};

/// The parts of an archive, checked as far as every reference leads to an
/// object of the table and every object has a form of the table.
struct ArchiveTable {
    using Number = ArchiveGraph::Number;

    /// Where the rest lies.
    Value archive;
    ArchiveCoding coding = ArchiveCoding::Keyed;
    std::vector<ArchiveForm> forms;
    /// By number, less one.
    const Array* objects = nullptr;
    Number root = 0;
    ArchiveGraph graph;

    /// The table of a property list, or nothing.
    [[nodiscard]] static std::optional<ArchiveTable> read(Value archive, const ArchiveRows& rows);

    /// The object with the number, which is not 0.
    [[nodiscard]] const Value& storedObject(Number number) const { return (*objects)[number - 1]; }

    /// The form of an object that is stored as an array.
    [[nodiscard]] const ArchiveForm& formOf(const Array& object) const {
        return forms[object.front().unsignedIntegerValue()];
    }
};

}  // namespace QZCore
