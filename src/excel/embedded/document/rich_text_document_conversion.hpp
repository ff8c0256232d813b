#pragma once

#include "excel/embedded/text/rich_text.hpp"
#include "ooxml/document/shared_string.hpp"

namespace excel::embedded {

// A text with its runs in the file's terms and back.
ooxml::SharedString DocumentText(const RichText& text);
RichText TextFromDocument(const ooxml::SharedString& text);

}  // namespace excel::embedded
