// What is read can be written, and what is written reads back as the same; and
// the containers that were read can be copied and merged.
#include "QZCore/codecs/deep_copies.h"
#include "QZCore/codecs/dictionaries.h"
#include "QZCore/codecs/property_list_data.h"
#include "QZCore/foundation/log.h"
#include "QZCore/foundation/property_list.h"
#include "require.h"

using namespace QZCore;

namespace {

struct Silence final : LogSink {
    void write(StringView) override {}
};

void copyAndMerge(const Dictionary& dictionary, const Data& written) {
    require(dataRepresentation(dictionary) == written);
    Dictionary copy = mutableCopyDeep(dictionary);
    require(dataRepresentation(copy) == written);
    mergeWithDictionary(copy, dictionary);
    require(dataRepresentation(copy) == written);
}

void copy(const Array& array, const Data& written) {
    require(dataRepresentation(array) == written);
    require(dataRepresentation(mutableCopyDeepCollectionsOnly(array)) == written);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool silenced = (setLogSink(std::make_shared<Silence>()), true);
    (void)silenced;
    const PropertyListResult read = readPropertyList({data, size});
    require(read.value.isAbsent() == !read.error.empty());
    const auto dictionary = dictionaryWithData({data, size});
    require(dictionary.has_value() == (read.value.dictionary() != nullptr));
    const auto array = arrayWithData({data, size});
    require(array.has_value() == (read.value.array() != nullptr));
    if (read.value.isAbsent()) return 0;

    const PropertyListData written = writePropertyList(read.value);
    require(written.data.has_value());
    if (dictionary) copyAndMerge(*dictionary, *written.data);
    if (array) copy(*array, *written.data);

    // Dates lose their fractions once.
    const Value again = readPropertyList(*written.data).value;
    require(!again.isAbsent());
    require(writePropertyList(again).data == written.data);

    // What is not a number does not equal itself.
    if (textOf(*written.data).find("<real>nan</real>") != std::string_view::npos) return 0;
    require(readPropertyList(*written.data, PropertyListContainers::Mutable).value == again);
    return 0;
}
