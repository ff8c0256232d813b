#pragma once

#include "support/array_services.hpp"
#include "support/error_raiser.hpp"
#include "support/range_services.hpp"
#include "support/scale_service.hpp"
#include "support/sheet_services.hpp"
#include "support/string_services.hpp"

namespace vos {

// The helpers every class of the library leans on, one instance per thread. The instance is made
// by the first caller on a thread and kept until the thread ends; every later call on that
// thread reaches the same one, and no thread ever sees another's.
class SupportServices {
public:
    static SupportServices& Instance();
    // Whether this thread has made its instance yet.
    static bool InstanceExists();

    const ErrorRaiser& Errors() const { return errors_; }
    const SheetServices& Sheets() const { return sheets_; }
    const RangeServices& Ranges() const { return ranges_; }
    const StringServices& Strings() const { return strings_; }
    const ArrayServices& Arrays() const { return arrays_; }
    const ScaleService& Scale() const { return scale_; }

private:
    SupportServices() = default;

    ErrorRaiser errors_;
    SheetServices sheets_;
    RangeServices ranges_;
    StringServices strings_;
    ArrayServices arrays_;
    ScaleService scale_;
};

// This thread's support services.
inline SupportServices& Support() {
    return SupportServices::Instance();
}

}  // namespace vos
