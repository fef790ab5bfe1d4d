// Runs a test on made-up fonts, whatever the machine has installed.
#pragma once

#include <memory>
#include <utility>

#include "QZCore/platform/fonts.h"

namespace QZCore::testing {

/// The made-up catalogue is the shared one while this lives.
class MadeUpFonts {
public:
    explicit MadeUpFonts(std::shared_ptr<const FontCatalog> catalog = makeInMemoryFontCatalog())
        : before_(setSharedFontCatalog(std::move(catalog))) {}
    ~MadeUpFonts() { setSharedFontCatalog(before_); }
    MadeUpFonts(const MadeUpFonts&) = delete;
    MadeUpFonts& operator=(const MadeUpFonts&) = delete;

private:
    std::shared_ptr<const FontCatalog> before_;
};

}  // namespace QZCore::testing
