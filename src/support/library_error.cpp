#include "support/library_error.hpp"

#include "support/support_services.hpp"

namespace vos {

void RaiseLibraryError(int32_t code, const std::string& text) {
    Support().Errors().Raise(code, text);
}

}  // namespace vos
