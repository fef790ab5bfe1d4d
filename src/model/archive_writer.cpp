#include "model/archive_writer.h"

#include <algorithm>
#include <utility>

#include "QZCore/foundation/dictionary.h"
#include "foundation/property_list_scalars.h"

namespace QZCore {
namespace {

using namespace archive_format;

/// Stands before each key in the names of a form. No property list can hold it.
constexpr char16_t kNameSeparator = 0xFFFF;

/// The shared thing that a value refers to; null when it holds a scalar.
const void* sharedThing(const Value& value) {
    switch (value.kind()) {
        case ValueKind::Text:
            return value.string();
        case ValueKind::Bytes:
            return value.data();
        case ValueKind::URL:
            return value.url();
        case ValueKind::List:
            return value.array();
        case ValueKind::Set:
            return value.set();
        case ValueKind::Dictionary:
            return value.dictionary();
        case ValueKind::Object:
            return value.object().get();
        default:
            return nullptr;
    }
}

/// The form of a plain value; nothing when it stands for itself.
std::optional<PlainForm> plainFormOf(const Value& value) {
    switch (value.kind()) {
        case ValueKind::List:
            return value.mutableArray() == nullptr ? PlainForm::List : PlainForm::MutableList;
        case ValueKind::Dictionary:
            return value.mutableDictionary() == nullptr ? PlainForm::Dictionary
                                                        : PlainForm::MutableDictionary;
        case ValueKind::Set:
            return PlainForm::Set;
        case ValueKind::Date:
            return PlainForm::Date;
        case ValueKind::URL:
            return PlainForm::URL;
        case ValueKind::Text:
            if (isPropertyListText(*value.string())) return std::nullopt;
            return PlainForm::Text;
        default:
            return std::nullopt;
    }
}

Data unitsOf(StringView text) {
    Data bytes;
    for (const char16_t unit : text) {
        bytes.push_back(static_cast<std::uint8_t>(unit & 0xFF));
        bytes.push_back(static_cast<std::uint8_t>(unit >> 8));
    }
    return bytes;
}

Array namesOfForm(StringView names) {
    Array form;
    while (true) {
        const std::size_t end = names.find(kNameSeparator);
        form.push_back(names.substr(0, end));
        if (end == StringView::npos) return form;
        names.remove_prefix(end + 1);
    }
}

}  // namespace

PropertyListData ArchiveWriter::write(const Value& root) {
    const Number rootNumber = numberOf(root);
    Array objects;
    for (std::size_t i = 0; i < values_.size() && error_.empty(); ++i) {
        const Value value = values_[i];
        const std::size_t classNumber = classOf(value);
        if (classNumber == ArchiveRows::kNone) {
            fail(u"an object of a class that is not allowed");
            break;
        }
        objects.push_back(storedForm(value, classNumber));
        graph_.addObject(walkOf(classNumber));
        classNumbers_.push_back(classNumber);
    }
    if (error_.empty()) checkGraph(rootNumber);
    if (!error_.empty()) return {std::nullopt, error_};

    Dictionary archive;
    archive.setObject(kVersion, kVersionKey);
    archive.setObject(coding_ == ArchiveCoding::Keyed ? kKeyed : kSequential, kCodingKey);
    archive.setObject(std::move(forms_), kFormsKey);
    archive.setObject(std::move(objects), kObjectsKey);
    archive.setObject(rootNumber, kRootKey);
    return writePropertyList(std::move(archive));
}

// ---- References ----

ArchiveWriter::Number ArchiveWriter::numberOf(const Value& value) {
    if (value.isAbsent()) return 0;
    const auto next = static_cast<Number>(values_.size() + 1);
    if (next == IdentityTable::kNone) {
        fail(u"too many objects");
        return 0;
    }
    // What only this value refers to cannot be met again.
    if (value.isShared()) {
        const void* thing = sharedThing(value);
        if (!numbers_.add(thing, next)) return numbers_.find(thing);
    }
    values_.push_back(value);
    return next;
}

void ArchiveWriter::addReference(const Value& value) {
    const Number number = numberOf(value);
    graph_.addReference(number);
    contents_.push_back(number);
}

// ---- Objects ----

Value ArchiveWriter::storedForm(const Value& value, std::size_t classNumber) {
    contents_.assign(1, Value());  // the place of the form
    if (value.kind() == ValueKind::Object) {
        addClassContents(*value.object(), classNumber);
    } else {
        const auto form = plainFormOf(value);
        if (!form) return value;
        addPlainContents(value, *form);
    }
    contents_.front() = formNumber();
    return std::move(contents_);
}

void ArchiveWriter::addPlainContents(const Value& value, PlainForm form) {
    formNames_ = rowOf(form).name;
    switch (form) {
        case PlainForm::List:
        case PlainForm::MutableList:
            for (const Value& element : *value.array()) addReference(element);
            return;
        case PlainForm::Set:
            for (const Value& member : value.set()->allObjects()) addReference(member);
            return;
        case PlainForm::Dictionary:
        case PlainForm::MutableDictionary:
            for (const auto& [key, object] : *value.dictionary()) {
                addReference(key);
                addReference(object);
            }
            return;
        case PlainForm::Date:
            contents_.push_back(value.date()->secondsSince1970);
            return;
        case PlainForm::URL:
            addReference(value.url()->absoluteString);
            return;
        case PlainForm::Text:
            contents_.push_back(unitsOf(*value.string()));
            return;
    }
}

void ArchiveWriter::addClassContents(const Object& object, std::size_t classNumber) {
    formNames_ = rows_[classNumber].name;
    ArchiveEncoder encoder(*this);
    rows_[classNumber].encode(object, encoder);
}

void ArchiveWriter::addContent(const Value& object) { addReference(object); }

void ArchiveWriter::addContent(const Value& object, StringView forKey) {
    if (forKey.find(kNameSeparator) != StringView::npos) fail(u"a key that cannot be stored");
    formNames_ += kNameSeparator;
    formNames_ += forKey;
    addReference(object);
}

/// The number of the form that the object whose turn it is has.
std::int64_t ArchiveWriter::formNumber() {
    const auto next = static_cast<std::int64_t>(forms_.size());
    const auto [at, isNew] = formNumbers_.try_emplace(formNames_, next);
    if (isNew) forms_.push_back(namesOfForm(formNames_));
    return at->second;
}

// ---- Classes ----

std::size_t ArchiveWriter::classOf(const Value& value) const {
    const auto plain = plainClassOf(value.kind());
    return plain ? ArchiveRows::numberOf(*plain) : rows_.numberOf(*value.object());
}

ArchiveGraph::Walk ArchiveWriter::walkOf(std::size_t classNumber) const {
    if (classNumber < ArchiveRows::kPlainClasses) return ArchiveGraph::Walk::Through;
    return rows_[classNumber].isWalked ? ArchiveGraph::Walk::Onward : ArchiveGraph::Walk::Ended;
}

/// Whether it can be read again: there is an order to make everything in, and
/// everything is allowed where it is.
void ArchiveWriter::checkGraph(Number root) {
    const ArchiveGraph::Order order = graph_.makingOrder(root);
    if (!order.fault.empty()) return fail(order.fault);
    ClassUse use(graph_, rows_.count());
    bool isAllowed = true;
    for (const Number number : order.objects) {
        const std::size_t classNumber = classNumbers_[number - 1];
        const bool isPlain = classNumber < ArchiveRows::kPlainClasses;
        use.note(number, classNumber, isPlain);
        if (isPlain) continue;
        for (const Number content : graph_.referencesOf(number)) {
            isAllowed = isAllowed && use.isWithin(content, rows_.allowedInside(classNumber));
        }
    }
    if (!isAllowed || !use.isWithin(root, rows_.allowed())) fail(u"a class that is not allowed");
}

// ---- Faults ----

void ArchiveWriter::failCoding() {
    fail(u"contents with keys in a sequential archive, or without");
}

void ArchiveWriter::fail(StringView reason) {
    if (error_.empty()) error_ = reason;
}

PropertyListData archivedData(const Value& root, const ArchiveClasses& classes,
                              ArchiveCoding coding) {
    return ArchiveWriter(classes, coding).write(root);
}

}  // namespace QZCore
