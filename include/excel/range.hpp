#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>
#include <excel/variant.hpp>
#include <excel/constants.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace excel {

// A block of cells, or several blocks (areas) of one worksheet. Ranges are light views: they hold
// their worksheet and coordinates, never copies of the cells.
//
// Indexing follows Excel: Cells(i) walks the first area row by row and may run past its end;
// Rows(i) and Columns(i) are relative to the first area, so Rows(0) is the row above it and
// negative indices reach further up. Properties read from a range whose cells differ answer null.
class Range : public Object {
public:
    virtual std::shared_ptr<excel::Application> Application() = 0;
    virtual std::shared_ptr<excel::Worksheet> Parent() = 0;
    virtual std::shared_ptr<excel::Worksheet> Worksheet() = 0;

    virtual std::shared_ptr<excel::Range> Cells() = 0;
    virtual std::shared_ptr<excel::Range> Cells(int32_t row, int32_t column) = 0;
    virtual std::shared_ptr<excel::Range> Cells(int32_t index) = 0;
    virtual std::shared_ptr<excel::Range> Item(int32_t row, int32_t column) = 0;
    virtual std::shared_ptr<excel::Range> Rows() = 0;
    virtual std::shared_ptr<excel::Range> Rows(int32_t index) = 0;
    virtual std::shared_ptr<excel::Range> Columns() = 0;
    virtual std::shared_ptr<excel::Range> Columns(int32_t index) = 0;
    // Range.Range: an address relative to this range (C++ cannot name a member after its class).
    virtual std::shared_ptr<excel::Range> GetRange(const std::string& address) = 0;
    virtual std::shared_ptr<excel::Areas> Areas() = 0;
    virtual std::shared_ptr<excel::Range> EntireRow() = 0;
    virtual std::shared_ptr<excel::Range> EntireColumn() = 0;
    virtual std::shared_ptr<excel::Range> Resize(const Variant& rowSize = {}, const Variant& columnSize = {}) = 0;
    virtual std::shared_ptr<excel::Range> Offset(int32_t rowOffset = 0, int32_t columnOffset = 0) = 0;
    virtual std::shared_ptr<excel::Range> MergeArea() = 0;

    // Cells counted over every area; overflow (runtime error 6) past 2^31 - 1, as in Excel.
    virtual int32_t Count() = 0;
    virtual int64_t CountLarge() = 0;
    virtual int32_t Row() = 0;
    virtual int32_t Column() = 0;
    virtual std::string Address(bool rowAbsolute = true, bool columnAbsolute = true, int32_t referenceStyle = xlA1,
                                bool external = false) = 0;

    // Geometry in points from the sheet's top-left corner.
    virtual double Left() = 0;
    virtual double Top() = 0;
    virtual double Width() = 0;
    virtual double Height() = 0;

    // A scalar for one cell; for a block, a 1-based rows x columns array. Setting a scalar fills
    // every cell; setting an array fills the block from the array's first element, with #N/A where
    // the array is smaller than the block.
    virtual Variant Value() = 0;
    virtual void SetValue(const Variant& value) = 0;
    virtual Variant Value2() = 0;
    virtual void SetValue2(const Variant& value) = 0;
    virtual Variant Formula() = 0;
    virtual void SetFormula(const Variant& formula) = 0;
    virtual Variant Text() = 0;

    virtual Variant MergeCells() = 0;
    virtual void SetMergeCells(bool merge) = 0;
    virtual void Merge(bool across = false) = 0;
    virtual void UnMerge() = 0;

    virtual void Clear() = 0;
    virtual void ClearContents() = 0;
    virtual void ClearFormats() = 0;

    virtual Variant NumberFormat() = 0;
    virtual void SetNumberFormat(const std::string& format) = 0;
    virtual Variant NumberFormatLocal() = 0;
    virtual void SetNumberFormatLocal(const std::string& format) = 0;
    virtual Variant HorizontalAlignment() = 0;
    virtual void SetHorizontalAlignment(int32_t alignment) = 0;
    virtual Variant VerticalAlignment() = 0;
    virtual void SetVerticalAlignment(int32_t alignment) = 0;
    virtual Variant WrapText() = 0;
    virtual void SetWrapText(bool wrap) = 0;
    virtual Variant IndentLevel() = 0;
    virtual void SetIndentLevel(int32_t level) = 0;
    virtual Variant Orientation() = 0;
    virtual void SetOrientation(int32_t degrees) = 0;
    virtual Variant ColumnWidth() = 0;
    virtual void SetColumnWidth(double width) = 0;
    virtual Variant RowHeight() = 0;
    virtual void SetRowHeight(double height) = 0;
    virtual Variant Hidden() = 0;  // on whole rows or columns
    virtual void SetHidden(bool hidden) = 0;

    virtual std::shared_ptr<excel::Interior> Interior() = 0;
    virtual std::shared_ptr<excel::Font> Font() = 0;
    virtual std::shared_ptr<excel::Borders> Borders() = 0;
    virtual std::shared_ptr<excel::Border> Borders(int32_t index) = 0;
    virtual void BorderAround(const Variant& lineStyle = {}, int32_t weight = xlThin,
                              int32_t colorIndex = xlColorIndexAutomatic, const Variant& color = {},
                              const Variant& themeColor = {}) = 0;
    // The characters start..start+length-1 (1-based) of the cell's text.
    virtual std::shared_ptr<excel::Characters> Characters(const Variant& start = {}, const Variant& length = {}) = 0;

    // A comment on the range's first cell; refused when that cell has one already. A comment
    // moves with its cell and goes with it when the cell is deleted or cleared with Clear.
    virtual std::shared_ptr<excel::Comment> AddComment(const Variant& text = {}) = 0;
    // The first cell's comment, or none.
    virtual std::shared_ptr<excel::Comment> Comment() = 0;
    virtual void ClearComments() = 0;

    // Inserts cells of this range's shape, shifting the others; whole rows or columns shift down
    // or right whatever the shift argument says.
    virtual void Insert(const Variant& shift = {}, const Variant& copyOrigin = {}) = 0;
    virtual void Delete(const Variant& shift = {}) = 0;
    virtual void Select() = 0;
    virtual void Activate() = 0;
};

}  // namespace excel
