#pragma once

#include "excel/embedded/model/charts/axis_scale.hpp"
#include "excel/embedded/objects/charts/chart_handle.hpp"

#include <excel/axis.hpp>

namespace excel::embedded {

// An axis of a chart while the chart shows it; once hidden, its views answer Object required.
class AxisView final : public excel::Axis {
public:
    AxisView(ChartHandle chart, int32_t type, int32_t group) : chart_(std::move(chart)), type_(type), group_(group) {}

    int32_t Type() override;
    int32_t AxisGroup() override;

    bool HasTitle() override;
    void SetHasTitle(bool has) override;
    std::shared_ptr<excel::AxisTitle> AxisTitle() override;
    bool HasMajorGridlines() override;
    void SetHasMajorGridlines(bool has) override;
    bool HasMinorGridlines() override;
    void SetHasMinorGridlines(bool has) override;
    int32_t MajorTickMark() override;
    void SetMajorTickMark(int32_t mark) override;
    int32_t MinorTickMark() override;
    void SetMinorTickMark(int32_t mark) override;

    double MinimumScale() override;
    void SetMinimumScale(double value) override;
    bool MinimumScaleIsAuto() override;
    void SetMinimumScaleIsAuto(bool automatic) override;
    double MaximumScale() override;
    void SetMaximumScale(double value) override;
    bool MaximumScaleIsAuto() override;
    void SetMaximumScaleIsAuto(bool automatic) override;
    double MajorUnit() override;
    void SetMajorUnit(double value) override;
    bool MajorUnitIsAuto() override;
    void SetMajorUnitIsAuto(bool automatic) override;
    double MinorUnit() override;
    void SetMinorUnit(double value) override;
    bool MinorUnitIsAuto() override;
    void SetMinorUnitIsAuto(bool automatic) override;
    int32_t ScaleType() override;
    void SetScaleType(int32_t type) override;

    int32_t Crosses() override;
    void SetCrosses(int32_t crosses) override;
    double CrossesAt() override;
    void SetCrossesAt(double value) override;
    bool ReversePlotOrder() override;
    void SetReversePlotOrder(bool reverse) override;

    Variant CategoryNames() override;
    void SetCategoryNames(const Variant& names) override;
    int32_t TickLabelPosition() override;
    void SetTickLabelPosition(int32_t position) override;
    std::shared_ptr<excel::TickLabels> TickLabels() override;

    double Left() override;
    double Top() override;
    double Width() override;
    double Height() override;

    std::shared_ptr<excel::Border> Border() override;
    void Delete() override;

    const void* Identity() const override { return &axis(); }

private:
    AxisModel& axis() const;
    void edit(const std::function<void(AxisModel&)>& change);
    // Scale members belong to value axes (a scatter chart's X axis is one); others refuse reading or
    // writing the member, as Excel words it.
    enum class Access { Get, Set };
    AxisModel& valueAxis(const char* member, Access access = Access::Get) const;
    double scaleValue(double AxisScale::*member);
    void setScaleValue(std::optional<double> AxisModel::*member, double value, const char* name);
    void setScaleAuto(std::optional<double> AxisModel::*member, double AxisScale::*shown, bool automatic);
    ShapeBounds bounds() const;

    ChartHandle chart_;
    int32_t type_;
    int32_t group_;
};

}  // namespace excel::embedded
