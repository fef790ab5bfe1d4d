// The lists of an RTF document.
#pragma once

#include <cstdint>
#include <vector>

#include "richtext/rtf_list_item.h"
#include "richtext/rtf_output.h"

namespace QZCore {

/// Finds for each item the list of RTF to which it belongs.
///
/// A list of RTF has one kind of markers for each level and numbers its items
/// by itself. Items that follow each other share a list as far as their kinds
/// of markers allow; a level whose markers change, or whose numbers do not
/// follow each other, goes on in a list of its own.
class RtfListTable {
public:
    /// The list, from 1 on, to which `item` belongs. Its text starts at
    /// `textIndent`.
    [[nodiscard]] std::size_t listOf(const RtfListItem& item, double textIndent);
    /// Something that is no item: the lists so far have ended.
    void endLists() { open_.clear(); }
    void write(RtfOutput& out) const;

private:
    struct Level {
        String format;
        char16_t bullet = kFilledBullet;
        std::int64_t start = 1;
        std::int64_t next = 1;  // the number that readers give to the next item
        double textIndent = 0;
        double markerStop = 0;
        bool isMarkerSetRight = true;
    };
    using List = std::vector<Level>;

    [[nodiscard]] bool fits(const List& list, const RtfListItem& item) const;
    [[nodiscard]] List listFor(const RtfListItem& item) const;
    static void writeLevel(const Level& level, std::size_t number, RtfOutput& out);

    std::vector<List> lists_;
    // For each level the list in which its last item stands.
    std::vector<std::size_t> open_;
};

}  // namespace QZCore
