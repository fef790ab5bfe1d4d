// Settings files: whatever a file holds, settings are loaded from it or left as
// they were, what they save is what they load, and an unreadable file is kept.
#include "QZCore/model/settings.h"

#include "QZCore/color/stored_colors.h"
#include "QZCore/foundation/files.h"
#include "require.h"
#include "support/temporary_folder.h"

using namespace QZCore;

namespace {

/// Colours as older versions kept them.
void readColors(const QZSettings& settings) {
    const Preferences preferences(settings);
    for (const Value& key : settings.keyEnumerator()) {
        (void)colorForKey(preferences, *key.string());
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const testing::TemporaryFolder folder;
    const std::string path = folder / "settings";
    const URL url = URL::fromFilePath(path);
    require(writeFileAtomically(path, {data, size}));
    QZSettings settings;
    settings.setObject(1, u"own");
    const bool isReadable = settings.loadWithContentsOfURL(url);
    require(!settings.modified());
    if (!isReadable) require(settings.count() == 1);
    readColors(settings);

    require(settings.save());
    const std::string aside = path + ".unreadable-1";
    const auto kept = readFile(aside);
    require(kept.has_value() != isReadable);
    if (kept) require(*kept == Data(data, data + size) && std::filesystem::remove(aside));

    const auto saved = readFile(path);
    QZSettings loaded;
    require(loaded.loadWithContentsOfURL(url) && loaded.count() == settings.count());
    require(loaded.save() && readFile(path) == saved);
    return 0;
}
