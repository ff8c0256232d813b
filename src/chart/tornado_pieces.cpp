#include "chart/tornado_pieces.hpp"

#include <cstddef>

namespace vos {

TornadoPieces TornadoPiecesOf(const std::vector<double>& minimums, const std::vector<double>& maximums) {
    const size_t bars = minimums.size();
    TornadoPieces pieces{std::vector<double>(bars), std::vector<double>(bars), std::vector<double>(bars),
                         std::vector<double>(bars)};
    for (size_t i = 0; i < bars; ++i) {
        const double low = minimums[i];
        const double high = maximums[i];
        if (low < 0 && high < 0) {
            // Wholly left of zero: an invisible piece out to the high end, the bar beyond it.
            pieces.base[i] = high;
            pieces.negative[i] = low - high;
        } else if (low <= 0) {
            // Across zero: one piece each side.
            pieces.negative[i] = low;
            pieces.positive[i] = high;
        } else {
            // Wholly right of zero.
            pieces.base[i] = low;
            pieces.positive[i] = high - low;
        }
    }
    return pieces;
}

}  // namespace vos
