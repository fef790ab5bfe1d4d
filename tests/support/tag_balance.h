// Reads pages as strictly as no browser does.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace QZCore::testing {

/// What a page holds, as far as it is well-formed.
struct PageReading {
    /// The first fault, with what stands there; empty when there is none.
    std::string fault;
    /// The text between the tags, with character references resolved.
    std::string text;
    /// The items of its lists as a person sees them: a line for each, with two
    /// blanks for each list around its own.
    std::string items;
};

/// Reads `page`: every tag must be closed in order, every attribute quoted, every
/// special character written as one of four references, and lists must hold
/// items alone.
class PageReader {
public:
    [[nodiscard]] static PageReading read(std::string_view page) {
        PageReader reader(page.substr(page.starts_with(kDoctype) ? kDoctype.size() : 0));
        while (reader.reading_.fault.empty() && !reader.rest_.empty()) reader.readNext();
        if (!reader.open_.empty()) reader.fail("not closed: " + reader.open_.back());
        if (!reader.reading_.items.empty()) reader.reading_.items += '\n';
        return reader.reading_;
    }

private:
    static constexpr std::string_view kDoctype = "<!doctype html>";

    explicit PageReader(std::string_view page) : rest_(page) {}

    void fail(const std::string& what) {
        if (reading_.fault.empty()) {
            reading_.fault = what + " at " + std::string(rest_.substr(0, 40));
        }
    }

    [[nodiscard]] bool skip(std::string_view expected) {
        if (!rest_.starts_with(expected)) return false;
        rest_.remove_prefix(expected.size());
        return true;
    }

    std::string takeName() {
        std::size_t length = 0;
        while (length < rest_.size() && isNamePart(rest_[length])) ++length;
        const std::string name(rest_.substr(0, length));
        rest_.remove_prefix(length);
        if (name.empty()) fail("no name");
        return name;
    }

    static bool isNamePart(char byte) {
        return (byte >= 'a' && byte <= 'z') || (byte >= '0' && byte <= '9') || byte == '-';
    }

    void readNext() {
        if (skip("</")) {
            const std::string name = takeName();
            if (open_.empty() || open_.back() != name) return fail("closed out of order: " + name);
            open_.pop_back();
            // A line end at the end of code starts no further line.
            if (name == "code" && reading_.text.ends_with('\n')) reading_.text.pop_back();
            if (isList(name)) lists_.pop_back();
            if (!skip(">")) fail("tag without an end");
        } else if (skip("<")) {
            readOpeningTag();
        } else {
            readCharacter("<>\"");
        }
    }

    void readOpeningTag() {
        const std::string name = takeName();
        if (isInList() != (name == "li")) return fail("not in its place: " + name);
        if (isList(name)) lists_.push_back({.isNumbered = name == "ol"});
        while (skip(" ")) {
            const std::string attribute = takeName();
            if (!skip("=\"")) return fail("no value: " + attribute);
            const PageReading before = std::exchange(reading_, {});
            while (!skip("\"") && !rest_.empty() && reading_.fault.empty()) readCharacter("<>\"");
            if (!lists_.empty()) readListAttribute(attribute, reading_.text);
            reading_ = {reading_.fault, before.text, before.items};
        }
        if (!skip(">")) return fail("tag without an end");
        if (name == "li") startItem();
        if (name != "img" && name != "meta") open_.push_back(name);
    }

    static bool isList(std::string_view name) { return name == "ul" || name == "ol"; }
    [[nodiscard]] bool isInList() const { return !open_.empty() && isList(open_.back()); }

    void readListAttribute(std::string_view name, const std::string& value) {
        if (name == "start" || name == "value") lists_.back().next = std::stoi(value);
        if (value.find("circle") != value.npos) lists_.back().bullet = "\u25E6";
    }

    void startItem() {
        List& list = lists_.back();
        if (!reading_.items.empty()) reading_.items += '\n';
        reading_.items.append((lists_.size() - 1) * 2, ' ');
        reading_.items += list.isNumbered ? std::to_string(list.next++) + "." : list.bullet;
        reading_.items += ' ';
    }

    void readCharacter(std::string_view forbidden) {
        static constexpr struct {
            std::string_view reference;
            char character;
        } kReferences[] = {{"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}};
        for (const auto& [reference, character] : kReferences) {
            if (!skip(reference)) continue;
            return add(character);
        }
        const char byte = rest_.front();
        if (byte == '&' || forbidden.find(byte) != forbidden.npos) return fail("not escaped");
        if (isInList() && byte != '\n') return fail("text beside items");
        rest_.remove_prefix(1);
        add(byte);
    }

    void add(char character) {
        reading_.text += character;
        if (!open_.empty() && open_.back() == "li") reading_.items += character;
    }

    struct List {
        bool isNumbered = false;
        std::string bullet = "\u25CF";
        int next = 1;
    };

    std::string_view rest_;
    std::vector<std::string> open_;
    std::vector<List> lists_;
    PageReading reading_;
};

}  // namespace QZCore::testing
