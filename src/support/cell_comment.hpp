#pragma once

#include <excel/fwd.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace vos {

// Refuses a header or main text that is blank once trimmed, naming "headerText" or "mainText".
void RequireCommentTexts(const std::string& headerText, const std::string& mainText);

// Replaces the cell's comment by a hidden one that reads the header text, bold and underlined,
// over the main text (both trimmed, neither may be blank), in a white 216 x 90 point box with a
// 2.5 point outline: the theme colour outlineThemeColor (drawing-object numbering) when
// themeOutline is set, navy otherwise. Excel refusing any step after the checks leaves a plainer
// comment, or none, and is not reported.
std::shared_ptr<excel::Comment> CreateCellComment(const std::shared_ptr<excel::Range>& whichCell,
                                                  const std::string& headerText, const std::string& mainText,
                                                  bool themeOutline, int32_t outlineThemeColor);

// The comment clients add through the entry object or a report sheet: always the navy outline.
std::shared_ptr<excel::Comment> CreateClientCellComment(const std::shared_ptr<excel::Range>& whichCell,
                                                        const std::string& headerText, const std::string& mainText);

}  // namespace vos
