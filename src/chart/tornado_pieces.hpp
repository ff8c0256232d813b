#pragma once

#include <vector>

namespace vos {

// The stacked pieces that draw tornado bars from a minimum to a maximum. Excel stacks negative
// values leftward from zero and positive values rightward, so a bar that does not touch zero
// stands on an invisible base piece. Each vector holds one value per bar.
struct TornadoPieces {
    std::vector<double> zero;      // all zeros: the chart's first series
    std::vector<double> base;      // invisible, from zero to the bar's near end
    std::vector<double> negative;  // visible, left of zero or of the base
    std::vector<double> positive;  // visible, right of zero or of the base
};

// The pieces of bars running from minimums[i] to maximums[i].
TornadoPieces TornadoPiecesOf(const std::vector<double>& minimums, const std::vector<double>& maximums);

}  // namespace vos
