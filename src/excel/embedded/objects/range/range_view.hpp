#pragma once

#include "excel/embedded/objects/range/cell_value.hpp"
#include "excel/embedded/objects/range/range_cells.hpp"

#include <excel/range.hpp>

namespace excel::embedded {

// A Range: a worksheet and its blocks, nothing copied. Rows() and Columns() answer the same cells
// listed by rows or columns, which is what their Count counts.
// Defined in range_view.cpp (addressing, geometry, merging, inserting and deleting),
// range_view_value.cpp (values, formulas, text, clearing) and range_view_format.cpp (formats).
class RangeView final : public excel::Range {
public:
    enum class Listing { Cells, Rows, Columns };

    explicit RangeView(RangeCells cells, Listing listing = Listing::Cells)
        : cells_(std::move(cells)), listing_(listing) {}

    // A range over the blocks, refused (0x800A03EC) when any lies outside the sheet.
    static std::shared_ptr<RangeView> Make(const std::shared_ptr<WorksheetModel>& sheet, std::vector<CellBlock> areas,
                                           Listing listing = Listing::Cells);

    const RangeCells& Target() const { return cells_; }

    std::shared_ptr<excel::Application> Application() override;
    std::shared_ptr<excel::Worksheet> Parent() override;
    std::shared_ptr<excel::Worksheet> Worksheet() override;

    std::shared_ptr<excel::Range> Cells() override;
    std::shared_ptr<excel::Range> Cells(int32_t row, int32_t column) override;
    std::shared_ptr<excel::Range> Cells(int32_t index) override;
    std::shared_ptr<excel::Range> Item(int32_t row, int32_t column) override;
    std::shared_ptr<excel::Range> Rows() override;
    std::shared_ptr<excel::Range> Rows(int32_t index) override;
    std::shared_ptr<excel::Range> Columns() override;
    std::shared_ptr<excel::Range> Columns(int32_t index) override;
    std::shared_ptr<excel::Range> GetRange(const std::string& address) override;
    std::shared_ptr<excel::Areas> Areas() override;
    std::shared_ptr<excel::Range> EntireRow() override;
    std::shared_ptr<excel::Range> EntireColumn() override;
    std::shared_ptr<excel::Range> Resize(const Variant& rowSize, const Variant& columnSize) override;
    std::shared_ptr<excel::Range> Offset(int32_t rowOffset, int32_t columnOffset) override;
    std::shared_ptr<excel::Range> MergeArea() override;

    int32_t Count() override;
    int64_t CountLarge() override;
    int32_t Row() override;
    int32_t Column() override;
    std::string Address(bool rowAbsolute, bool columnAbsolute, int32_t referenceStyle, bool external) override;

    double Left() override;
    double Top() override;
    double Width() override;
    double Height() override;

    Variant Value() override;
    void SetValue(const Variant& value) override;
    Variant Value2() override;
    void SetValue2(const Variant& value) override;
    Variant Formula() override;
    void SetFormula(const Variant& formula) override;
    Variant Text() override;

    Variant MergeCells() override;
    void SetMergeCells(bool merge) override;
    void Merge(bool across) override;
    void UnMerge() override;

    void Clear() override;
    void ClearContents() override;
    void ClearFormats() override;

    Variant NumberFormat() override;
    void SetNumberFormat(const std::string& format) override;
    Variant NumberFormatLocal() override;
    void SetNumberFormatLocal(const std::string& format) override;
    Variant HorizontalAlignment() override;
    void SetHorizontalAlignment(int32_t alignment) override;
    Variant VerticalAlignment() override;
    void SetVerticalAlignment(int32_t alignment) override;
    Variant WrapText() override;
    void SetWrapText(bool wrap) override;
    Variant IndentLevel() override;
    void SetIndentLevel(int32_t level) override;
    Variant Orientation() override;
    void SetOrientation(int32_t degrees) override;
    Variant ColumnWidth() override;
    void SetColumnWidth(double width) override;
    Variant RowHeight() override;
    void SetRowHeight(double height) override;
    Variant Hidden() override;
    void SetHidden(bool hidden) override;

    std::shared_ptr<excel::Interior> Interior() override;
    std::shared_ptr<excel::Font> Font() override;
    std::shared_ptr<excel::Borders> Borders() override;
    std::shared_ptr<excel::Border> Borders(int32_t index) override;
    void BorderAround(const Variant& lineStyle, int32_t weight, int32_t colorIndex, const Variant& color,
                      const Variant& themeColor) override;
    std::shared_ptr<excel::Characters> Characters(const Variant& start, const Variant& length) override;
    std::shared_ptr<excel::Comment> AddComment(const Variant& text) override;
    std::shared_ptr<excel::Comment> Comment() override;
    void ClearComments() override;

    void Insert(const Variant& shift, const Variant& copyOrigin) override;
    void Delete(const Variant& shift) override;
    void Select() override;
    void Activate() override;

private:
    const CellBlock& first() const { return cells_.Areas().front(); }
    WorkbookModel& book() const { return cells_.Book(); }
    std::shared_ptr<RangeView> relative(int32_t top, int32_t left, int32_t bottom, int32_t right) const;
    Variant readValues(bool convertDates);
    void writeValues(const Variant& value, bool plain);
    void refuseUnlessStorable(Storability storability) const;
    void clearValues();
    template <class Project>
    Variant readFormat(Project&& project);
    void shift(const Variant& direction, bool insert, bool formatFromAfter);

    RangeCells cells_;
    Listing listing_;
};

}  // namespace excel::embedded
