#pragma once

#include <excel/fwd.hpp>
#include <excel/variant.hpp>

#include <cstdint>
#include <string>
#include <vector>

namespace vos {

// One label and value line of a report header block; the labels carry no colon.
struct HeaderLine {
    std::string label;
    std::string value;
};

// The lines under a header block's title: who ran the report, when, and the caller's lines.
struct HeaderLines {
    HeaderLine performedBy;
    HeaderLine date;
    std::vector<HeaderLine> extra;
};

// The number of entries of the caller's one-dimensional array of extra lines; 0 when it holds no
// array, an unallocated one, or more entries than a 16-bit count can hold.
int16_t ExtraHeaderLineCount(const excel::Variant& additionalHeaderInfo);

// The lines in the language's labels. The user is Excel's user name and the date the current
// date and time; in unit-testing mode they are "UnitTester" and "<<Date>> <<Time>>" so that
// reports compare equal. Each extra entry is read as text, label before its first TAB (trimmed)
// and value after it; an entry without a TAB is all label, with an empty value.
HeaderLines ReadHeaderLines(excel::Application& application, int32_t language,
                            const excel::Variant& additionalHeaderInfo, int16_t extraLineCount);

}  // namespace vos
