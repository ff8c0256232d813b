#pragma once

#include "excel/embedded/model/shapes/shape_handle.hpp"

#include <excel/comment.hpp>

namespace excel::embedded {

// A cell's comment: the comment link and text of its shape.
class CommentView final : public excel::Comment {
public:
    explicit CommentView(ShapeHandle shape) : shape_(std::move(shape)) {}

    std::shared_ptr<excel::Range> Parent() override;
    std::string Author() override;
    std::shared_ptr<excel::Shape> Shape() override;
    bool Visible() override;
    void SetVisible(bool visible) override;
    std::string Text(const Variant& text, const Variant& start, const Variant& overwrite) override;
    void Delete() override;

    const void* Identity() const override { return shape_.Identity(); }

private:
    const CommentLink& link() const;

    ShapeHandle shape_;
};

}  // namespace excel::embedded
