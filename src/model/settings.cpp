#include "QZCore/model/settings.h"

#include <algorithm>
#include <mutex>
#include <utility>

#include "foundation/settings_files.h"
#include "platform/file_url.h"

namespace QZCore {

/// The file URL under its lock, and what is known of the files.
struct QZSettings::Files {
    std::mutex mutex;
    std::optional<URL> url;
    SettingsFiles known;
};

QZSettings::QZSettings() : files_(std::make_unique<Files>()) {}

QZSettings::~QZSettings() = default;

QZSettings& QZSettings::shared() {
    static QZSettings& instance = *new QZSettings;
    return instance;
}

std::unique_ptr<QZSettings> QZSettings::initWithObjects(const Array& objects, const Array& forKeys,
                                                        std::size_t count) {
    auto settings = std::make_unique<QZSettings>();
    const std::size_t pairs = std::min({count, objects.size(), forKeys.size()});
    for (std::size_t i = 0; i < pairs; ++i) settings->dict_.setObject(objects[i], forKeys[i]);
    return settings;
}

// ---- Entries ----

Array QZSettings::keyEnumerator() const {
    Array keys;
    for (const auto& [key, value] : dict_) keys.push_back(key);
    return keys;
}

void QZSettings::setObject(Value object, Value forKey) {
    modified_ = true;
    dict_.setObject(std::move(object), std::move(forKey));
}

void QZSettings::removeObjectForKey(const Value& key) {
    modified_ = true;
    dict_.removeObjectForKey(key);
}

// ---- The file ----

bool QZSettings::loadWithContentsOfURL(const URL& url) {
    setFileURL(url);
    modified_ = false;
    const auto path = filePathOfUrl(toUTF8(url.absoluteString));
    if (!path) return false;
    const PropertyListResult file = files_->known.read(*path);
    const Dictionary* stored = file.value.dictionary();
    if (stored == nullptr) return false;
    for (const auto& [key, value] : *stored) dict_.setObject(value, key);
    return true;
}

bool QZSettings::save() {
    const auto url = fileURL();
    const auto path = url ? filePathOfUrl(toUTF8(url->absoluteString)) : std::nullopt;
    return path && files_->known.write(*path, dict_);
}

bool QZSettings::saveIfModified() { return !modified_ || save(); }

std::optional<URL> QZSettings::fileURL() const {
    const std::lock_guard lock(files_->mutex);
    return files_->url;
}

void QZSettings::setFileURL(const std::optional<URL>& url) {
    std::optional<URL> replaced = url;
    const std::lock_guard lock(files_->mutex);
    std::swap(files_->url, replaced);
}

}  // namespace QZCore
