#pragma once

#include "excel/embedded/model/block_shift.hpp"
#include "excel/embedded/model/shapes/shape_model.hpp"

#include <memory>
#include <unordered_map>
#include <vector>

namespace excel::embedded {

// The drawing objects of a sheet in z-order, bottom first: text boxes and comments' shapes. They
// are numbered with one counter per sheet: "TextBox 1", then "Comment 2", ...; a shape's ID is
// its number plus one, as drawings number their objects.
class ShapeList {
public:
    const std::vector<std::shared_ptr<ShapeModel>>& All() const { return shapes_; }
    // A new shape of the type on top of the others, named and numbered.
    std::shared_ptr<ShapeModel> Add(int32_t type);
    // A new comment's shape on top of the others, linked to its cell.
    std::shared_ptr<ShapeModel> AddComment(const CommentLink& link);
    // Takes a shape of an opened file with its own name and ID; later shapes number on from it.
    void AddOpened(std::shared_ptr<ShapeModel> shape);
    // Shapes added from now on take ids above id, which a shape the engine does not model has.
    void ReserveIdsThrough(uint32_t id);
    void Remove(ShapeModel& shape);
    std::shared_ptr<ShapeModel> CommentAt(int32_t row, int32_t column) const;
    // Moves the shapes and comments as the shift moves cells; a comment whose cell is deleted
    // goes with it.
    void Shift(const BlockShift& shift);

private:
    static uint64_t CellKey(int32_t row, int32_t column);
    void indexComments();

    std::vector<std::shared_ptr<ShapeModel>> shapes_;
    // The comments' shapes by cell, so that a sheet of many comments finds one without a search.
    std::unordered_map<uint64_t, std::shared_ptr<ShapeModel>> commentsByCell_;
    uint32_t lastNumber_ = 0;
};

}  // namespace excel::embedded
