#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>
#include <excel/variant.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace excel {

class Worksheet : public Object {
public:
    virtual std::shared_ptr<excel::Application> Application() = 0;
    virtual std::shared_ptr<excel::Workbook> Parent() = 0;
    virtual std::string Name() = 0;
    // Refused (0x800A03EC) for an empty or over-31-character name, one holding : \ / ? * [ ],
    // beginning or ending with an apostrophe, "History", or the name of another sheet in any case.
    virtual void SetName(const std::string& name) = 0;
    virtual int32_t Index() = 0;  // 1-based, among all the workbook's sheets (as Workbook.Sheets counts)
    virtual int32_t Visible() = 0;
    virtual void SetVisible(int32_t visibility) = 0;

    virtual std::shared_ptr<excel::Range> Cells() = 0;
    virtual std::shared_ptr<excel::Range> Cells(int32_t row, int32_t column) = 0;
    virtual std::shared_ptr<excel::Range> Rows() = 0;
    virtual std::shared_ptr<excel::Range> Rows(int32_t index) = 0;
    virtual std::shared_ptr<excel::Range> Columns() = 0;
    virtual std::shared_ptr<excel::Range> Columns(int32_t index) = 0;
    // An A1 address ("B2", "A1:C3", "A:A", "1:3", "A1,C3:D4", "$A$1"), or a defined name.
    virtual std::shared_ptr<excel::Range> Range(const std::string& address) = 0;
    virtual std::shared_ptr<excel::Range> Range(const std::shared_ptr<excel::Range>& cell1,
                                                const std::shared_ptr<excel::Range>& cell2) = 0;
    virtual std::shared_ptr<excel::Range> UsedRange() = 0;
    virtual std::shared_ptr<excel::Names> Names() = 0;  // the names local to this sheet

    // Evaluates a name or a reference the way Excel's Evaluate does: a name holding a constant
    // gives its value, a reference gives a Range, an unknown name gives the error value #NAME?.
    // A name local to this sheet is found before a workbook-level one of the same name.
    virtual Variant Evaluate(const std::string& expression) = 0;

    virtual std::shared_ptr<excel::Shapes> Shapes() = 0;
    virtual std::shared_ptr<excel::ChartObjects> ChartObjects() = 0;
    // By 1-based position or by name.
    virtual std::shared_ptr<excel::ChartObject> ChartObjects(const Variant& index) = 0;

    virtual std::shared_ptr<excel::PageSetup> PageSetup() = 0;
    virtual bool DisplayPageBreaks() = 0;
    virtual void SetDisplayPageBreaks(bool display) = 0;
    virtual double StandardWidth() = 0;
    virtual double StandardHeight() = 0;

    virtual void Activate() = 0;
    virtual void Select() = 0;
    // Refused when this is the last visible sheet.
    virtual void Delete() = 0;
};

}  // namespace excel
