#include <doctest/doctest.h>

#include <algorithm>
#include <chrono>

#include "QZCore/foundation/files.h"
#include "QZCore/platform/images.h"
#include "support/printing.h"

using namespace QZCore;
using namespace std::string_view_literals;

namespace {

struct Sample {
    std::string name;
    StringView mediaType;
    /// The bytes at the end that nobody misses.
    std::size_t spare = 0;
};

const std::vector<Sample>& samples() {
    static const auto& rows = *new std::vector<Sample>{
        {"plain.png", u"image/png"},
        {"interlaced.png", u"image/png"},
        {"baseline.jpg", u"image/jpeg"},
        {"progressive.jpg", u"image/jpeg"},
        {"still.gif", u"image/gif"},
        {"animated.gif", u"image/gif"},
        {"picture.bmp", u"image/bmp"},
        // The place of the next picture, of which there is none.
        {"picture.tif", u"image/tiff", 4},
    };
    return rows;
}

Data read(const Sample& sample) {
    const std::optional<Data> file = readFile(QZCORE_TEST_DATA "/" + sample.name);
    REQUIRE(file.has_value());
    return *file;
}

Data joined(std::string_view start, Data end) {
    const DataView bytes = bytesOf(start);
    end.insert(end.begin(), bytes.begin(), bytes.end());
    return end;
}

/// `file` with `bytes` in place of those at `position`.
Data patched(Data file, std::size_t position, std::string_view bytes) {
    std::ranges::copy(bytesOf(bytes), file.begin() + static_cast<std::ptrdiff_t>(position));
    return file;
}

std::shared_ptr<const ImageDecoder> decoder() { return makePlatformImageDecoder(); }

bool isBuiltWithout() { return decoder() == nullptr; }

}  // namespace

TEST_CASE("an image is known by its type and its size in pixels") {
    if (isBuiltWithout()) return;
    for (const Sample& row : samples()) {
        CAPTURE(row.name);
        const Data file = read(row);
        CHECK(decoder()->decode(file) == Image{file, String(row.mediaType), 16, 8, false});
    }
}

TEST_CASE("an image that is cut off anywhere is none") {
    if (isBuiltWithout()) return;
    for (const Sample& row : samples()) {
        CAPTURE(row.name);
        const Data file = read(row);
        for (std::size_t length = 0; length < file.size() - row.spare; ++length) {
            CAPTURE(length);
            const auto exactSize = std::make_unique<std::uint8_t[]>(length);
            std::copy_n(file.begin(), length, exactSize.get());
            REQUIRE_FALSE(decoder()->decode({exactSize.get(), length}));
        }
    }
}

TEST_CASE("a damaged image is none or still one of bearable size, and never a crash") {
    if (isBuiltWithout()) return;
    for (const Sample& row : samples()) {
        CAPTURE(row.name);
        const Data file = read(row);
        for (std::size_t at = 0; at < file.size(); ++at) {
            Data damaged = file;
            damaged[at] = static_cast<std::uint8_t>(~damaged[at]);
            const std::optional<Image> image = decoder()->decode(damaged);
            CAPTURE(at);
            if (image) REQUIRE(image->width * image->height <= 40e6);
        }
    }
}

TEST_CASE("a small file of many pixels is refused before they take memory") {
    if (isBuiltWithout()) return;
    // 60,000 by 60,000; the header's checksum is right, so that nothing but
    // the size speaks against the file.
    const Data png =
        patched(read({"plain.png", {}}), 16,
                "\x00\x00\xEA\x60\x00\x00\xEA\x60\x08\x00\x00\x00\x00\xA5\xB9\x2A\x9E"sv);
    struct Row {
        const char* why;
        Data file;
    };
    const Row rows[] = {
        {"PNG", png},
        {"PNG inside a file of icons", joined("icns\0\0\0\x5Bic09\0\0\0\x53"sv, png)},
        {"GIF", patched(read({"still.gif", {}}), 6, "\xFF\xFF\xFF\xFF"sv)},
        {"BMP", patched(read({"picture.bmp", {}}), 18, "\x60\xEA\0\0\x60\xEA\0\0"sv)},
    };
    const auto start = std::chrono::steady_clock::now();
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK_FALSE(decoder()->decode(row.file));
    }
    CHECK(std::chrono::steady_clock::now() - start < std::chrono::seconds(5));
}

TEST_CASE("a JPEG of very many scans is refused") {
    if (isBuiltWithout()) return;
    const Data file = read({"progressive.jpg", {}});
    const std::string_view text = textOf(file);
    const std::size_t lastScan = text.rfind("\xFF\xDA");
    const auto withScans = [&](int added) {
        std::string longer(text.substr(0, lastScan));
        for (int i = 0; i <= added; ++i)
            longer += text.substr(lastScan, text.size() - lastScan - 2);
        return longer + "\xFF\xD9";
    };
    CHECK(decoder()->decode(bytesOf(withScans(18))).has_value());
    CHECK_FALSE(decoder()->decode(bytesOf(withScans(19))));
}

TEST_CASE("a drawing has the size that it states or that its view box gives it") {
    if (isBuiltWithout()) return;
    struct Row {
        const char* attributes;
        double width;
        double height;
    };
    const Row rows[] = {
        {"width='20' height='10'", 20, 10},
        {"width='1in' height=' 12pt '", 96, 16},
        {"width='2.54cm' height='25.4mm'", 96, 96},
        {"viewBox='0 0 40 10'", 40, 10},
        {"viewBox='-5,-5,40,10' width='80px'", 80, 20},
        {"viewBox='0 0 40 10' height='5'", 20, 5},
        {"viewBox='0 0 40 10' width='100%' height='100%'", 40, 10},
        {"viewBox='0 0 40' width='0' height='-3'", 300, 150},
        {"viewBox='0 0 0 nan' width='1e300' height='2em'", 300, 150},
    };
    for (const Row& row : rows) {
        CAPTURE(row.attributes);
        const std::string text = "<?xml version='1.0'?>\n<svg xmlns='http://www.w3.org/2000/svg' " +
                                 std::string(row.attributes) + "><g/></svg>";
        const std::optional<Image> image = decoder()->decode(bytesOf(text));
        REQUIRE(image.has_value());
        CHECK(image->mediaType == u"image/svg+xml");
        CHECK(image->width == doctest::Approx(row.width));
        CHECK(image->height == doctest::Approx(row.height));
    }
}

TEST_CASE("what is no image is none") {
    if (isBuiltWithout()) return;
    const std::string deep(100'000, '<');
    // Ten letters that stand for ten thousand million.
    std::string laughs = "<!DOCTYPE svg [<!ENTITY e0 'ha'>";
    for (int i = 1; i <= 10; ++i) {
        const std::string entity = "&e" + std::to_string(i - 1) + ";";
        laughs += "<!ENTITY e" + std::to_string(i) + " '";
        for (int j = 0; j < 10; ++j) laughs += entity;
        laughs += "'>";
    }
    laughs += "]><svg xmlns='http://www.w3.org/2000/svg'>&e10;</svg>";
    const std::string_view rows[] = {
        "",
        "plain text",
        "BM",
        "<html><body>404</body></html>",
        "<svg width='1' height='1'/>",
        "<svg xmlns='http://www.w3.org/2000/svg'><g></svg>",
        laughs,
        deep,
    };
    for (const std::string_view row : rows) {
        CAPTURE(row.substr(0, 60));
        CHECK_FALSE(decoder()->decode(bytesOf(row)));
    }
}

TEST_CASE("the caution image is an image of its stated size") {
    const Image& caution = cautionImage();
    CHECK(caution.isCaution);
    CHECK(hashOf(caution) == hashOf(Image(caution)));
    if (isBuiltWithout()) return;
    std::optional<Image> read = decoder()->decode(caution.data);
    REQUIRE(read.has_value());
    read->isCaution = true;
    CHECK(*read == caution);
}
