#pragma once

#include "excel/embedded/objects/range/range_cells.hpp"

#include <excel/areas.hpp>

namespace excel::embedded {

class AreasView final : public excel::Areas {
public:
    explicit AreasView(RangeCells cells) : cells_(std::move(cells)) {}

    int32_t Count() override;
    std::shared_ptr<excel::Range> Item(int32_t index) override;

private:
    RangeCells cells_;
};

}  // namespace excel::embedded
