#pragma once

#ifdef _WIN32

#include <windows.h>
// windows.h first: the OLE headers build on its types.
#include <oaidl.h>

#include <vector>

namespace automation {

// A call's arguments as the type library's invoke takes them for members that take an array by
// reference: VBScript passes a variable as a reference to a variant that holds the array, which
// Wine's invoke refuses as a type mismatch, so such an argument is handed on as a reference to the
// array itself. Nothing is copied: the arguments still point into the caller's variables. (Wine's
// VBScript gives a fixed-size array, Dim a(n), as a reference to a variant holding a reference.)
class ArraysByReference {
public:
    explicit ArraysByReference(DISPPARAMS* parameters) : parameters_(parameters) {
        if (parameters == nullptr) {
            return;
        }
        for (UINT index = 0; index < parameters->cArgs; ++index) {
            const VARIANT& argument = parameters->rgvarg[index];
            const VARIANT* held = argument.vt == (VT_BYREF | VT_VARIANT) ? argument.pvarVal : nullptr;
            if (held == nullptr || (held->vt & VT_ARRAY) == 0) {
                continue;
            }
            // A variable holds its array itself (Array()) or, for a fixed-size one, by reference.
            VARIANT& rewritten = Rewrite(index);
            rewritten.vt = static_cast<VARTYPE>(held->vt | VT_BYREF);
            rewritten.pparray = (held->vt & VT_BYREF) != 0 ? held->pparray : const_cast<SAFEARRAY**>(&held->parray);
        }
        if (!arguments_.empty()) {
            rewritten_ = *parameters;
            rewritten_.rgvarg = arguments_.data();
        }
    }

    DISPPARAMS* Parameters() { return arguments_.empty() ? parameters_ : &rewritten_; }

private:
    VARIANT& Rewrite(UINT index) {
        if (arguments_.empty()) {
            arguments_.assign(parameters_->rgvarg, parameters_->rgvarg + parameters_->cArgs);
        }
        return arguments_[index];
    }

    DISPPARAMS* parameters_;
    DISPPARAMS rewritten_{};
    std::vector<VARIANT> arguments_;
};

}  // namespace automation

#endif  // _WIN32
