#include "excel/embedded/objects/charts/chart_data_input.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/model/cell_address.hpp"
#include "excel/embedded/model/names/name_reference.hpp"
#include "excel/embedded/model/workbook_model.hpp"
#include "excel/embedded/objects/range/range_view.hpp"

namespace excel::embedded {

namespace {

[[noreturn]] void Refuse(const std::string& property) {
    ThrowRefused("Unable to set the " + property + " property of the Series class");
}

ChartValue ValueOfVariant(const Variant& value) {
    switch (value.Type()) {
        case VarType::Empty:
        case VarType::Null:
        case VarType::Error:
            return {};
        case VarType::String:
            return value.ToString();
        default:
            return value.ToDouble();
    }
}

ChartData FromRange(const RangeView& range, const std::string& property) {
    const RangeCells& cells = range.Target();
    const auto& areas = cells.Areas();
    if (areas.size() != 1) {
        Refuse(property);
    }
    return ReferenceData(WriteSheetReference(cells.Sheet()->Name(), areas));
}

ChartData FromArray(const SafeArray& array, const std::string& property) {
    if (!array.IsAllocated() || array.Dimensions() > 2) {
        Refuse(property);
    }
    std::vector<ChartValue> values;
    if (array.Dimensions() == 1) {
        for (const Variant& element : array.Elements()) {
            values.push_back(ValueOfVariant(element));
        }
    } else {
        // Row by row, as a range's cells are read.
        for (uint32_t row = 0; row < array.Count(1); ++row) {
            for (uint32_t column = 0; column < array.Count(2); ++column) {
                values.push_back(ValueOfVariant(array.At(row, column)));
            }
        }
    }
    return LiteralData(std::move(values));
}

ChartData FromText(const std::string& text, const WorkbookModel& book, const std::string& property) {
    if (!text.empty() && text.front() == '=') {
        const auto reference = ParseA1Reference(std::string_view(text).substr(1));
        if (reference && !reference->sheet.empty() && reference->areas.size() == 1 &&
            book.FindSheet(reference->sheet) != nullptr) {
            return ReferenceData(WriteSheetReference(reference->sheet, reference->areas));
        }
    }
    auto values = ParseLiteralList(text);
    if (!values) {
        Refuse(property);
    }
    return LiteralData(std::move(*values));
}

}  // namespace

ChartData ChartDataFromVariant(const Variant& value, const WorkbookModel& book, const std::string& property) {
    if (value.IsObject()) {
        const auto range = value.As<RangeView>();
        if (range == nullptr) {
            Refuse(property);
        }
        return FromRange(*range, property);
    }
    switch (value.Type()) {
        case VarType::String:
            return FromText(value.ToString(), book, property);
        case VarType::Empty:
        case VarType::Null:
        case VarType::Error:
            Refuse(property);
        default:
            break;
    }
    if (value.IsArray()) {
        return FromArray(value.Array(), property);
    }
    return LiteralData({value.ToDouble()});
}

Variant ArrayOfPoints(const ChartPoints& points) {
    SafeArray array(VarType::Variant, {SafeArrayBound{1, static_cast<uint32_t>(points.values.size())}});
    for (std::size_t i = 0; i < points.values.size(); ++i) {
        const ChartValue& value = points.values[i];
        Variant element;
        if (const double* number = std::get_if<double>(&value)) {
            element = Variant(*number);
        } else if (const auto* text = std::get_if<std::string>(&value)) {
            element = Variant(*text);
        }
        array.Set({static_cast<int32_t>(i + 1)}, std::move(element));
    }
    return Variant(std::move(array));
}

}  // namespace excel::embedded
