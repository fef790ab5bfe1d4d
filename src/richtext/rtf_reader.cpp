#include "richtext/rtf_reader.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "richtext/rtf_code_pages.h"
#include "richtext/rtf_definitions.h"
#include "richtext/rtf_hyperlink.h"
#include "richtext/rtf_picture_reader.h"
#include "richtext/rtf_text_builder.h"
#include "richtext/rtf_tokens.h"

namespace QZCore {
namespace {

using enum RtfDestination;

constexpr std::size_t kDeepest = 65'000;
/// Texts have 32-bit positions, and no document becomes a text twice as long.
constexpr std::size_t kLongest = std::size_t{1} << 31;

/// Reads a document token by token.
class RtfReader {
public:
    RtfReader(std::string_view document, const RtfSurroundings& surroundings)
        : tokens_(document), pictures_(surroundings) {}

    [[nodiscard]] std::optional<RichText> read() {
        do {
            const RtfToken token = tokens_.next();
            if (token.kind == RtfToken::Kind::End) break;
            take(token);
            if (groups_.size() > kDeepest) return std::nullopt;
        } while (!groups_.empty());
        flush();
        return builder_.finish(*openParagraph_);
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
        if (group_.destination == Picture) pictures_.binary(bytes);
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
                return receive(u"\u00A0");
            case '-':
                return receive(u"\u00AD");
            case '_':
                return receive(u"\u2011");
            case '\t':
                return receive(u"\t");
            case '\n':
            case '\r':
                return takeCharacter(u'\n');
            default:
                return;
        }
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
        standInsLeft_ = 0;
        const RtfGroup closed = std::exchange(group_, std::move(groups_.back()));
        groups_.pop_back();
        if (closed.startsDestination) endDestination(closed);
    }

    void startDestination(RtfDestination destination, std::string_view name) {
        if (group_.destination == Alternatives && name != "ud") return;
        const bool isProperty = destination == PropertyName || destination == PropertyValue;
        if (isProperty && group_.destination != PictureProperties) return;
        group_.destination = destination;
        group_.startsDestination = true;
        switch (destination) {
            case Field:
                fields_.emplace_back();
                group_.field = static_cast<std::uint32_t>(fields_.size());
                return;
            case FieldResult:
                return followLink();
            case ListMarker:
                marker_.clear();
                return;
            case Picture:
            case PictureFile:
                return pictures_.start();
            case PropertyName:
                return pictures_.startProperty();
            case PropertyValue:
                return pictures_.startValue();
            default:
                return;
        }
    }

    void endDestination(const RtfGroup& closed) {
        switch (closed.destination) {
            case ListMarker:
                return endMarker();
            case Picture:
                return showPicture(pictures_.finishEmbedded());
            case PictureFile:
                showPicture(pictures_.finishFile());
                standInsLeft_ = 1;  // which follows, as the reader's own character
                return;
            case PropertyValue:
                return pictures_.endProperty();
            default:
                return;
        }
    }

    void endMarker() {
        const StringView marker = trimmedOfWhitespace(marker_);
        if (marker.empty() || !isText(group_.destination)) return;
        const bool isSymbol = definitions_.fonts.codePageOf(markerLook_.font) == kSymbolCodePage;
        builder_.setMarker(marker, isSymbol ? group_.character : markerLook_);
        openParagraph_ = group_.paragraph;
    }

    void showPicture(const TextAttachment& picture) {
        if (!isText(group_.destination) || group_.character.isHidden) return;
        if (picture.image == nullptr) return receive(picture.alternativeText);
        builder_.append(picture, group_.character);
        openParagraph_ = group_.paragraph;
    }

    /// The result of a field is a link when its instruction says so.
    void followLink() {
        if (group_.field == 0) return;
        const Value link = linkOfInstruction(fields_[group_.field - 1]);
        if (link.isAbsent()) return;
        definitions_.links.push_back(link);
        group_.character.link = static_cast<std::uint32_t>(definitions_.links.size());
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
        if (destination != nullptr) return startDestination(*destination, token.text);
        if (isIgnorable) {
            group_.destination = Skipped;
        } else if (!takeTableWord(token.text, number) && known != nullptr) {
            takeKnownWord(*known, number);
        }
    }

    void takeUnit(RtfNumber number) {
        flush();
        if (group_.destination == Skipped) return;
        const auto unit = static_cast<char16_t>(number.value);
        receive({&unit, 1});
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
            codePage_ = 10000;
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

    /// Words within the tables, where they do not change what follows.
    [[nodiscard]] bool takeTableWord(std::string_view name, RtfNumber number) {
        switch (group_.destination) {
            case FontTable:
                definitions_.fonts.word(name, number);
                return true;
            case ColorTable:
                definitions_.colors.word(name, number);
                return true;
            case ListTable:
                definitions_.lists.word(name, number);
                return true;
            case ListOverrideTable:
                definitions_.lists.overrideWord(name, number);
                return true;
            case Picture:
            case PictureFile:
                pictures_.word(name, number);
                return true;
            default:
                return false;
        }
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

    void takeCharacter(char16_t character) {
        if (character != u'\n') return receive({&character, 1});
        if (isText(group_.destination)) builder_.endParagraph(*group_.paragraph, group_.character);
    }

    // ---- Text ----

    [[nodiscard]] static bool isText(RtfDestination destination) {
        return destination == Body || destination == FieldResult;
    }

    [[nodiscard]] std::int32_t codePage() const {
        const bool isTable =
            group_.destination == FontTable || group_.destination == AlternativeFontName;
        const RtfFonts& fonts = definitions_.fonts;
        return (isTable ? fonts.codePageOfTable() : fonts.codePageOf(group_.character.font))
            .value_or(codePage_);
    }

    /// Decodes the bytes that have come.
    void flush() {
        if (bytes_.empty()) return;
        decoded_.clear();
        codePages_.decode(bytes_, codePage(), decoded_);
        bytes_.clear();
        receive(decoded_);
    }

    /// Brings text to where it belongs.
    void receive(StringView text) {
        switch (group_.destination) {
            case Body:
            case FieldResult:
                if (!group_.character.isHidden) builder_.append(text, group_.character);
                openParagraph_ = group_.paragraph;
                return;
            case ListMarker:
                if (marker_.empty()) markerLook_ = group_.character;
                marker_ += text;
                return;
            case FieldInstruction:
                if (group_.field != 0) fields_[group_.field - 1] += text;
                return;
            case FontTable:
                return definitions_.fonts.name(text);
            case AlternativeFontName:
                return definitions_.fonts.alternativeName(text);
            case ColorTable:
                return definitions_.colors.text(text);
            case Picture:
                return pictures_.hexadecimal(text);
            case PictureFile:
                return pictures_.fileName(text);
            case PropertyName:
                return pictures_.propertyName(text);
            case PropertyValue:
                return pictures_.propertyValue(text);
            default:
                return;
        }
    }

    RtfTokenizer tokens_;
    RtfDefinitions definitions_;
    RtfTextBuilder builder_{definitions_};
    RtfPictureReader pictures_;
    RtfCodePages codePages_;
    std::int32_t codePage_ = kWesternCodePage;
    std::int32_t defaultFont_ = -1;
    RtfGroup group_{.paragraph = std::make_shared<RtfParagraph>()};
    std::vector<RtfGroup> groups_;                                    // around the open one
    std::shared_ptr<RtfParagraph> openParagraph_ = group_.paragraph;  // of the last text or marker
    std::string bytes_;                                               // not decoded yet
    String decoded_;
    std::size_t standInsLeft_ = 0;
    std::vector<String> fields_;  // their instructions
    String marker_;
    RtfCharacter markerLook_;
};

}  // namespace

std::optional<RichText> readRtf(std::string_view document, const RtfSurroundings& surroundings) {
    constexpr std::string_view kBlanks = " \t\r\n";
    document.remove_prefix(std::min(document.find_first_not_of(kBlanks), document.size()));
    if (!document.starts_with("{\\rtf") || document.size() >= kLongest) return std::nullopt;
    return RtfReader(document, surroundings).read();
}

}  // namespace QZCore
