#pragma once

#include <excel/fwd.hpp>

#include <memory>
#include <string>

namespace vos {

// Appends a run of text to the shape's text in its own size, weight and underline. The text
// always ends in one space that the next run replaces, so each run can be formatted on its own:
// appending "A" and then "B" gives "AB ". An empty text appends nothing.
void AppendShapeText(const std::shared_ptr<excel::Shape>& theShape, const std::string& text, double size, bool bold,
                     bool underline);

}  // namespace vos
