#include "model/archive_reader.h"

#include <algorithm>
#include <utility>

#include "QZCore/foundation/dictionary.h"

namespace QZCore {
namespace {

using namespace archive_format;

/// Counts up to here do not overflow when they are added.
constexpr std::uint64_t kLargestSize = std::uint64_t{1} << 62;

/// How many comparisons it takes at most to tell values apart in a table: those
/// with the same hash are compared with each other.
std::uint64_t comparisonsFor(const Array& values) {
    std::vector<std::size_t> hashes;
    hashes.reserve(values.size());
    for (const Value& value : values) hashes.push_back(value.hash());
    std::ranges::sort(hashes);
    std::uint64_t comparisons = 0;
    for (auto run = hashes.begin(); run != hashes.end();) {
        const auto end = std::upper_bound(run, hashes.end(), *run);
        const auto length = static_cast<std::uint64_t>(end - run);
        comparisons += length * (length - 1) / 2;
        run = end;
    }
    return comparisons;
}

std::optional<Value> madeDate(const Array& stored) {
    if (stored.size() != 2 || !stored[1].isNumber()) return std::nullopt;
    return Date{stored[1].doubleValue()};
}

std::optional<Value> madeText(const Array& stored) {
    const Data* bytes = stored.size() == 2 ? stored[1].data() : nullptr;
    if (bytes == nullptr || bytes->size() % 2 != 0) return std::nullopt;
    String text;
    for (std::size_t i = 0; i < bytes->size(); i += 2) {
        text.push_back(static_cast<char16_t>((*bytes)[i] | ((*bytes)[i + 1] << 8)));
    }
    return text;
}

}  // namespace

PropertyListResult ArchiveReader::read(DataView bytes) {
    PropertyListResult list = readPropertyList(bytes);
    if (!list.error.empty()) return list;
    auto table = ArchiveTable::read(std::move(list.value), rows_);
    if (!table) return {Value(), u"not an archive"};
    table_ = *std::move(table);
    const ArchiveGraph::Order order = table_.graph.makingOrder(table_.root);
    if (!order.fault.empty()) return {Value(), order.fault};

    made_.resize(table_.objects->size() + 1);
    sizes_.resize(made_.size());
    made_[0] = Value();
    use_.emplace(table_.graph, rows_.count());
    for (const Number number : order.objects) {
        sizes_[number] = 1;
        for (const Number content : table_.graph.referencesOf(number)) {
            sizes_[number] = std::min(sizes_[number] + sizes_[content], kLargestSize);
        }
        made_[number] = made(number);
    }
    if (made_[table_.root] && !use_->isWithin(table_.root, rows_.allowed())) {
        return {Value(), u"a class that is not allowed there"};
    }
    if (!made_[table_.root]) return {Value(), reason_};
    return {*std::move(made_[table_.root]), {}};
}

std::optional<Value> ArchiveReader::content(Number number, std::size_t position) const {
    const auto contents = table_.graph.referencesOf(number);
    if (position >= contents.size()) return Value();
    if (!use_->isWithin(contents[position], rows_.allowedInside(classOf(number)))) {
        return std::nullopt;
    }
    return made_[contents[position]];
}

bool ArchiveReader::isContentWithin(Number number, std::size_t position,
                                    const ArchiveClasses& classes) const {
    const auto contents = table_.graph.referencesOf(number);
    return position >= contents.size() || use_->isWithin(contents[position], rowsOf(classes));
}

/// The classes of the archive that are, or are derived from, those of a list.
ClassSet ArchiveReader::rowsOf(const ArchiveClasses& classes) const {
    ClassSet set;
    for (const PlainClass plain : classes.plain) set.add(ArchiveRows::numberOf(plain));
    for (std::size_t i = ArchiveRows::kPlainClasses; i < rows_.count(); ++i) {
        const Object* example = examples_[i].get();
        const auto isOfClass = [&](const ArchivedClass& row) {
            return *row.type == *rows_[i].type ||
                   (example != nullptr && row.isKind != nullptr && row.isKind(*example));
        };
        if (std::ranges::any_of(classes.objects, isOfClass)) set.add(i);
    }
    return set;
}

// ---- Making -----------------------------------------------------------------

/// The number of an object's class, or `kNone` when it is not among the rows.
std::size_t ArchiveReader::classOf(Number number) const {
    const Value& stored = table_.storedObject(number);
    if (stored.array() != nullptr) return table_.formOf(*stored.array()).classNumber;
    return ArchiveRows::numberOf(*plainClassOf(stored.kind()));
}

/// Makes an object and notes its class.
std::optional<Value> ArchiveReader::made(Number number) {
    const Value& stored = table_.storedObject(number);
    const std::size_t classNumber = classOf(number);
    if (stored.array() == nullptr) {
        use_->note(number, classNumber, true);
        return stored;
    }
    const ArchiveForm& form = table_.formOf(*stored.array());
    if (classNumber == ArchiveRows::kNone) {
        return unreadable(u"a class that is not allowed: ", form.name);
    }
    use_->note(number, classNumber, form.plain != nullptr);
    if (form.plain == nullptr) return makeOfClass(number, form);
    auto value = makePlain(number, form.plain->form);
    return value ? value : unreadable(u"wrong contents of a ", form.name);
}

std::optional<Value> ArchiveReader::makeOfClass(Number number, const ArchiveForm& form) {
    const auto contents = table_.graph.referencesOf(number);
    const bool isKeyed = table_.coding == ArchiveCoding::Keyed;
    if (form.keys.size() != (isKeyed ? contents.size() : 0)) {
        return unreadable(u"contents without keys in a ", form.name);
    }
    ArchiveDecoder decoder(*this, form, number);
    auto object = rows_[form.classNumber].decode(decoder);
    if (object == nullptr) return unreadable(u"wrong contents of a ", form.name);
    examples_[form.classNumber] = object;
    return Value(std::move(object));
}

std::optional<Value> ArchiveReader::makePlain(Number number, PlainForm form) {
    const Array& stored = *table_.storedObject(number).array();
    if (form == PlainForm::Date) return madeDate(stored);
    if (form == PlainForm::Text) return madeText(stored);
    auto contents = contentsOf(number);
    if (!contents) return std::nullopt;
    switch (form) {
        case PlainForm::List:
            return *std::move(contents);
        case PlainForm::MutableList:
            return Value::mutableArray(*std::move(contents));
        case PlainForm::Set:
            return makeSet(number, *contents);
        case PlainForm::URL:
            return makeUrl(*contents);
        default:
            break;
    }
    auto entries = makeDictionary(number, *contents);
    if (!entries) return std::nullopt;
    return form == PlainForm::Dictionary ? Value(*std::move(entries))
                                         : Value::mutableDictionary(*std::move(entries));
}

std::optional<Value> ArchiveReader::makeUrl(const Array& contents) {
    if (contents.size() != 1 || contents[0].string() == nullptr) return std::nullopt;
    return URL{*contents[0].string()};
}

std::optional<Value> ArchiveReader::makeSet(Number number, const Array& contents) {
    if (!canTellApart(number, contents)) return std::nullopt;
    Set members;
    for (const Value& member : contents) {
        if (member.isAbsent()) return std::nullopt;
        members.add(member);
    }
    return members;
}

std::optional<Dictionary> ArchiveReader::makeDictionary(Number number, const Array& contents) {
    if (contents.size() % 2 != 0) return std::nullopt;
    Array keys;
    for (std::size_t i = 0; i < contents.size(); i += 2) keys.push_back(contents[i]);
    if (!canTellApart(number, keys)) return std::nullopt;
    Dictionary entries;
    for (std::size_t i = 0; i < contents.size(); i += 2) {
        if (contents[i].isAbsent() || contents[i + 1].isAbsent()) return std::nullopt;
        entries.setObject(contents[i + 1], contents[i]);
    }
    return entries;
}

// ---- Contents ---------------------------------------------------------------

/// What an object refers to; nothing when some of it is unreadable.
std::optional<Array> ArchiveReader::contentsOf(Number number) const {
    Array contents;
    for (const Number content : table_.graph.referencesOf(number)) {
        if (!made_[content]) return std::nullopt;
        contents.push_back(*made_[content]);
    }
    return contents;
}

/// Whether the values, contents of an object, can be put into a table: many that
/// are alike, and large, would take for ever. Counts for the whole archive.
bool ArchiveReader::canTellApart(Number number, const Array& values) {
    constexpr std::uint64_t kMostComparisons = std::uint64_t{1} << 25;
    const std::uint64_t comparisons = comparisonsFor(values);
    if (comparisons == 0) return true;
    std::uint64_t largest = 1;
    for (const Number content : table_.graph.referencesOf(number)) {
        largest = std::max(largest, sizes_[content]);
    }
    const std::uint64_t left = kMostComparisons - comparisons_;
    if (comparisons > left / largest) {
        reason_ = u"a set or dictionary that takes too long to make";
        return false;
    }
    comparisons_ += comparisons * largest;
    return true;
}

std::nullopt_t ArchiveReader::unreadable(StringView reason, StringView name) {
    if (reason_.empty()) (reason_ += reason) += name;
    return std::nullopt;
}

PropertyListResult unarchivedValue(DataView bytes, const ArchiveClasses& classes) {
    return ArchiveReader(classes).read(bytes);
}

}  // namespace QZCore
