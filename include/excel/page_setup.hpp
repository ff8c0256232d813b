#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>

#include <cstdint>
#include <memory>

namespace excel {

class PageSetup : public Object {
public:
    virtual std::shared_ptr<excel::Worksheet> Parent() = 0;
    virtual bool PrintGridlines() = 0;
    virtual void SetPrintGridlines(bool print) = 0;
};

}  // namespace excel
