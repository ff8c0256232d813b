#pragma once

#include "ooxml/carried/carried_element_writer.hpp"
#include "ooxml/carried/element_order.hpp"
#include "ooxml/document/carried_content.hpp"
#include "ooxml/xml/xml_writer.hpp"

#include <optional>
#include <string_view>
#include <vector>

namespace ooxml {

// Writes an element with nothing in it (<c:layout/>, <a:lstStyle/>).
void WriteEmptyElement(XmlWriter& xml, std::string_view element);

// Writes <c:name val="..."/>, the form of every simple chart element.
void WriteValueElement(XmlWriter& xml, std::string_view element, std::string_view value);
void WriteFlagElement(XmlWriter& xml, std::string_view element, bool value);
// Whole numbers are written without a fraction ("150").
void WriteNumberElement(XmlWriter& xml, std::string_view element, double value);

struct ChartManualLayout;
class ChartChildren;

// Writes an element's c:layout: the manual layout given (in place of the file's own), else the
// file's when it is carried, else an automatic one.
void WriteChartLayout(XmlWriter& xml, ChartChildren& children, const std::optional<ChartManualLayout>& layout);

// The children of one chart element as its writer writes them: only those the element's kind
// has (a line group has no gap width, a category axis no crossBetween), in its order, with the
// carried children put back in their slots. Elements are named qualified ("c:gapWidth"), as
// string literals; Next also takes a local name (a group's type).
class ChartChildren {
public:
    ChartChildren(XmlWriter& xml, ElementOrder order, const std::vector<CarriedElement>* carried)
        : xml_(xml), order_(order), carried_(xml, carried) {}

    // Whether the element has this child; when it has, the carried children before it are written
    // so that the caller writes it next.
    bool Next(std::string_view element);
    // A simple child, when the element has it.
    void Value(std::string_view element, std::string_view value);
    void Flag(std::string_view element, bool value);
    void Number(std::string_view element, double value);
    // Whether the file's own child of that local name is carried (the writer then writes none).
    bool Carries(std::string_view localName) const { return carried_.Carries(localName); }
    // Leaves out the carried children of that local name: the writer writes its own.
    void Drop(std::string_view localName) { carried_.Drop(localName); }
    // Writes the carried children left, after the last child written.
    void Rest() { carried_.Rest(); }

private:
    XmlWriter& xml_;
    ElementOrder order_;
    CarriedElementWriter carried_;
};

}  // namespace ooxml
