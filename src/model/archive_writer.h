// Turns values into the objects of an archive, one after the other.
#pragma once

#include <unordered_map>

#include "QZCore/model/archive.h"
#include "model/archive_format.h"
#include "model/archive_graph.h"
#include "model/identity_table.h"

namespace QZCore {

/// Writes one archive. A value gets its number when it is first referred to,
/// and its place among the objects when its turn comes.
class ArchiveWriter {
public:
    ArchiveWriter(const ArchiveClasses& classes, ArchiveCoding coding)
        : classes_(classes), coding_(coding) {}

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
    [[nodiscard]] Value storedForm(const Value& value);
    void addPlainContents(const Value& value, PlainForm form);
    void addClassContents(const Object& object);
    [[nodiscard]] std::int64_t formNumber();
    void fail(StringView reason);

    const ArchiveClasses& classes_;
    const ArchiveCoding coding_;
    std::vector<Value> values_;  // from number 1 on; held, so that no address is used twice
    IdentityTable numbers_;
    ArchiveGraph graph_;
    Array forms_;
    std::unordered_map<String, std::int64_t> formNumbers_;
    String formNames_;  // of the object whose turn it is: its class and its keys
    Array contents_;    // of that object
    String error_;
};

}  // namespace QZCore
