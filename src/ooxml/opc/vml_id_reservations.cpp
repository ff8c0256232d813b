#include "ooxml/opc/vml_id_reservations.hpp"

#include "ooxml/comments/vml_drawing_part.hpp"

namespace ooxml {

VmlIdBlocks ReserveVmlIdBlocks(const WorkbookDocument& document, const CarriedPartsPlan& carriedParts) {
    VmlIdBlocks blocks;
    for (const SheetDocument& sheet : document.sheets) {
        if (sheet.carried && !sheet.carried->legacyDrawing.elements.empty()) {
            blocks.Reserve(sheet.carried->legacyDrawingIdBlocks);
        }
    }
    if (document.carried) {
        for (const std::string& name : carriedParts.Names()) {
            const CarriedPart& part = document.carried->parts.at(name);
            if (part.contentType == kVmlDrawingContentType || name.ends_with(".vml")) {
                blocks.Reserve(FindVmlIdBlocks(part.bytes));
            }
        }
    }
    return blocks;
}

}  // namespace ooxml
