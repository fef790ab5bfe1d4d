#include "QZCore/model/settings.h"

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <fstream>
#include <thread>

#include "QZCore/codecs/typed_access.h"
#include "support/log_capture.h"
#include "support/placeholders.h"
#include "support/printing.h"
#include "support/temporary_folder.h"
#include "support/text_files.h"

namespace QZCore {
namespace {

namespace fs = std::filesystem;
using testing::contentOf;
using testing::writeText;

URL urlOf(const std::string& path) { return URL::fromFilePath(path); }

Value entriesOf(const QZSettings& settings) { return static_cast<const Dictionary&>(settings); }

}  // namespace

TEST_CASE("settings are a dictionary that notes every change") {
    const auto settings = QZSettings::initWithObjects({1, 2, Value(), 3}, {u"a", u"b", u"c"}, 4);
    CHECK(Value(settings->keyEnumerator()) == Value(Array{u"a", u"b"}));
    CHECK_FALSE(settings->modified());
    CHECK_FALSE(settings->fileURL().has_value());
    CHECK_FALSE(settings->save());
    CHECK(QZSettings::initWithObjects({1, 2}, {u"a", u"b"}, 1)->count() == 1);

    settings->removeObjectForKey(u"absent");
    CHECK(settings->modified());
    settings->setModified(false);
    settings->setObject(1, u"a");
    CHECK(settings->modified());
    settings->setObject(Value(), u"a");
    CHECK(settings->objectForKey(u"a") == Value(1));
    settings->removeObjectForKey(u"a");
    CHECK(entriesOf(*settings) == Value(Dictionary{{u"b", 2}}));
    CHECK(intForKey(*settings, u"b", 7) == 2);
    CHECK(intForKey(*settings, u"a", 7) == 7);
    CHECK(&QZSettings::shared() == &QZSettings::shared());
}

TEST_CASE("loading merges, saving leaves the settings modified") {
    const testing::TemporaryFolder folder;
    const std::string path = folder / "my settings.plist";
    QZSettings first;
    first.setFileURL(urlOf(path));
    first.setObject(1, u"a");
    first.setObject(Array{2}, u"b");
    REQUIRE(first.save());
    CHECK(first.modified());
    CHECK(contentOf(path).starts_with("<?xml"));

    QZSettings second;
    second.setObject(0, u"a");
    second.setObject(0, u"own");
    for (int i = 0; i < 2; ++i) {
        REQUIRE(second.loadWithContentsOfURL(urlOf(path)));
        CHECK(entriesOf(second) == Value(Dictionary{{u"a", 1}, {u"b", Array{2}}, {u"own", 0}}));
        CHECK_FALSE(second.modified());
        CHECK(second.fileURL() == urlOf(path));
    }
    fs::remove(path);
    CHECK(second.saveIfModified());
    CHECK_FALSE(fs::exists(path));
    second.setObject(1, u"a");
    for (int i = 0; i < 2; ++i) {
        CHECK(second.saveIfModified());
        CHECK(fs::remove(path));
    }
    second.setObject(Set{}, u"no property list holds sets");
    CHECK_FALSE(second.save());
    CHECK_FALSE(fs::exists(path));
}

TEST_CASE("a file that cannot be read changes nothing and is kept aside by the next save") {
    std::string deep(100'000, ' ');
    for (int i = 0; i < 9'000; ++i) deep += "<array>";
    for (const std::string& broken :
         {std::string(), std::string("<plist><dict><key>a</key>"), std::string("bplist00\x01\x02"),
          std::string("\0\xFF\xFE binary", 10), std::string("<plist><array/></plist>"), deep}) {
        CAPTURE(broken.substr(0, 30));
        const testing::TemporaryFolder folder;
        const testing::LogCapture log;
        fs::create_directory(folder / "inner");
        const std::string file = folder / "inner/settings.plist";
        const std::string link = folder / "link.plist";
        fs::create_symlink("inner/settings.plist", link);
        QZSettings settings;
        std::string kept = file + ".unreadable-1";
        for (const auto& [loaded, saved] : {std::pair(link, file), std::pair(file, link)}) {
            REQUIRE(writeText(file, broken));
            settings.setObject(1, u"a");
            CHECK_FALSE(settings.loadWithContentsOfURL(urlOf(loaded)));
            CHECK(entriesOf(settings) == Value(Dictionary{{u"a", 1}}));
            CHECK_FALSE(settings.modified());
            settings.setFileURL(urlOf(folder / "other.plist"));
            CHECK(settings.save());
            CHECK(contentOf(file) == broken);

            settings.setFileURL(urlOf(saved));
            REQUIRE(settings.save());
            REQUIRE(settings.save());
            CHECK(contentOf(kept) == broken);
            ++kept.back();
            CHECK_FALSE(fs::exists(kept));
            CHECK(QZSettings().loadWithContentsOfURL(urlOf(link)));
        }
        CHECK(fs::is_symlink(link));
        CHECK(log.lines().empty());
    }
}

TEST_CASE("what is no plain file is neither read nor replaced") {
    const testing::TemporaryFolder folder;
    fs::create_directory(folder / "folder");
    REQUIRE(::mkfifo((folder / "pipe").c_str(), 0600) == 0);
    fs::create_symlink("circle", folder / "circle");
    std::ofstream(folder / "huge").put('x');
    fs::resize_file(folder / "huge", std::uintmax_t{1} << 40);
    std::ofstream(folder / "file").put('x');
    struct Row {
        const char* name;
        bool isRead = false;
        bool isSaved = false;
    };
    const Row rows[] = {{"folder"},
                        {"pipe"},
                        {"circle"},
                        {.name = "huge", .isSaved = true},
                        {.name = "file/below", .isRead = true}};
    for (const Row& row : rows) {
        CAPTURE(row.name);
        QZSettings settings;
        CHECK(settings.loadWithContentsOfURL(urlOf(folder / row.name)) == row.isRead);
        CHECK(settings.count() == 0);
        CHECK(settings.save() == row.isSaved);
    }
    CHECK(fs::file_size(folder / "huge.unreadable-1") == std::uintmax_t{1} << 40);
    CHECK(folder.count() == 6);
    for (const char16_t* url : {u"", u"https://a/b", u"file:", u"file://host/a", u"file:///%zz"}) {
        QZSettings settings;
        CHECK_FALSE(settings.loadWithContentsOfURL(URL{url}));
        CHECK(settings.fileURL() == URL{url});
        CHECK_FALSE(settings.save());
    }
}

TEST_CASE("placeholder dates survive settings files") {
    const testing::TemporaryFolder folder;
    const auto dates = testing::allPlaceholderDates();
    QZSettings settings;
    for (std::size_t i = 0; i < dates.size(); ++i) {
        settings.setObject(dates[i], integerString(static_cast<std::int64_t>(i)));
    }
    settings.setFileURL(urlOf(folder / "dates.plist"));
    REQUIRE(settings.save());
    QZSettings back;
    REQUIRE(back.loadWithContentsOfURL(urlOf(folder / "dates.plist")));
    CHECK(entriesOf(back) == entriesOf(settings));
}

TEST_CASE("a process that is killed while it saves leaves the old settings or the new ones") {
    constexpr int kKills = 200;
    const testing::TemporaryFolder folder;
    const URL url = urlOf(folder / "settings.plist");
    const Value filling = Array(3'000, u"some text");
    int saves = 0;
    for (int round = 0; round < kKills; ++round) {
        const pid_t child = ::fork();
        REQUIRE(child >= 0);
        if (child == 0) {
            QZSettings settings;
            settings.loadWithContentsOfURL(url);
            settings.setObject(filling, u"filling");
            for (int i = intForKey(settings, u"last") + 1;; ++i) {
                settings.setObject(i, u"first");
                settings.removeObjectForKey(u"last");
                settings.setObject(i, u"last");
                settings.saveIfModified();
            }
        }
        ::usleep(static_cast<useconds_t>(500 + round * 7919 % 9000));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        QZSettings settings;
        REQUIRE(settings.loadWithContentsOfURL(url));
        CHECK(intForKey(settings, u"last") >= saves);
        saves = intForKey(settings, u"last");
        CHECK(intForKey(settings, u"first") == saves);
        CHECK((settings.count() == 0 || settings.objectForKey(u"filling") == filling));
    }
    CHECK(saves > 0);
}

TEST_CASE("threads set and read the file URL at once") {
    QZSettings settings;
    const URL urls[] = {urlOf("/one/path/that/is/long"), urlOf("/another")};
    settings.setFileURL(urls[0]);
    std::thread other([&] {
        for (int i = 0; i < 20'000; ++i) settings.setFileURL(urls[i % 2]);
    });
    bool isOneOfThem = true;
    for (int i = 0; i < 20'000; ++i) {
        const auto url = settings.fileURL();
        isOneOfThem = isOneOfThem && (url == urls[0] || url == urls[1]);
    }
    other.join();
    CHECK(isOneOfThem);
}

}  // namespace QZCore
