#include "excel/embedded/objects/shapes/tri_state.hpp"

#include "excel/embedded/engine_errors.hpp"

#include <excel/constants.hpp>

namespace excel::embedded {

namespace {
constexpr int32_t msoCTrue = 1;
}

int32_t TriStateOf(bool value) {
    return value ? msoTrue : msoFalse;
}

bool BoolFromTriState(int32_t value) {
    if (value != msoTrue && value != msoFalse && value != msoCTrue) {
        ThrowRefused("The specified value is out of range.");
    }
    return value != msoFalse;
}

}  // namespace excel::embedded
