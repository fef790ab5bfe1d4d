#include "QZCore/codecs/file_names.h"

#include <pwd.h>
#include <unistd.h>

#include <filesystem>

#include "support/temporary_folder.h"
#include "support/text_rows.h"

namespace QZCore {

TEST_CASE("a file name is shown without folders and extension") {
    const testing::TextRow<StringView> rows[] = {
        {"a path", u"/a/b.c/Report.pdf", u"Report"},
        {"one extension only", u"archive.tar.gz", u"archive.tar"},
        {"an alias loses one more", u"Report.pdf.alias", u"Report"},
        {"an alias of an alias", u"Report.alias.alias", u"Report"},
        {"another spelling is no alias", u"Report.pdf.Alias", u"Report.pdf"},
        {"a name that begins with its dot", u"/a/.profile", u".profile"},
        {"a dot at the end", u"what.", u"what."},
        {"a slash at the end", u"/a/Folder.bundle//", u"Folder"},
        {"the root", u"//", u"/"},
        {"nothing", u"", u""},
    };
    testing::checkRows(rows, fileNameOnly);
    CHECK(caseInsensitiveCompareOfFileNameOnly(u"/a/REPORT.txt", u"report.pdf.alias") == 0);
    CHECK(caseInsensitiveCompareOfFileNameOnly(u"/z/Alpha.txt", u"/a/beta") == -1);
    CHECK(caseInsensitiveCompareOfFileNameOnly(u"beta", u"ALPHA") == 1);
}

TEST_CASE("a name is made safe for the file system") {
    const auto safe = [](std::size_t limit) {
        return [=](StringView text) { return fileSafeTruncatedToMaxLength(text, limit, u"none"); };
    };
    const testing::TextRow<StringView> rows[] = {
        {"nothing left", u" /:? ", u"none"},
        {"all unsafe characters", StringView(u"\na/\\?%*:\"<>\0b\u2028", 14), u"ab"},
        {"safe ones stay", u"a|b. c-d", u"a|b. c-d"},
    };
    testing::checkRows(rows, safe(0));
    const testing::TextRow<StringView> cut[] = {
        {"trimmed, cleaned and cut", u"  a/b:c  ", u"ab"},
        {"no second trimming", u"a / b", u"a "},
        {"a limit within a surrogate pair", u"a\U0001F600", u"a\xD83D"},
        {"a limit that is reached", u"ab", u"ab"},
    };
    testing::checkRows(cut, safe(2));
    CHECK(fileSafe(u" ?? ").empty());
}

TEST_CASE("paths are shown with names that people know") {
    struct Row {
        StringView path, shown;
        bool isInCloud;
    };
    const StringView home = u"/home/ann";
    const Row rows[] = {
        {u"/usr/share", u"/usr/share", false},
        {u"/home/ann", u"~", false},
        {u"/home/anna/Notes", u"/home/anna/Notes", false},
        {u"/mnt/home/ann/x", u"/mnt/home/ann/x", false},
        {u"~/Dropbox/x", u"~/Dropbox/x", true},
        {u"/home/ann/Boxes", u"~/Boxes", true},
        {u"~/OneDrive", u"~/OneDrive", true},
        {u"~/Google Drive", u"~/Google Drive", true},
        {u"~/Library/Mobile Documents/com~apple~CloudDocs/a", u"iCloud Drive/a", true},
        {u"/home/ann/Library/CloudStorage/iCloud Drive/a", u"iCloud Drive/a", true},
        {u"~/Library/CloudStorage/Onedrive-Personal/a", u"OneDrive/a", true},
        {u"~/Library/CloudStorage/OneDrive-Personal", u"iCloud Drive/OneDrive-Personal", true},
        {u"/home/ann/Library/CloudStorage/Box-Box/a", u"Box/a", true},
        {u"~/Library/Mobile Documents/x~y/Documents/a", u"iCloud Drive/x~y/Documents/a", true},
        {u"/home/ann/Library/CloudStorage", u"~/Library/CloudStorage", false},
        {u"", u"", false},
    };
    for (const Row& row : rows) {
        CAPTURE(row.path);
        const String prefix = row.isInCloud ? u"\u2601\uFE0F " : u"";
        CHECK(friendlyPathWithCloudEmoji(row.path, false, home) == row.shown);
        CHECK(friendlyPathWithCloudEmoji(row.path, true, home) == prefix + String(row.shown));
        CHECK(isPathInCloud(testing::ExactCopy(row.path), home) == row.isInCloud);
    }
}

TEST_CASE("a folder of documents that exists stands for all that is in it") {
    const testing::TemporaryFolder home;
    const String homePath = fromUTF8(home.path().string());
    const auto cloud = std::filesystem::path("Library") / "Mobile Documents" / "x~y";
    std::filesystem::create_directories(home.path() / cloud / "Documents");
    const String base = homePath + u"/Library/Mobile Documents/x~y/";
    const auto shown = [&](StringView below) {
        return friendlyPathWithCloudEmoji(base + String(below), false, homePath + u"/");
    };
    CHECK(shown(u"Documents/a/b.txt") == u"iCloud Drive/Documents");
    CHECK(shown(u"Documents/") == u"iCloud Drive/Documents");
    CHECK(shown(u"a/b.txt") == u"iCloud Drive/x~y/a/b.txt");
    CHECK(shown(StringView(u"Documents/\0", 11)) == u"iCloud Drive/Documents");

    // The home folder is the user database's.
    const passwd* user = getpwuid(getuid());
    REQUIRE(user != nullptr);
    const String path = fromUTF8(user->pw_dir) + u"/Dropbox/x";
    CHECK(friendlyPath(path) == u"\u2601\uFE0F ~/Dropbox/x");
    CHECK(isPathInCloud(path));
}

}  // namespace QZCore
