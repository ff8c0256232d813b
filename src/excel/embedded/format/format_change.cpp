#include "excel/embedded/format/format_change.hpp"

namespace excel::embedded {

uint32_t FormatChange::Apply(uint32_t id) {
    if (id < results_.size() && results_[id] != unknown) {
        return results_[id];
    }
    CellFormat format = table_.Get(id);
    edit_(format);
    const uint32_t result = table_.Intern(format);
    if (id >= results_.size()) {
        results_.resize(id + 1, unknown);
    }
    results_[id] = result;
    return result;
}

}  // namespace excel::embedded
