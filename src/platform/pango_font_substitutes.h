// Which installed face stands in for another one that lacks a character.
#pragma once

#include <memory>
#include <mutex>
#include <vector>

#include "platform/pango_font_list.h"

namespace QZCore {

/// The order in which faces stand in for each other: the nearest in traits and
/// weight first and, among equals, in the order in which the user's fontconfig
/// would try them for that family.
///
/// The order for a face is found when it is first needed; later questions take
/// no lock.
class FontSubstitutes {
public:
    /// Keeps references to both.
    FontSubstitutes(const FontList& list, FcConfig* config);

    /// The first face in the order for `face` that covers `character`; null
    /// when no installed face does.
    [[nodiscard]] const InstalledFace* substituteFor(const InstalledFace& face,
                                                     char32_t character) const;

    /// `face` when it covers `character`, else its substitute, else `face`.
    [[nodiscard]] const InstalledFace* faceShowing(char32_t character,
                                                   const InstalledFace& face) const;

private:
    struct Order {
        std::once_flag found;
        std::vector<const InstalledFace*> faces;
    };

    [[nodiscard]] std::vector<const InstalledFace*> orderFor(const InstalledFace& face) const;
    [[nodiscard]] std::vector<std::size_t> ranksFor(const InstalledFace& face) const;

    const FontList& list_;
    FcConfig* config_;
    std::unique_ptr<Order[]> orders_;  // one for each face of the list
};

}  // namespace QZCore
