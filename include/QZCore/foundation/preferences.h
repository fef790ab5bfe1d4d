// Preferences: the store of user settings that the library reads its switches
// from.
//
// One store serves the process (`shared`); others can be made, for a test or a
// tool. A store lives in memory until an application opens a property-list
// file for it. Every read names the default that an absent key gives; a stored
// value of another kind is converted by its own rules, never replaced by the
// default.
//
// Every operation may be called from any thread.
#pragma once

#include <memory>
#include <string>

#include "QZCore/export.h"
#include "QZCore/foundation/dictionary.h"
#include "QZCore/foundation/text.h"
#include "QZCore/foundation/value.h"

namespace QZCore {

/// A thread-safe dictionary of user settings.
class QZ_EXPORT Preferences {
public:
    /// An empty store in memory.
    Preferences();
    /// A store in memory with the given entries.
    explicit Preferences(const Dictionary& entries);
    ~Preferences();
    Preferences(const Preferences&) = delete;
    Preferences& operator=(const Preferences&) = delete;

    /// The store of the process.
    [[nodiscard]] static Preferences& shared();

    // ---- Reading ----

    /// The value under `key`; absent when the key is.
    [[nodiscard]] Value objectForKey(StringView key) const;
    /// The value under `key`, or the default when the key is absent.
    [[nodiscard]] Value objectForKey(StringView key, const Value& withDefault) const;
    /// The value under `key` as a boolean (`Value::boolValue`).
    [[nodiscard]] bool boolForKey(StringView key, bool withDefault = false) const;
    /// The value under `key` as a 32-bit integer.
    [[nodiscard]] std::int32_t intForKey(StringView key, std::int32_t withDefault = 0) const;
    /// The value under `key` as a 64-bit integer.
    [[nodiscard]] std::int64_t integerForKey(StringView key, std::int64_t withDefault = 0) const;
    /// The same as `integerForKey`.
    [[nodiscard]] std::int64_t unsignedForKey(StringView key, std::int64_t withDefault = 0) const;
    /// The value under `key` in double precision.
    [[nodiscard]] double doubleForKey(StringView key, double withDefault = 0) const;
    /// The value under `key` in single precision.
    [[nodiscard]] float floatForKey(StringView key, float withDefault = 0) const;
    /// The string under `key`, a number as its text. A value of any other kind
    /// gives an empty string.
    [[nodiscard]] String stringForKey(StringView key, StringView withDefault = {}) const;

    /// All entries as they are now.
    [[nodiscard]] Dictionary snapshot() const;

    // ---- Changing ----

    /// Stores `object` under the key; an absent object removes the key.
    void setObject(const Value& object, StringView forKey);
    /// Removes the key.
    void removeObjectForKey(StringView key);
    /// Replaces all entries.
    void setAllObjects(const Dictionary& entries);

    // ---- The file behind the store ----

    /// Backs the store by the property-list file at `path`: its entries replace
    /// those with equal keys, and `save` writes there. A file that does not
    /// exist counts as empty. Returns false when there is a file that cannot be
    /// read as a dictionary; then nothing is added, one line is logged, and the
    /// first `save` keeps the unreadable file aside under a new name.
    bool open(const std::string& path);

    /// Writes all entries to the file and returns whether that succeeded; false
    /// when no file was opened.
    [[nodiscard]] bool save();

private:
    struct State;
    std::unique_ptr<State> state_;
};

}  // namespace QZCore
