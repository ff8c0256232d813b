#pragma once

#include "ooxml/worksheet/worksheet_reader.hpp"
#include "ooxml/xml/xml_pull_scanner.hpp"

#include <algorithm>
#include <string_view>
#include <vector>

namespace ooxml {

// Items other writers left out of order (rows, cells, columns): sorted, the first of equal keys kept.
template <typename Item, typename Key>
void SortUnique(std::vector<Item>& items, Key key) {
    std::stable_sort(items.begin(), items.end(), [&](const Item& a, const Item& b) { return key(a) < key(b); });
    items.erase(std::unique(items.begin(), items.end(), [&](const Item& a, const Item& b) { return key(a) == key(b); }),
                items.end());
}

// Reads the rows and cells of a worksheet's <sheetData> into sheet as the scanner passes over them,
// from the scanner standing on the element's start to past its end. Throws PackageError(Corrupt).
void ReadSheetData(XmlPullScanner& scanner, std::string_view partName, const WorksheetContext& context,
                   SheetDocument& sheet);

}  // namespace ooxml
