#include "QZCore/codecs/parsing.h"

namespace QZCore {
namespace {

using Row = std::vector<String>;

bool isSpecial(char16_t unit) {
    if ((unit > u',' && unit < 0x85) || unit == u' ') return false;  // most of any text
    return unit == u',' || unit == u'"' || isNewline(unit);
}

/// Reads one row after the other.
class RowReader {
public:
    explicit RowReader(StringView text) : text_(text) {}

    [[nodiscard]] bool isAtEnd() const { return at_ == text_.size(); }

    Row readRow() {
        row_.clear();
        field_.clear();
        quoted_ = false;
        while (takePiece()) {
        }
        if (!field_.empty()) row_.push_back(std::move(field_));
        return std::move(row_);
    }

private:
    /// Takes the text up to the next special character, and that; returns
    /// false at the end of the row.
    bool takePiece() {
        field_.append(takeWhile([](char16_t unit) { return !isSpecial(unit); }));
        if (isAtEnd()) return false;
        if (isNewline(text_[at_])) return takeLineEnds();
        if (text_[at_++] == u'"') {
            finishQuote();
        } else {
            finishComma();
        }
        return true;
    }

    bool takeLineEnds() {
        const StringView lineEnds = takeWhile(isNewline);
        if (quoted_) field_.append(lineEnds);
        return quoted_;
    }

    void finishQuote() {
        if (quoted_ && !isAtEnd() && text_[at_] == u'"') {
            field_.push_back(text_[at_++]);
        } else {
            quoted_ = !quoted_;
        }
    }

    void finishComma() {
        if (quoted_) {
            field_.push_back(u',');
            return;
        }
        row_.push_back(std::move(field_));
        field_.clear();
        takeWhile(isWhitespace);
    }

    template <class Test>
    StringView takeWhile(Test isTaken) {
        const std::size_t start = at_;
        while (!isAtEnd() && isTaken(text_[at_])) ++at_;
        return text_.substr(start, at_ - start);
    }

    StringView text_;
    std::size_t at_ = 0;
    Row row_;
    String field_;
    bool quoted_ = false;
};

}  // namespace

std::vector<Row> csvRowsOfColumns(StringView text) {
    std::vector<Row> rows;
    RowReader reader(text);
    while (!reader.isAtEnd()) {
        Row row = reader.readRow();
        if (!row.empty()) rows.push_back(std::move(row));
    }
    return rows;
}

}  // namespace QZCore
