// Archives: values with all that they refer to, as property lists.
//
// What is referred to more than once is kept once, and is shared again after
// reading. Objects of classes take part by two functions that hand their
// contents to an encoder and get them back from a decoder; nothing recurses,
// and archives of any depth are written and read in linear time.
//
// Writing and reading are told which classes there may be. A name that is not
// in the list cannot become an object, whatever the bytes say.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "QZCore/export.h"
#include "QZCore/foundation/property_list.h"
#include "QZCore/foundation/value.h"
#include "QZCore/model/archived_class.h"

namespace QZCore {

// ---- Encoding and decoding --------------------------------------------------

/// How objects keep their contents.
enum class ArchiveCoding : std::uint8_t {
    Keyed,      // under keys, so that later versions can leave some out and add others
    Sequential  // one after the other
};

struct ArchiveForm;
class ArchiveReader;
class ArchiveWriter;

/// Takes the contents of one object.
class QZ_EXPORT ArchiveEncoder {
public:
    /// Whether contents have keys.
    [[nodiscard]] bool allowsKeyedCoding() const;

    /// Adds `object`, which may be absent, under a key that is used once, in a
    /// keyed archive. In a sequential one this is a mistake and nothing is
    /// written.
    void encodeObject(Value object, StringView forKey);

    /// Adds `object`, which may be absent, in a sequential archive. In a keyed
    /// one this is a mistake and nothing is written.
    void encodeObject(Value object);

    /// Adds `object` under the key in a keyed archive, as the next in a
    /// sequential one: for objects that have the same contents in both.
    void encodeContent(Value object, StringView forKey);

    ArchiveEncoder(const ArchiveEncoder&) = delete;
    ArchiveEncoder& operator=(const ArchiveEncoder&) = delete;

private:
    friend class ArchiveWriter;
    explicit ArchiveEncoder(ArchiveWriter& writer) : writer_(writer) {}

    ArchiveWriter& writer_;
};

/// Gives the contents of one object back. What they refer to has been made
/// before, so objects that refer to each other in a circle cannot be read.
class QZ_EXPORT ArchiveDecoder {
public:
    /// Whether contents have keys.
    [[nodiscard]] bool allowsKeyedCoding() const;

    /// Whether there is something under `key`, readable or not.
    [[nodiscard]] bool containsValueForKey(StringView key) const;

    /// What is under `key` in a keyed archive; an absent value when there is
    /// nothing. No value at all when it cannot be read: it is of a class that
    /// is not allowed, or holds something that cannot be read.
    [[nodiscard]] std::optional<Value> decodeObjectForKey(StringView key) const;

    /// The same, when all of it is of these classes, or of classes derived from
    /// them. What objects in it hold is their own matter.
    [[nodiscard]] std::optional<Value> decodeObjectForKey(StringView key,
                                                          const ArchiveClasses& ofClasses) const;

    /// The next of the contents in a sequential archive; an absent value when
    /// there are no more. No value at all when it cannot be read.
    [[nodiscard]] std::optional<Value> decodeObject();

    /// What `encodeContent` has added under the key.
    [[nodiscard]] std::optional<Value> decodeContent(StringView forKey);

    ArchiveDecoder(const ArchiveDecoder&) = delete;
    ArchiveDecoder& operator=(const ArchiveDecoder&) = delete;

private:
    friend class ArchiveReader;
    ArchiveDecoder(const ArchiveReader& reader, const ArchiveForm& form, std::uint32_t number)
        : reader_(reader), form_(form), number_(number) {}

    const ArchiveReader& reader_;
    const ArchiveForm& form_;
    std::uint32_t number_;
    std::size_t next_ = 0;
};

// ---- Archives ---------------------------------------------------------------
//
// The format is a property list with a dictionary as its root:
//
//     QZArchive  the integer 1, the version of this format
//     coding     the string "keyed" or "sequential"
//     forms      an array of arrays of strings. The first string names a class;
//                in a keyed archive, the keys of the objects of the form follow.
//     objects    an array of objects, which are numbered from 1 on
//     root       the number of the root; 0 is the absent value, here and below
//
// Other keys are ignored. A string, number, boolean or data among the objects
// stands for itself. Every other object is an array: the position of its form
// in "forms", from 0 on, and its contents. These are, by the name of the form:
//
//     array, mutable array, set           the numbers of the elements
//     dictionary, mutable dictionary      the numbers of each key and its value
//     date                                a real: the seconds since 1970
//     URL                                 the number of its string
//     string                              data: the units of a string that XML
//                                         cannot hold, in two bytes each, the
//                                         low one first
//     any other name                      the numbers of the contents; in a
//                                         keyed archive in the order of the keys
//
// All of that is stored in documents.

/// `root`, and all that it refers to, as an archive; a reason when that cannot
/// be: a class that is not allowed, contents that were encoded the wrong way,
/// something inside itself, objects that are shared so often that they unfold
/// to more than 65,536 and sixteen times their number, more than a gibibyte.
[[nodiscard]] QZ_EXPORT PropertyListData archivedData(const Value& root,
                                                      const ArchiveClasses& classes,
                                                      ArchiveCoding coding = ArchiveCoding::Keyed);

/// The root of an archive, or a reason why it cannot be read. That is: bytes
/// that are no archive or are damaged, references to what is not there or in a
/// circle, unfolding as above, and a root of a class that is not allowed. A
/// container that holds something unreadable is unreadable, an object decides
/// for itself; then the reason is the first that was met. Sets and dictionaries
/// must not take more than 2^25 comparisons to make.
[[nodiscard]] QZ_EXPORT PropertyListResult unarchivedValue(DataView bytes,
                                                           const ArchiveClasses& classes);

}  // namespace QZCore
