#include "QZCore/codecs/file_names.h"

#include <pwd.h>
#include <unistd.h>

#include <filesystem>

#include "support/exact_copy.h"
#include "support/printing.h"
#include "support/temporary_folder.h"

namespace QZCore {
namespace {

constexpr StringView kHome = u"/home/ann";

}  // namespace

TEST_CASE("a file name is shown without folders and extension") {
    struct Row {
        const char* why;
        StringView text, name;
    };
    const Row rows[] = {
        {"a path", u"/a/b.c/Report.pdf", u"Report"},
        {"one extension only", u"archive.tar.gz", u"archive.tar"},
        {"an alias loses one more", u"Report.pdf.alias", u"Report"},
        {"an alias without another", u"Report.alias", u"Report"},
        {"an alias of an alias", u"Report.alias.alias", u"Report"},
        {"another spelling is no alias", u"Report.pdf.Alias", u"Report.pdf"},
        {"a name that begins with its dot", u"/a/.profile", u".profile"},
        {"a dot at the end", u"what.", u"what."},
        {"a slash at the end", u"/a/Folder.bundle//", u"Folder"},
        {"no extension", u"Makefile", u"Makefile"},
        {"the root", u"//", u"/"},
        {"nothing", u"", u""},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(fileNameOnly(testing::ExactCopy(row.text)) == row.name);
    }
    CHECK(caseInsensitiveCompareOfFileNameOnly(u"/a/REPORT.txt", u"report.pdf.alias") == 0);
    CHECK(caseInsensitiveCompareOfFileNameOnly(u"/z/Alpha.txt", u"/a/beta") == -1);
    CHECK(caseInsensitiveCompareOfFileNameOnly(u"beta", u"ALPHA") == 1);
}

TEST_CASE("a name is made safe for the file system") {
    struct Row {
        const char* why;
        StringView text;
        std::size_t limit;
        StringView name;
    };
    const Row rows[] = {
        {"trimmed, cleaned and cut", u"  a/b:c  ", 2, u"ab"},
        {"nothing left", u" /:? ", 0, u"none"},
        {"all unsafe characters", StringView(u"a/\\?%*:\"<>\0b", 12), 0, u"ab"},
        {"no second trimming", u"a / b", 2, u"a "},
        {"line ends are trimmed", u"\r\na\u2028", 0, u"a"},
        {"safe ones stay", u"a|b.c-d", 0, u"a|b.c-d"},
        {"a limit beyond the length", u"abc", SIZE_MAX, u"abc"},
        {"a limit within a surrogate pair", u"\U0001F600", 1, u"\xD83D"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(fileSafeTruncatedToMaxLength(testing::ExactCopy(row.text), row.limit, u"none") ==
              row.name);
    }
    CHECK(fileSafe(u" ?? ").empty());
    CHECK(fileSafe(u" a?b ") == u"ab");
}

TEST_CASE("paths are shown with names that people know") {
    struct Row {
        const char* why;
        StringView path, shown;
        bool isInCloud;
    };
    const Row rows[] = {
        {"elsewhere", u"/usr/share", u"/usr/share", false},
        {"the home folder", u"/home/ann", u"~", false},
        {"below the home folder", u"/home/ann/Notes/a.txt", u"~/Notes/a.txt", false},
        {"somebody else's folder", u"/home/anna/Notes", u"/home/anna/Notes", false},
        {"not at the start", u"/mnt/home/ann/x", u"/mnt/home/ann/x", false},
        {"a path that is short already", u"~/Dropbox/x", u"~/Dropbox/x", true},
        {"a service's folder", u"/home/ann/Dropbox/x", u"~/Dropbox/x", true},
        {"a test of text alone", u"/home/ann/Boxes", u"~/Boxes", true},
        {"documents", u"/home/ann/Library/Mobile Documents/com~apple~CloudDocs/a",
         u"iCloud Drive/a", true},
        {"another place of the same", u"/home/ann/Library/CloudStorage/iCloud Drive/a",
         u"iCloud Drive/a", true},
        {"exactly these capitals", u"/home/ann/Library/CloudStorage/Onedrive-Personal/a",
         u"OneDrive/a", true},
        {"other capitals", u"/home/ann/Library/CloudStorage/OneDrive-Personal/a",
         u"iCloud Drive/OneDrive-Personal/a", true},
        {"a box", u"/home/ann/Library/CloudStorage/Box-Box/a", u"Box/a", true},
        {"an application's folder", u"/home/ann/Library/Mobile Documents/x~y/a",
         u"iCloud Drive/x~y/a", true},
        {"documents that are not there", u"/home/ann/Library/Mobile Documents/x~y/Documents/a",
         u"iCloud Drive/x~y/Documents/a", true},
        {"the folder itself", u"/home/ann/Library/CloudStorage", u"~/Library/CloudStorage", false},
        {"nothing", u"", u"", false},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const String prefix = row.isInCloud ? u"\u2601\uFE0F " : u"";
        CHECK(friendlyPathWithCloudEmoji(row.path, false, kHome) == row.shown);
        CHECK(friendlyPathWithCloudEmoji(row.path, true, kHome) == prefix + String(row.shown));
        CHECK(isPathInCloud(testing::ExactCopy(row.path), kHome) == row.isInCloud);
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
    CHECK(shown(u"Documents") == u"iCloud Drive/Documents");
    CHECK(shown(u"Documents/") == u"iCloud Drive/Documents");
    CHECK(shown(u"a/b.txt") == u"iCloud Drive/x~y/a/b.txt");
    CHECK(shown(StringView(u"Documents/\0", 11)) == u"iCloud Drive/Documents");
}

TEST_CASE("the home folder is the user database's") {
    const passwd* user = getpwuid(getuid());
    REQUIRE(user != nullptr);
    const String home = fromUTF8(user->pw_dir);
    CHECK(friendlyPath(home + u"/Dropbox/x") == u"\u2601\uFE0F ~/Dropbox/x");
    CHECK(isPathInCloud(home + u"/Dropbox/x"));
}

}  // namespace QZCore
