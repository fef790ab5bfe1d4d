// QZSettings: a dictionary that knows its file.
//
// It remembers whether it was changed, and saves itself when asked to. The file
// is a property list whose root is a dictionary, written as XML. It is replaced
// as a whole: whatever happens meanwhile, the old file or the new one is there.
//
// `fileURL` may be read and set from any thread; everything else is used from
// one thread at a time. Nothing is logged.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>

#include "QZCore/export.h"
#include "QZCore/foundation/data.h"
#include "QZCore/foundation/dictionary.h"
#include "QZCore/foundation/value.h"

namespace QZCore {

/// A mutable dictionary with a file behind it. Wherever a dictionary is read,
/// settings can stand in for theirs: `boolForKey(settings, u"Wrap", true)`.
class QZ_EXPORT QZSettings {
public:
    // ---- Making ----

    /// The settings of the process; empty at first.
    [[nodiscard]] static QZSettings& shared();

    /// No entries, not modified, no file.
    QZSettings();

    /// The first `count` objects under the keys at the same places, not
    /// modified, no file. What lies beyond the end of one of the lists, and a
    /// pair of which one part is absent, does not count; of equal keys the last
    /// does.
    [[nodiscard]] static std::unique_ptr<QZSettings> initWithObjects(const Array& objects,
                                                                     const Array& forKeys,
                                                                     std::size_t count);

    /// Lets go of the entries; saves nothing.
    ~QZSettings();
    QZSettings(const QZSettings&) = delete;
    QZSettings& operator=(const QZSettings&) = delete;

    // ---- Reading ----

    /// The number of entries.
    [[nodiscard]] std::size_t count() const { return dict_.count(); }
    /// The value under `key`; absent when the key is.
    [[nodiscard]] Value objectForKey(const Value& key) const { return dict_.objectForKey(key); }
    /// The keys, in the order in which they were first set.
    [[nodiscard]] Array keyEnumerator() const;
    /// The entries. Valid until they change.
    [[nodiscard]] operator const Dictionary&() const { return dict_; }

    // ---- Changing ----

    /// Stores `object` under the key. The settings are modified from then on,
    /// also when the key held an equal value. An absent object or key changes
    /// no entry.
    void setObject(Value object, Value forKey);
    /// Removes the key. The settings are modified from then on, also when there
    /// was no such key.
    void removeObjectForKey(const Value& key);

    // ---- The file ----

    /// Adds the entries of the file to those that are there; they replace those
    /// with equal keys. The settings have this file then, and are not modified,
    /// also when it cannot be read; nothing is added in that case. Returns
    /// whether it could be; a file that does not exist counts as empty.
    bool loadWithContentsOfURL(const URL& url);

    /// Writes all entries to the file and returns whether that succeeded. It
    /// does not without a file URL, for a file that is protected from writing,
    /// and for values that no property list holds. Permissions are kept, and a
    /// symbolic link is followed.
    ///
    /// A file that was there and could not be read when it was loaded is not
    /// lost: it stays beside the new one, under the first free name of
    /// "NAME.unreadable-1" and so on.
    ///
    /// What was modified counts as modified still. Deliberate: `saveIfModified`
    /// writes again until somebody clears `modified`.
    bool save();

    /// `save` when the settings are modified; returns whether everything is in
    /// the file, as far as `modified` tells.
    bool saveIfModified();

    /// Whether `setObject` or `removeObjectForKey` was called since the settings
    /// were made or loaded.
    [[nodiscard]] bool modified() const { return modified_; }
    /// Sets or clears that.
    void setModified(bool modified) { modified_ = modified; }

    /// The file; nothing as long as there is none.
    [[nodiscard]] std::optional<URL> fileURL() const;
    /// Makes another file that of the settings, without looking at it.
    void setFileURL(const std::optional<URL>& url);

private:
    struct Files;

    Dictionary dict_;
    bool modified_ = false;
    std::unique_ptr<Files> files_;
};

}  // namespace QZCore
