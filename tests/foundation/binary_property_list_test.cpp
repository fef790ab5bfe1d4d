#include <cstring>
#include <memory>
#include <optional>

#include "QZCore/foundation/dictionary.h"
#include "QZCore/foundation/property_list.h"
#include "support/printing.h"
#include "support/random_value.h"

namespace QZCore {
namespace {

std::string bigEndian(std::uint64_t value, int width) {
    std::string bytes;
    for (int shift = 8 * width; shift > 0;) {
        bytes.push_back(static_cast<char>(value >> (shift -= 8)));
    }
    return bytes;
}

/// Puts the given objects and the end of the file together; the first object
/// is the list. The last object gets `copies` numbers. References take 2 bytes.
std::string fileOf(const std::vector<std::string>& objects, std::size_t copies = 1) {
    std::string bytes = "bplist00";
    std::string table;
    std::size_t lastAt = 0;
    for (const std::string& object : objects) {
        lastAt = bytes.size();
        table += bigEndian(lastAt, 4);
        bytes += object;
    }
    for (std::size_t i = 1; i < copies; ++i) table += bigEndian(lastAt, 4);
    const std::size_t tableAt = bytes.size();
    return bytes + table + std::string(6, '\0') + "\4\2" + bigEndian(table.size() / 4, 8) +
           bigEndian(0, 8) + bigEndian(tableAt, 8);
}

std::string head(int kind, std::size_t count) {
    const auto first = [kind](std::size_t low) {
        return std::string(1, static_cast<char>(kind << 4 | static_cast<int>(low)));
    };
    return count < 15 ? first(count) : first(15) + "\x12" + bigEndian(count, 4);
}

/// Writes values in the binary form, every object once for each place.
class BinaryWriter {
public:
    std::string file(const Value& root) {
        add(root);
        return fileOf(objects_);
    }

private:
    std::string add(const Value& value) {
        const std::size_t number = objects_.size();
        objects_.emplace_back();
        objects_[number] = bytesFor(value);
        return bigEndian(number, 2);
    }

    std::string bytesFor(const Value& value) {
        switch (value.kind()) {
            case ValueKind::Boolean:
                return value.boolValue() ? "\x09" : "\x08";
            case ValueKind::Integer:
                return "\x13" + bigEndian(static_cast<std::uint64_t>(value.integerValue()), 8);
            case ValueKind::Unsigned:
                return "\x14" + bigEndian(0, 8) + bigEndian(value.unsignedIntegerValue(), 8);
            case ValueKind::Real:
                return "\x23" + bigEndian(std::bit_cast<std::uint64_t>(value.doubleValue()), 8);
            case ValueKind::Date:
                return "\x33" + bigEndian(std::bit_cast<std::uint64_t>(
                                              value.date()->secondsSince1970 - 978307200),
                                          8);
            case ValueKind::Bytes:
                return head(4, value.data()->size()) + std::string(textOf(*value.data()));
            case ValueKind::Text:
                return textFor(*value.string());
            default:
                return containerFor(value);
        }
    }

    static std::string textFor(const String& text) {
        std::string bytes;
        for (const char16_t unit : text) bytes += bigEndian(unit, 2);
        return head(6, text.size()) + bytes;
    }

    std::string containerFor(const Value& value) {
        std::string keys;
        std::string values;
        if (const Array* array = value.array()) {
            for (const Value& element : *array) values += add(element);
            return head(10, array->size()) + values;
        }
        for (const auto& [key, held] : *value.dictionary()) {
            keys += add(key);
            values += add(held);
        }
        return head(13, value.dictionary()->count()) + keys + values;
    }

    std::vector<std::string> objects_;
};

PropertyListResult readExactly(std::string_view bytes) {
    const auto copy = std::make_unique<std::uint8_t[]>(bytes.size());
    std::copy(bytes.begin(), bytes.end(), copy.get());
    return readPropertyList({copy.get(), bytes.size()});
}

}  // namespace

TEST_CASE("the binary form holds what the XML form holds") {
    testing::RandomValues random(3);
    for (int i = 0; i < 1000; ++i) {
        const Value value = random.tree(3);
        const PropertyListResult result = readExactly(BinaryWriter().file(value));
        REQUIRE(result.error == u"");
        REQUIRE(result.value == value);
        const PropertyListData xml = writePropertyList(result.value);
        REQUIRE(xml.data.has_value());  // everything that was read can be saved
        REQUIRE(readPropertyList(*xml.data).value == value);
    }
}

TEST_CASE("binary scalars have many widths") {
    struct Row {
        const char* why;
        std::string object;
        Value value;
    };
    const Row rows[] = {
        {"one byte has no sign", "\x10\xFF", 255},
        {"two bytes", "\x11\x01\x02", 258},
        {"four bytes have no sign", "\x12\xFF\xFF\xFF\xFF", 4294967295U},
        {"eight bytes have a sign", "\x13" + std::string(8, '\xFF'), -1},
        {"sixteen bytes", "\x14" + std::string(16, '\xFF'), -1},
        {"largest", "\x14" + std::string(8, '\0') + std::string(8, '\xFF'), UINT64_MAX},
        {"single precision", std::string("\x22\x3F\xC0\0\0", 5), 1.5},
        {"ASCII text",
         "\x53"
         "abc",
         u"abc"},
        {"a reference of an archive", std::string("\x80\x07", 2), 7},
        {"a long count", std::string("\x4F\x10\x02", 3) + "ab", Data{'a', 'b'}},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const PropertyListResult result = readExactly(fileOf({row.object}));
        CHECK(result.error == u"");
        CHECK(result.value == row.value);
    }
    CHECK(readExactly(fileOf({std::string("\xC1\0\1", 3), "\x09"})).value == Value(Array{true}));
}

TEST_CASE("a faulty binary list gives an error and nothing else") {
    const std::string good = fileOf({"\x09"});
    const std::size_t trailer = good.size() - 32;
    const auto with = [&](std::size_t at, std::string_view bytes) {
        std::string changed = good;
        return changed.replace(trailer + at, bytes.size(), bytes);
    };
    struct Row {
        const char* why;
        std::string bytes;
    };
    const Row rows[] = {
        {"only the magic bytes", "bplist00"},
        {"another version", "bplist15" + good.substr(8)},
        {"no objects", fileOf({})},
        {"offsets of no size", with(6, std::string(1, '\0'))},
        {"offsets of nine bytes", with(6, "\x09")},
        {"references of no size", with(7, std::string(1, '\0'))},
        {"huge number of objects", with(8, std::string(8, '\xFF'))},
        {"list behind the objects", with(23, "\x01")},
        {"table behind the file", with(24, std::string(8, '\xFF'))},
        {"table before the objects", with(31, "\x07")},
        {"null", fileOf({std::string(1, '\0')})},
        {"fill byte", fileOf({"\x0F"})},
        {"unknown kind", fileOf({"\x70"})},
        {"integer of 32 bytes", fileOf({"\x15" + std::string(32, '\0')})},
        {"integer beyond 64 bits", fileOf({"\x14" + std::string(16, '\x01')})},
        {"cut-off integer", fileOf({"\x13\x01"})},
        {"real of two bytes", fileOf({std::string("\x21\0\0", 3)})},
        {"date that is not a number", fileOf({"\x33" + std::string(8, '\xFF')})},
        {"date too far away", fileOf({"\x33" + bigEndian(0x7E37E43C8800759C, 8)})},
        {"cut-off text", fileOf({"\x5E"
                                 "abc"})},
        {"text of 2^63 bytes", fileOf({"\x6F\x13\x80" + std::string(7, '\0')})},
        {"long count that is no integer", fileOf({"\x4F\x23" + std::string(8, '\0')})},
        {"bytes that are not ASCII", fileOf({"\x51\xE9"})},
        {"control character", fileOf({"\x51\x01"})},
        {"unpaired surrogate", fileOf({std::string("\x61\xD8\0", 3)})},
        {"reference to nothing", fileOf({std::string("\xA1\0\1", 3)})},
        {"cut-off array", fileOf({"\xA2" + bigEndian(0, 2)})},
        {"array of 2^63 elements", fileOf({"\xAF\x13\x80" + std::string(7, '\0')})},
        {"array in itself", fileOf({"\xA1" + bigEndian(0, 2)})},
        {"circle of two", fileOf({"\xA1" + bigEndian(1, 2), "\xA1" + bigEndian(0, 2)})},
        {"key that is a number", fileOf({"\xD1" + bigEndian(1, 2) + bigEndian(1, 2), "\x09"})},
        {"key that is a container", fileOf({"\xD1" + bigEndian(1, 2) + bigEndian(1, 2), "\xA0"})},
    };
    REQUIRE(readExactly(good).value == Value(true));
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const PropertyListResult result = readExactly(row.bytes);
        CHECK(result.value.isAbsent());
        CHECK(result.error != u"");
    }
}

TEST_CASE("a binary list unfolds to a bounded size") {
    // Ten references a level: 10^7 values from a few bytes.
    std::vector<std::string> levels;
    for (unsigned level = 1; level <= 7; ++level) {
        std::string references;
        for (int i = 0; i < 10; ++i) references += bigEndian(level, 2);
        levels.push_back("\xAA" + references);
    }
    levels.emplace_back("\x09");
    CHECK(readExactly(fileOf(levels)).value.isAbsent());
    levels.resize(4);
    levels.emplace_back("\x09");
    CHECK(readExactly(fileOf(levels)).value.array()->size() == 10);

    // Many objects that claim the same large text.
    constexpr std::size_t kObjects = 1000;
    const std::string text = head(5, 100'000) + std::string(100'000, 'a');
    std::string references;
    for (std::size_t i = 0; i < kObjects; ++i) references += bigEndian(i + 1, 2);
    CHECK(readExactly(fileOf({head(10, kObjects) + references, text}, kObjects)).value.isAbsent());
}

TEST_CASE("a cut-off or changed binary list does no harm") {
    testing::RandomValues random(4);
    const std::string whole = BinaryWriter().file(Array{random.tree(2), random.tree(2), u"text"});
    for (std::size_t length = 0; length < whole.size(); ++length) {
        REQUIRE(readExactly(whole.substr(0, length)).value.isAbsent());
    }
    for (std::size_t at = 0; at < whole.size(); ++at) {
        std::string changed = whole;
        for (int byte = 0; byte < 256; byte += 3) {
            changed[at] = static_cast<char>(byte);
            const PropertyListResult result = readExactly(changed);
            REQUIRE(result.value.isAbsent() == !result.error.empty());
        }
    }
}

}  // namespace QZCore
