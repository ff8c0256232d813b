#pragma once

#include <string>

namespace ooxml {

// The relationship ids by which a worksheet refers to its drawing (<drawing r:id>) and to the
// legacy VML drawing of its comments (<legacyDrawing r:id>); empty when it has none.
struct SheetDrawingReferences {
    std::string drawing;
    std::string legacyDrawing;
};

}  // namespace ooxml
