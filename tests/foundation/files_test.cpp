#include "QZCore/foundation/files.h"

#include <grp.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <fstream>

#include "foundation/saving_name.h"
#include "support/printing.h"
#include "support/temporary_folder.h"
#include "support/text_files.h"

namespace QZCore {
namespace {

namespace fs = std::filesystem;
using testing::contentOf;
using testing::writeText;

struct ::stat standingOf(const std::string& path) {
    struct ::stat standing = {};
    REQUIRE(::stat(path.c_str(), &standing) == 0);
    return standing;
}

/// Whether `work` is true in a process of its own.
template <class Work>
bool holdsInChild(Work work) {
    const pid_t child = ::fork();
    if (child == 0) ::_exit(work() ? 0 : 1);
    int status = -1;
    return ::waitpid(child, &status, 0) == child && status == 0;
}

}  // namespace

TEST_CASE("a file reads back as it was written, and nothing else stays behind") {
    const testing::TemporaryFolder folder;
    const std::string large(3'000'000, 'x');
    for (const std::string& text : {std::string("one"), std::string(), large}) {
        REQUIRE(writeText(folder / "file", text));
        CHECK((contentOf(folder / "file") == text));
        CHECK(folder.count() == 1);
    }
    CHECK(readFile(folder / "file", large.size()).has_value());
    CHECK_FALSE(readFile(folder / "file", large.size() - 1).has_value());
    CHECK_FALSE(readFile(folder / "missing").has_value());
    CHECK_FALSE(readFile(folder / "").has_value());
    REQUIRE(::mkfifo((folder / "pipe that nobody writes to").c_str(), 0600) == 0);
    CHECK_FALSE(readFile(folder / "pipe that nobody writes to").has_value());
    CHECK_FALSE(readFile("/dev/null").has_value());
    const std::string longName(255, 'n');
    CHECK(writeText(folder / longName, "long"));
    CHECK(contentOf(folder / longName) == "long");
}

TEST_CASE("a replaced file keeps its permissions") {
    const testing::TemporaryFolder folder;
    const std::string path = folder / "file";
    REQUIRE(writeText(path, "old"));
    for (const mode_t mode : {0600U, 0640U, 0664U, 0755U}) {
        ::chmod(path.c_str(), mode);
        REQUIRE(writeText(path, "new"));
        CHECK((standingOf(path).st_mode & 07777) == mode);
    }
    constexpr gid_t kCommon = 54'321;
    if (::chown(path.c_str(), 0, kCommon) != 0) return;  // only the superuser can give files away
    fs::permissions(folder.path(), fs::perms::all);
    fs::permissions(path, fs::perms::all);
    CHECK(holdsInChild([&] {
        return ::setgroups(1, &kCommon) == 0 && ::setgid(12'345) == 0 && ::setuid(12'345) == 0 &&
               writeText(path, "from another member of the group");
    }));
    CHECK(standingOf(path).st_uid == 12'345);
    CHECK(standingOf(path).st_gid == kCommon);
    CHECK((standingOf(path).st_mode & 07777) == 0777);
}

TEST_CASE("a link stays a link to the file that is replaced") {
    const testing::TemporaryFolder folder;
    fs::create_directory(folder / "inner");
    REQUIRE(writeText(folder / "inner/file", "old"));
    fs::create_symlink("inner/file", folder / "link");
    fs::create_symlink("link", folder / "link to the link");
    fs::create_symlink("inner/later", folder / "dangling");
    CHECK(writeText(folder / "link to the link", "new"));
    CHECK(contentOf(folder / "inner/file") == "new");
    CHECK(fs::is_symlink(folder / "link"));
    CHECK(writeText(folder / "dangling", "made"));
    CHECK(contentOf(folder / "inner/later") == "made");
    fs::create_symlink("circle", folder / "circle");
    CHECK_FALSE(writeText(folder / "circle", "x"));
}

TEST_CASE("a save that fails leaves everything as it was") {
    const testing::TemporaryFolder folder;
    fs::create_directory(folder / "folder");
    REQUIRE(::mkfifo((folder / "pipe").c_str(), 0600) == 0);
    REQUIRE(writeText(folder / "file", "old"));
    CHECK_FALSE(writeText(folder / "folder", "x"));
    CHECK_FALSE(writeText(folder / "pipe", "x"));
    CHECK_FALSE(writeText(folder / "missing/file", "x"));
    CHECK_FALSE(writeText(folder / "file/below", "x"));
    CHECK(fs::is_fifo(folder / "pipe"));

    // A write beyond the limit for file sizes fails in the middle.
    CHECK(holdsInChild([&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{1000, 1000};
        return ::setrlimit(RLIMIT_FSIZE, &limit) == 0 &&
               !writeText(folder / "file", std::string(5000, 'x'));
    }));
    CHECK(contentOf(folder / "file") == "old");
    CHECK(folder.count() == 3);
}

TEST_CASE("a reader never sees half a file") {
    const testing::TemporaryFolder folder;
    const std::string path = folder / "file";
    const std::string a(200'000, 'a');
    const std::string b(300'000, 'b');
    REQUIRE(writeText(path, a));
    const pid_t child = ::fork();
    REQUIRE(child >= 0);
    if (child == 0) {
        for (int i = 0;; ++i) (void)writeText(path, i % 2 == 0 ? b : a);
    }
    int whole = 0;
    for (int i = 0; i < 400; ++i) {
        const std::string seen = contentOf(path);
        whole += seen == a || seen == b ? 1 : 0;
    }
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    CHECK(whole == 400);
}

TEST_CASE("what a stopped save left behind goes away after an hour") {
    const testing::TemporaryFolder folder;
    const auto hoursAgo = [](int hours) {
        return fs::file_time_type::clock::now() - std::chrono::hours(hours);
    };
    for (const char* name : {".file.12-3.saving", ".file.99-0.saving", ".other.1-1.saving",
                             ".file.mine.saving", "file.12-3.saving"}) {
        std::ofstream(folder / name) << "x";
        fs::last_write_time(folder / name, hoursAgo(2));
    }
    fs::last_write_time(folder / ".file.99-0.saving", hoursAgo(0));
    REQUIRE(writeText(folder / "file", "x"));
    CHECK_FALSE(fs::exists(folder / ".file.12-3.saving"));
    CHECK(folder.count() == 5);

    // It may be in the way of a process that has the same number by chance.
    const std::string latest = nextSavingName(folder / "file").filename().string();
    const std::size_t numberAt = latest.rfind('-') + 1;
    const std::string next = latest.substr(0, numberAt) +
                             std::to_string(std::stoi(latest.substr(numberAt)) + 1) + ".saving";
    std::ofstream(folder / next) << "x";
    CHECK(writeText(folder / "file", "y"));
    CHECK(contentOf(folder / next) == "x");
}

}  // namespace QZCore
