// Makes the objects of an archive, one after the other.
#pragma once

#include <optional>
#include <vector>

#include "QZCore/model/archive.h"
#include "model/archive_graph.h"
#include "model/archive_rows.h"
#include "model/archive_table.h"
#include "model/class_use.h"

namespace QZCore {

/// Reads one archive. What makes an object unreadable answers nothing.
class ArchiveReader {
public:
    using Number = ArchiveGraph::Number;

    explicit ArchiveReader(const ArchiveClasses& classes)
        : rows_(classes), examples_(rows_.count()) {}

    [[nodiscard]] PropertyListResult read(DataView bytes);

    // From the decoder of an object of a class:

    [[nodiscard]] ArchiveCoding coding() const { return table_.coding; }
    /// What is at a position of the object's contents; absent beyond them, and
    /// nothing when it is unreadable or not allowed in the object.
    [[nodiscard]] std::optional<Value> content(Number number, std::size_t position) const;
    /// Whether what is there is of the classes or of classes derived from them.
    [[nodiscard]] bool isContentWithin(Number number, std::size_t position,
                                       const ArchiveClasses& classes) const;

private:
    [[nodiscard]] std::optional<Value> made(Number number);
    [[nodiscard]] std::size_t classOf(Number number) const;
    [[nodiscard]] ClassSet rowsOf(const ArchiveClasses& classes) const;
    [[nodiscard]] std::optional<Value> makePlain(Number number, archive_format::PlainForm form);
    [[nodiscard]] std::optional<Value> makeOfClass(Number number, const ArchiveForm& form);
    [[nodiscard]] std::optional<Value> makeUrl(const Array& contents);
    [[nodiscard]] std::optional<Value> makeSet(Number number, const Array& contents);
    [[nodiscard]] std::optional<Dictionary> makeDictionary(Number number, const Array& contents);
    [[nodiscard]] std::optional<Array> contentsOf(Number number) const;
    [[nodiscard]] bool canTellApart(Number number, const Array& values);
    [[nodiscard]] std::nullopt_t unreadable(StringView reason, StringView name = {});

    const ArchiveRows rows_;
    ArchiveTable table_;
    std::vector<std::optional<Value>> made_;               // by number
    std::vector<std::shared_ptr<const Object>> examples_;  // of objects, by class
    std::optional<ClassUse> use_;
    std::vector<std::uint64_t> sizes_;  // of what was made, with all that it holds
    std::uint64_t comparisons_ = 0;
    String reason_;
};

}  // namespace QZCore
