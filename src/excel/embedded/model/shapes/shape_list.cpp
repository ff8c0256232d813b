#include "excel/embedded/model/shapes/shape_list.hpp"

#include "excel/embedded/model/shapes/shape_placement.hpp"

#include <algorithm>

namespace excel::embedded {

std::shared_ptr<ShapeModel> ShapeList::Add(int32_t type) {
    auto shape = std::make_shared<ShapeModel>();
    ++lastNumber_;
    shape->id = lastNumber_ + 1;
    shape->type = type;
    shape->name = std::string(type == msoComment ? "Comment " : type == msoChart ? "Chart " : "TextBox ") +
                  std::to_string(lastNumber_);
    shapes_.push_back(shape);
    return shape;
}

std::shared_ptr<ShapeModel> ShapeList::AddComment(const CommentLink& link) {
    auto shape = Add(msoComment);
    shape->comment = link;
    commentsByCell_[CellKey(link.row, link.column)] = shape;
    return shape;
}

void ShapeList::AddOpened(std::shared_ptr<ShapeModel> shape) {
    ReserveIdsThrough(shape->id);
    shapes_.push_back(std::move(shape));
}

void ShapeList::ReserveIdsThrough(uint32_t id) {
    lastNumber_ = std::max(lastNumber_, id > 0 ? id - 1 : 0);
}

void ShapeList::Remove(ShapeModel& shape) {
    shape.deleted = true;
    if (shape.comment) {
        commentsByCell_.erase(CellKey(shape.comment->row, shape.comment->column));
    }
    std::erase_if(shapes_, [&](const auto& held) { return held.get() == &shape; });
}

std::shared_ptr<ShapeModel> ShapeList::CommentAt(int32_t row, int32_t column) const {
    const auto found = commentsByCell_.find(CellKey(row, column));
    return found == commentsByCell_.end() ? nullptr : found->second;
}

uint64_t ShapeList::CellKey(int32_t row, int32_t column) {
    return static_cast<uint64_t>(static_cast<uint32_t>(row)) << 32 | static_cast<uint32_t>(column);
}

void ShapeList::indexComments() {
    commentsByCell_.clear();
    for (const auto& shape : shapes_) {
        if (shape->comment) {
            commentsByCell_[CellKey(shape->comment->row, shape->comment->column)] = shape;
        }
    }
}

void ShapeList::Shift(const BlockShift& shift) {
    for (const auto& shape : shapes_) {
        ShiftAnchors(*shape, shift);
        if (!shape->comment) {
            continue;
        }
        CommentLink& link = *shape->comment;
        if (auto cell = ShiftBlock(CellBlock{link.row, link.column, link.row, link.column}, shift)) {
            link.row = cell->top;
            link.column = cell->left;
        } else {
            shape->deleted = true;
        }
    }
    std::erase_if(shapes_, [](const auto& shape) { return shape->deleted; });
    indexComments();
}

}  // namespace excel::embedded
