#pragma once

#include "ooxml/document/carried_content.hpp"

#include <cstddef>

namespace ooxml {

// Drops from a worksheet's carried hyperlinks, data validations and conditional formats what Excel
// would remove on opening the file, so that saving it again gives a file Excel opens without
// repair: an item whose range is no range of the sheet, a hyperlink to an address longer than
// Excel's 2,079 characters, a list validation whose listed values pass its 255 characters, the
// hyperlinks beyond the 65,530 a sheet holds, and a conditional format's rule naming a
// differential format the styles do not hold. A list left without items goes too, and so do the
// relationships of the hyperlinks dropped.
void DropWhatExcelRepairs(CarriedWorksheet& carried, std::size_t differentialFormats);

}  // namespace ooxml
