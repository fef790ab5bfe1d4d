// Makes the objects of an archive, one after the other.
#pragma once

#include <optional>
#include <vector>

#include "QZCore/model/archive.h"
#include "model/archive_graph.h"
#include "model/archive_table.h"

namespace QZCore {

/// Reads one archive. What makes an object unreadable answers nothing.
class ArchiveReader {
public:
    explicit ArchiveReader(const ArchiveClasses& classes) : classes_(classes) {}

    [[nodiscard]] PropertyListResult read(DataView bytes);

private:
    using Number = ArchiveGraph::Number;

    [[nodiscard]] std::optional<Value> make(Number number);
    [[nodiscard]] std::optional<Value> makePlain(Number number, archive_format::PlainForm form);
    [[nodiscard]] std::optional<Value> makeOfClass(Number number, const ArchiveForm& form);
    [[nodiscard]] std::optional<Value> makeUrl(const Array& contents);
    [[nodiscard]] std::optional<Value> makeSet(Number number, const Array& contents);
    [[nodiscard]] std::optional<Dictionary> makeDictionary(Number number, const Array& contents);
    [[nodiscard]] std::optional<Array> contentsOf(Number number) const;
    [[nodiscard]] bool canTellApart(Number number, const Array& values);
    [[nodiscard]] std::nullopt_t unreadable(StringView reason, StringView name = {});

    const ArchiveClasses& classes_;
    ArchiveTable table_;
    ArchiveDecoder::Made made_;         // by number
    std::vector<std::uint64_t> sizes_;  // of what was made, with all that it holds
    std::uint64_t comparisons_ = 0;
    String reason_;
};

}  // namespace QZCore
