// What is read can be written, and what is written reads back as the same.

#include "QZCore/foundation/property_list.h"
#include "require.h"

using namespace QZCore;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const PropertyListResult read = readPropertyList({data, size});
    require(read.value.isAbsent() == !read.error.empty());
    if (read.value.isAbsent()) return 0;

    const PropertyListData written = writePropertyList(read.value);
    require(written.data.has_value());

    // Dates lose their fractions once.
    const Value again = readPropertyList(*written.data).value;
    require(!again.isAbsent());
    require(writePropertyList(again).data == written.data);

    // What is not a number does not equal itself.
    if (textOf(*written.data).find("<real>nan</real>") != std::string_view::npos) return 0;
    require(readPropertyList(*written.data, PropertyListContainers::Mutable).value == again);
    return 0;
}
