#include "richtext/rtf_reader.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "richtext/rtf_code_pages.h"
#include "richtext/rtf_contents.h"
#include "richtext/rtf_tokens.h"

namespace QZCore {
namespace {

using enum RtfDestination;

constexpr std::size_t kDeepest = 65'000;
/// Texts have 32-bit positions, and no document becomes a text twice as long.
constexpr std::size_t kLongest = std::size_t{1} << 31;

/// Reads a document token by token: follows its groups, decodes its bytes, and
/// changes the look of what comes by its words.
class RtfReader {
public:
    RtfReader(std::string_view document, const RtfSurroundings& surroundings)
        : tokens_(document), contents_(surroundings, group_) {}

    [[nodiscard]] std::optional<RichText> read() {
        do {
            const RtfToken token = tokens_.next();
            if (token.kind == RtfToken::Kind::End) break;
            take(token);
            if (groups_.size() > kDeepest) return std::nullopt;
        } while (!groups_.empty());
        flush();
        return contents_.finish();
    }

private:
    // ---- Tokens ----

    void take(const RtfToken& token) {
        switch (token.kind) {
            case RtfToken::Kind::Text:
                return takeBytes(token.text);
            case RtfToken::Kind::Byte:
                return takeByte(static_cast<char>(token.number));
            case RtfToken::Kind::Word:
                return takeWord(token);
            case RtfToken::Kind::Symbol:
                return takeSymbol(token.text.front());
            case RtfToken::Kind::GroupStart:
                return openGroup();
            case RtfToken::Kind::GroupEnd:
                return closeGroup();
            case RtfToken::Kind::Binary:
                return takeBinary(token.text);
            case RtfToken::Kind::End:
                return;
        }
    }

    void takeBytes(std::string_view bytes) {
        const std::size_t skipped = std::min(standInsLeft_, bytes.size());
        standInsLeft_ -= skipped;
        if (group_.destination != Skipped) bytes_ += bytes.substr(skipped);
    }

    void takeByte(char byte) { takeBytes({&byte, 1}); }

    void takeBinary(std::string_view bytes) {
        if (isStandIn()) return;
        flush();
        contents_.receiveBinary(bytes, group_);
    }

    /// Whether what has come stands in for a character of Unicode, which has
    /// been read already.
    [[nodiscard]] bool isStandIn() {
        if (standInsLeft_ == 0) return false;
        --standInsLeft_;
        return true;
    }

    void takeSymbol(char symbol) {
        if (symbol == '\\' || symbol == '{' || symbol == '}') return takeByte(symbol);
        if (isStandIn()) return;
        flush();
        switch (symbol) {
            case '*':
                group_.isIgnorable = true;
                return;
            case '~':
                return takeCharacter(u'\u00A0');
            case '-':
                return takeCharacter(u'\u00AD');
            case '_':
                return takeCharacter(u'\u2011');
            case '\t':
                return takeCharacter(u'\t');
            case '\n':
            case '\r':
                return takeCharacter(u'\n');
            default:
                return;
        }
    }

    void takeCharacter(char16_t character) {
        if (character == u'\n') return contents_.endParagraph(group_);
        if (character == kRtfRowEnd) return contents_.endRow(group_);
        contents_.receive({&character, 1}, group_);
    }

    /// Decodes the bytes that have come.
    void flush() {
        if (bytes_.empty()) return;
        decoded_.clear();
        const std::int32_t codePage = contents_.codePageIn(group_).value_or(codePage_);
        codePages_.decode(bytes_, codePage, decoded_);
        bytes_.clear();
        contents_.receive(decoded_, group_);
    }

    // ---- Groups ----

    void openGroup() {
        flush();
        standInsLeft_ = 0;
        groups_.push_back(group_);
        group_.startsDestination = false;
        group_.isIgnorable = false;
    }

    void closeGroup() {
        flush();
        const RtfGroup closed = std::exchange(group_, std::move(groups_.back()));
        groups_.pop_back();
        if (closed.startsDestination) contents_.end(closed, group_);
        // Behind the name of a picture a character stands in for it.
        const bool hasStandIn = closed.startsDestination && closed.destination == PictureFile;
        standInsLeft_ = hasStandIn ? 1 : 0;
    }

    void startDestination(RtfDestination destination) {
        const bool isProperty = destination == PropertyName || destination == PropertyValue;
        if (isProperty && group_.destination != PictureProperties) return;
        if (destination == Around) return startInPlaceOfOuter();
        if (group_.destination == Alternatives) return;
        contents_.start(destination, group_);
    }

    /// What is read in place of something else goes where that would have gone.
    void startInPlaceOfOuter() {
        if (group_.destination != Alternatives || groups_.size() < 2) return;
        group_.destination = groups_[groups_.size() - 2].destination;
    }

    // ---- Control words ----

    void takeWord(const RtfToken& token) {
        const RtfNumber number{token.hasNumber, token.number};
        if (token.text == "u") return takeUnit(number);
        if (isStandIn()) return;
        flush();
        if (group_.destination == Skipped || takeDocumentWord(token.text, number)) return;
        const RtfWord* known = rtfWordNamed(token.text);
        const bool isIgnorable = std::exchange(group_.isIgnorable, false);
        const auto* destination = known == nullptr ? nullptr : std::get_if<RtfDestination>(known);
        if (destination != nullptr) return startDestination(*destination);
        if (isIgnorable) {
            group_.destination = Skipped;
        } else if (!contents_.takeWord(token.text, number, group_) && known != nullptr) {
            takeKnownWord(*known, number);
        }
    }

    void takeUnit(RtfNumber number) {
        flush();
        if (group_.destination == Skipped) return;
        // Some programs write characters beyond the first plane as one number.
        if (number.value > 0xFFFF) {
            decoded_.clear();
            appendCodePoint(decoded_, static_cast<char32_t>(number.value));
            contents_.receive(decoded_, group_);
        } else {
            const auto unit = static_cast<char16_t>(number.value);
            contents_.receive({&unit, 1}, group_);
        }
        standInsLeft_ = static_cast<std::size_t>(group_.standIns);
    }

    /// Words about the document and about how it is written.
    [[nodiscard]] bool takeDocumentWord(std::string_view name, RtfNumber number) {
        constexpr std::int32_t kMostStandIns = 255;
        if (name == "plain") {
            resetCharacter();
        } else if (name == "uc") {
            group_.standIns = std::clamp(number.valueOr(1), 0, kMostStandIns);
        } else if (name == "deff") {
            defaultFont_ = group_.character.font = std::max(number.value, 0);
        } else if (name == "ansicpg") {
            if (number.value > 0) codePage_ = number.value;
        } else if (name == "mac") {
            codePage_ = kOldRomanCodePage;
        } else if (name == "pc") {
            codePage_ = 437;
        } else if (name == "pca") {
            codePage_ = 850;
        } else {
            return false;
        }
        return true;
    }

    void resetCharacter() {
        const std::uint32_t link = group_.character.link;
        group_.character = {};
        group_.character.link = link;
        group_.character.font = defaultFont_;
    }

    void takeKnownWord(const RtfWord& word, RtfNumber number) {
        if (const auto* change = std::get_if<RtfCharacterChange>(&word)) {
            (*change)(group_.character, number);
        } else if (const auto* styling = std::get_if<RtfParagraphChange>(&word)) {
            changeParagraph(*styling, number);
        } else if (const auto* character = std::get_if<char16_t>(&word)) {
            takeCharacter(*character);
        }
    }

    /// Groups share their paragraph until one changes it.
    void changeParagraph(RtfParagraphChange change, RtfNumber number) {
        if (group_.paragraph.use_count() > 1) {
            group_.paragraph = std::make_shared<RtfParagraph>(*group_.paragraph);
        }
        change(*group_.paragraph, number);
    }

    RtfTokenizer tokens_;
    RtfGroup group_{.paragraph = std::make_shared<RtfParagraph>()};
    std::vector<RtfGroup> groups_;  // around the open one
    RtfContents contents_;
    RtfCodePages codePages_;
    std::int32_t codePage_ = kWesternCodePage;
    std::int32_t defaultFont_ = -1;
    std::string bytes_;  // not decoded yet
    String decoded_;
    std::size_t standInsLeft_ = 0;
};

}  // namespace

std::optional<RichText> readRtf(std::string_view document, const RtfSurroundings& surroundings) {
    constexpr std::string_view kBlanks = " \t\r\n";
    document.remove_prefix(std::min(document.find_first_not_of(kBlanks), document.size()));
    if (!document.starts_with("{\\rtf") || document.size() >= kLongest) return std::nullopt;
    return RtfReader(document, surroundings).read();
}

}  // namespace QZCore
