#include "excel/embedded/objects/shapes/comment_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/model/workbook_model.hpp"
#include "excel/embedded/objects/range/range_view.hpp"
#include "excel/embedded/objects/shapes/shape_view.hpp"
#include "excel/embedded/text/rich_text.hpp"

namespace excel::embedded {

const CommentLink& CommentView::link() const {
    return *shape_.Shape().comment;
}

std::shared_ptr<excel::Range> CommentView::Parent() {
    const CommentLink& cell = link();
    return RangeView::Make(shape_.SheetPointer(), {CellBlock{cell.row, cell.column, cell.row, cell.column}});
}

std::string CommentView::Author() {
    return link().author;
}

std::shared_ptr<excel::Shape> CommentView::Shape() {
    shape_.Shape();
    return std::make_shared<ShapeView>(shape_);
}

bool CommentView::Visible() {
    return shape_.Shape().visible;
}

void CommentView::SetVisible(bool visible) {
    shape_.Shape().visible = visible;
    shape_.Changed();
}

std::string CommentView::Text(const Variant& text, const Variant& start, const Variant& overwrite) {
    ShapeText& frame = shape_.Shape().text;
    if (text.IsEmpty()) {
        return frame.text.text;
    }
    const std::string added = text.ToString();
    const size_t total = CharacterCount(frame.text);
    if (start.IsEmpty()) {
        frame.text = WithReplaced(frame.text, 0, total, added);
    } else {
        const int32_t from = start.ToInt();
        if (from < 1) {
            ThrowRefused("Unable to get the Text property of the Comment class");
        }
        const size_t at = std::min(static_cast<size_t>(from - 1), total);
        const bool replacesRest = !overwrite.IsEmpty() && overwrite.ToBool();
        frame.text = WithReplaced(frame.text, at, replacesRest ? total - at : 0, added);
    }
    shape_.Changed();
    return frame.text.text;
}

void CommentView::Delete() {
    shape_.Delete();
}

}  // namespace excel::embedded
