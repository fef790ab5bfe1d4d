#include <algorithm>
#include <array>
#include <filesystem>
#include <optional>

#include "QZCore/codecs/file_names.h"
#include "codecs/home_folder.h"
#include "codecs/literal_search.h"

namespace QZCore {
namespace {

constexpr std::array<StringView, 6> kCloudBeginnings{
    u"~/Library/CloudStorage/",
    u"~/Library/Mobile Documents/",
    u"~/Dropbox",
    u"~/Google Drive",
    u"~/OneDrive",
    u"~/Box",
};

struct ServiceRow {
    StringView folder;
    StringView name;
};

// The capitals of "Onedrive" are those that users' disks have.
constexpr std::array kServices{
    ServiceRow{u"~/Library/Mobile Documents/com~apple~CloudDocs", u"iCloud Drive"},
    ServiceRow{u"~/Library/CloudStorage/iCloud Drive", u"iCloud Drive"},
    ServiceRow{u"~/Library/CloudStorage/Onedrive-Personal", u"OneDrive"},
    ServiceRow{u"~/Library/CloudStorage/Box-Box", u"Box"},
};

constexpr std::array kOtherServices{
    ServiceRow{u"~/Library/Mobile Documents", u"iCloud Drive"},
    ServiceRow{u"~/Library/CloudStorage", u"iCloud Drive"},
};

template <class Rows>
String withServiceNames(String path, const Rows& rows) {
    for (const ServiceRow& row : rows) path = replacingOccurrences(path, row.folder, row.name);
    return path;
}

/// `path` with "~" for the home folder and for that only: a folder whose name
/// merely begins like it is another one.
String withTilde(StringView path, StringView home) {
    while (home.ends_with(u'/')) home.remove_suffix(1);
    if (home.empty() || !path.starts_with(home)) return String(path);
    const StringView rest = path.substr(home.size());
    if (!rest.empty() && rest.front() != u'/') return String(path);
    return String(u"~").append(rest);
}

bool isFolder(StringView path) {
    std::error_code error;
    return path.find(u'\0') == StringView::npos &&
           std::filesystem::is_directory(toUTF8(path), error);
}

/// The name under which people know the folder at `path`, which is that of its
/// last component; nothing when there is no such folder.
std::optional<String> displayNameOfFolder(StringView path) {
    if (!isFolder(path)) return std::nullopt;
    return String(path.substr(path.rfind(u'/') + 1));
}

StringView parentOf(StringView path) {
    const std::size_t slash = path.rfind(u'/');
    return path.substr(0, slash == StringView::npos ? 0 : slash);
}

/// The nearest folder named "Documents" at or above `path`; empty when the
/// root is reached.
StringView documentsFolderAbove(StringView path) {
    while (!path.empty() && path.substr(path.rfind(u'/') + 1) != u"Documents") {
        path = parentOf(path);
    }
    return path;
}

String withoutServiceFolder(StringView path, String shown) {
    if (const auto name = displayNameOfFolder(documentsFolderAbove(path))) {
        // What lies below the folder is left out. Deliberate: that is how
        // users have come to know these paths.
        return u"iCloud Drive/" + *name;
    }
    return withServiceNames(std::move(shown), kOtherServices);
}

}  // namespace

bool isPathInCloud(StringView path) { return isPathInCloud(path, homeFolderOfUser()); }

bool isPathInCloud(StringView path, StringView homeFolder) {
    const String shown = withTilde(path, homeFolder);
    return std::ranges::any_of(kCloudBeginnings,
                               [&](StringView beginning) { return shown.starts_with(beginning); });
}

String friendlyPath(StringView path) { return friendlyPathWithCloudEmoji(path, true); }

String friendlyPathWithCloudEmoji(StringView path, bool withEmoji) {
    return friendlyPathWithCloudEmoji(path, withEmoji, homeFolderOfUser());
}

String friendlyPathWithCloudEmoji(StringView path, bool withEmoji, StringView homeFolder) {
    String shown = withServiceNames(withTilde(path, homeFolder), kServices);
    const bool isInOtherService = shown.starts_with(u"~/Library/Mobile Documents/") ||
                                  shown.starts_with(u"~/Library/CloudStorage/");
    if (isInOtherService) shown = withoutServiceFolder(path, std::move(shown));
    if (withEmoji && isPathInCloud(path, homeFolder)) shown.insert(0, u"\u2601\uFE0F ");
    return shown;
}

}  // namespace QZCore
