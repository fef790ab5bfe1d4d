#include "fences.h"

#include <algorithm>

namespace qznote {
namespace {

using namespace QZCore;

constexpr StringView kFence = u"```";
constexpr StringView kBlanks = u" \t";

std::size_t indentationOf(StringView line) {
    return std::min(line.find_first_not_of(kBlanks), line.size());
}

bool opensCode(StringView line) {
    line.remove_prefix(indentationOf(line));
    return line.starts_with(kFence) && line.find(u'`', kFence.size()) == StringView::npos;
}

bool closesCode(StringView line) { return trimmedOfWhitespace(line) == kFence; }

/// Copies a note line by line.
class Copying {
public:
    explicit Copying(StringView note) : rest_(note) { copy_.reserve(note.size()); }

    [[nodiscard]] String copy() {
        bool isBelowText = false;
        while (!rest_.empty()) {
            const StringView line = nextLine();
            if (opensCode(line) && isClosedBelow()) {
                copyCode(isBelowText ? 0 : indentationOf(line));
                isBelowText = false;
            } else {
                copy_ += line;
                isBelowText = !trimmedOfWhitespaceAndNewlines(line).empty();
            }
        }
        return std::move(copy_);
    }

private:
    /// The next line with its line feed.
    StringView nextLine() {
        const std::size_t feed = rest_.find(u'\n');
        const StringView line = rest_.substr(0, feed == StringView::npos ? feed : feed + 1);
        rest_.remove_prefix(line.size());
        return line;
    }

    /// Whether a fence closes what is open here.
    bool isClosedBelow() {
        const StringView here = rest_;
        // Where none was found, there is none further below either.
        while (!isLastFenceSeen_ && !rest_.empty()) {
            if (closesCode(withoutFeed(nextLine()))) {
                rest_ = here;
                return true;
            }
        }
        isLastFenceSeen_ = true;
        rest_ = here;
        return false;
    }

    static StringView withoutFeed(StringView line) {
        return line.ends_with(u'\n') ? line.substr(0, line.size() - 1) : line;
    }

    /// Copies the code and its fences, with so many blanks less before each line.
    void copyCode(std::size_t blanks) {
        copy_ += kFence;
        copy_ += u'\n';
        StringView line = nextLine();
        for (; !closesCode(withoutFeed(line)); line = nextLine()) {
            copy_ += line.substr(std::min(blanks, indentationOf(line)));
        }
        copy_ += kFence;
        if (line.ends_with(u'\n')) copy_ += u'\n';
    }

    StringView rest_;
    String copy_;
    bool isLastFenceSeen_ = false;
};

}  // namespace

String withPlainFences(StringView note) { return Copying(note).copy(); }

}  // namespace qznote
