// A flat text read and written from its start to its end.
#pragma once

#include <algorithm>
#include <cstdint>
#include <span>
#include <utility>

#include "richtext/flat_text.h"

namespace QZCore {

/// The runs of a flat text, read in one direction: no question may lie before
/// the one asked last.
class RunWalk {
public:
    /// Starts at the first run, or at the one that holds `position`.
    explicit RunWalk(std::span<const FlatRun> runs) : run_(runs.data()) {}
    RunWalk(std::span<const FlatRun> runs, std::uint32_t position)
        : run_(&*std::ranges::upper_bound(runs, position, {}, &FlatRun::end)) {}

    /// The number of the attributes at `position`.
    [[nodiscard]] std::uint32_t idAt(std::uint32_t position) {
        while (run_->end <= position) ++run_;
        return run_->id;
    }

    /// Calls `visit` with the end and the number of each run from `start` to
    /// `end`.
    template <class Visit>
    void visit(std::uint32_t start, std::uint32_t end, Visit visit) {
        while (start < end) {
            const std::uint32_t id = idAt(start);
            start = std::min(run_->end, end);
            visit(start, id);
        }
    }

private:
    const FlatRun* run_;
};

/// Units, and where they stand in the text that runs are read of.
struct FlatSlice {
    StringView units;
    std::uint32_t start = 0;
};

class FlatWriter {
public:
    [[nodiscard]] StringView text() const { return text_; }

    void reserve(std::size_t length, std::size_t runs) {
        text_.reserve(length);
        runs_.reserve(runs);
    }

    void append(StringView text, std::uint32_t id) {
        text_.append(text);
        appendRun(runs_, static_cast<std::uint32_t>(text_.size()), id);
    }

    /// Adds a stretch with what `newId` gives for its runs.
    template <class NewId>
    void append(const FlatSlice& slice, RunWalk& runs, NewId newId) {
        const auto shift = static_cast<std::uint32_t>(text_.size()) - slice.start;
        const auto end = slice.start + static_cast<std::uint32_t>(slice.units.size());
        text_.append(slice.units);
        runs.visit(slice.start, end, [&](std::uint32_t runEnd, std::uint32_t id) {
            appendRun(runs_, runEnd + shift, newId(id));
        });
    }

    /// Adds a stretch as it is.
    void append(const FlatSlice& slice, RunWalk& runs) {
        append(slice, runs, [](std::uint32_t id) { return id; });
    }

    /// Gives text and runs up.
    void moveTo(FlatText& flat) {
        flat.text = std::move(text_);
        flat.runs = std::move(runs_);
    }

private:
    String text_;
    std::vector<FlatRun> runs_;
};

}  // namespace QZCore
