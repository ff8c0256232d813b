#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>

#include <memory>

namespace excel {

// A workbook window. Its view settings act on the sheet active in it, as in Excel.
class Window : public Object {
public:
    virtual std::shared_ptr<excel::Application> Application() = 0;
    virtual std::shared_ptr<excel::Workbook> Parent() = 0;
    virtual std::shared_ptr<excel::Worksheet> ActiveSheet() = 0;
    virtual bool DisplayGridlines() = 0;
    virtual void SetDisplayGridlines(bool display) = 0;
};

}  // namespace excel
