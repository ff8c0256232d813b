#pragma once

#include "ooxml/document/chart_document.hpp"
#include "ooxml/opc/carried_parts_reader.hpp"
#include "ooxml/zip/zip_archive_reader.hpp"

#include <memory>
#include <vector>

namespace ooxml {

// Reads the chart parts a sheet drawing's graphic frames lead to, with their chart drawings, into
// chart documents. A part read is rewritten; the parts its relationships lead to (its style and
// colour parts, embedded data, the chart drawing's pictures) stay carried under the chart's
// relationships.
class ChartPartsReader {
public:
    ChartPartsReader(const ZipArchiveReader& archive, CarriedPartsReader& carriedParts)
        : archive_(archive), carriedParts_(carriedParts) {}

    // The chart the relationship leads to; null when it is no chart part or is not read into a
    // document, and then it stays carried as it is.
    std::shared_ptr<const ChartDocument> Read(const Relationship& relationship);

    // The relationships the charts read keep: followed to their parts once every rewritten part
    // is known, and left out where they lead to no part kept.
    std::vector<std::vector<Relationship>*> KeptRelationships();

private:
    const ZipArchiveReader& archive_;
    CarriedPartsReader& carriedParts_;
    std::vector<std::shared_ptr<ChartDocument>> charts_;
};

}  // namespace ooxml
