// Turns values into the objects of an archive, one after the other.
#pragma once

#include <unordered_map>

#include "QZCore/model/archive.h"
#include "model/archive_format.h"
#include "model/archive_graph.h"
#include "model/archive_rows.h"
#include "model/identity_table.h"

namespace QZCore {

/// Writes one archive. A value gets its number when it is first referred to,
/// and its place among the objects when its turn comes.
class ArchiveWriter {
public:
    ArchiveWriter(const ArchiveClasses& classes, ArchiveCoding coding)
        : rows_(classes), coding_(coding) {}

    [[nodiscard]] PropertyListData write(const Value& root);

    [[nodiscard]] ArchiveCoding coding() const { return coding_; }

    /// One of the contents of the object whose turn it is; from its encoder.
    void addContent(const Value& object);
    /// The same, with the key that comes before it.
    void addContent(const Value& object, StringView forKey);
    /// Contents came the wrong way.
    void failCoding();

private:
    using Number = ArchiveGraph::Number;
    using PlainForm = archive_format::PlainForm;

    [[nodiscard]] Number numberOf(const Value& value);
    void addReference(const Value& value);
    [[nodiscard]] Value storedForm(const Value& value, std::size_t classNumber);
    void addPlainContents(const Value& value, PlainForm form);
    void addClassContents(const Object& object, std::size_t classNumber);
    [[nodiscard]] std::size_t classOf(const Value& value) const;
    [[nodiscard]] ArchiveGraph::Walk walkOf(std::size_t classNumber) const;
    void checkGraph(Number root);
    [[nodiscard]] std::int64_t formNumber();
    void fail(StringView reason);

    const ArchiveRows rows_;
    const ArchiveCoding coding_;
    std::vector<Value> values_;  // from number 1 on; held, so that no address is used twice
    IdentityTable numbers_;
    ArchiveGraph graph_;
    std::vector<std::size_t> classNumbers_;  // of the objects, from number 1 on
    Array forms_;
    std::unordered_map<String, std::int64_t> formNumbers_;
    String formNames_;  // of the object whose turn it is: its class and its keys
    Array contents_;    // of that object
    String error_;
};

}  // namespace QZCore
