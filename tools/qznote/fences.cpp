#include "fences.h"

#include <algorithm>

#include "note_lines.h"

namespace qznote {
namespace {

using namespace QZCore;

constexpr StringView kFence = u"```\n";

/// Copies a note line by line.
class Copying {
public:
    explicit Copying(StringView note) : rest_(note) { copy_.reserve(note.size()); }

    [[nodiscard]] String copy() {
        bool isBelowText = false;
        while (!rest_.empty()) {
            const StringView line = takeLine(rest_);
            if (opensCode(line) && isClosedBelow()) {
                copyCode(isBelowText ? 0 : indentationOf(line));
                isBelowText = false;
            } else {
                copy_ += line;
                isBelowText = !isEmptyLine(line);
            }
        }
        return std::move(copy_);
    }

private:
    /// Whether a fence closes what is open here.
    bool isClosedBelow() {
        const StringView here = rest_;
        // Where none was found, there is none further below either.
        while (!isLastFenceSeen_ && !rest_.empty()) {
            if (closesCode(takeLine(rest_))) {
                rest_ = here;
                return true;
            }
        }
        isLastFenceSeen_ = true;
        rest_ = here;
        return false;
    }

    /// Copies the code and its fences, with so many blanks less before each line.
    void copyCode(std::size_t blanks) {
        copy_ += kFence;
        StringView line = takeLine(rest_);
        for (; !closesCode(line); line = takeLine(rest_)) {
            copy_ += line.substr(std::min(blanks, indentationOf(line)));
        }
        copy_ += line.ends_with(u'\n') ? kFence : kFence.substr(0, kFence.size() - 1);
    }

    StringView rest_;
    String copy_;
    bool isLastFenceSeen_ = false;
};

}  // namespace

String withPlainFences(StringView note) { return Copying(note).copy(); }

}  // namespace qznote
