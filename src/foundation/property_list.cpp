#include "QZCore/foundation/property_list.h"

#include "foundation/property_list_formats.h"

namespace QZCore {

PropertyListResult readPropertyList(DataView bytes, PropertyListContainers containers) {
    return isBinaryPropertyList(bytes) ? readBinaryPropertyList(bytes, containers)
                                       : readXmlPropertyList(bytes, containers);
}

}  // namespace QZCore
