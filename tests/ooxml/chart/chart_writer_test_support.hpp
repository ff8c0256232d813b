#pragma once

// Helpers for the chart writer tests: writing a chart document into parsed XML, the chart parts of
// Excel-made files of the corpus, and comparing the two.

#include "ooxml/document/chart_document.hpp"

#include <gtest/gtest.h>
#include <pugixml.hpp>

#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace chart_test {

// The chart part a chart document is written as; userShapesId: the relationship to its drawing.
std::unique_ptr<pugi::xml_document> WriteChart(const ooxml::ChartDocument& chart, std::string_view userShapesId = {});

// A part of a file of the corpus (its path below excel-corpus/), parsed.
std::unique_ptr<pugi::xml_document> CorpusPart(const std::string& file,
                                               const std::string& part = "xl/charts/chart1.xml");

// Whether every element of expected is in actual, with the same attributes and text, and each
// element's children in the same order; actual may hold more children between them. The names
// of those further children of actual are added to extra (when given).
::testing::AssertionResult Embeds(pugi::xml_node expected, pugi::xml_node actual,
                                  std::set<std::string>* extra = nullptr);

// Whether actual embeds expected (Embeds) holding no more children than those named in allowed.
::testing::AssertionResult EmbedsAllowing(pugi::xml_node expected, pugi::xml_node actual,
                                          const std::set<std::string>& allowed);

// Whether the two are the same XML (attributes in any order).
::testing::AssertionResult SameXml(pugi::xml_node expected, pugi::xml_node actual);

// The elements Excel 2010 and later write that Excel 2007 leaves out when they hold Excel's
// default: what a chart written by the writer may hold beyond a chart Excel 2007 wrote.
const std::set<std::string>& DefaultsSpelledOut();
::testing::AssertionResult EmbedsWithDefaultsSpelledOut(pugi::xml_node expected, pugi::xml_node actual);

std::vector<std::string> ChildNames(pugi::xml_node element);

// Series data as the xlsxwriter charts of the corpus hold it.
ooxml::ChartData NumberReference(std::string formula, const std::vector<std::string>& values,
                                 std::string formatCode = "General");
ooxml::ChartData StringReference(std::string formula, const std::vector<std::string>& values);

// A group with series of values (and no categories) from each of formulas ("Sheet1!$B$1:$B$5"), the
// cached values of the n-th column being n, 2n, 3n, 4n, 5n as in the corpus' xlsxwriter charts, on
// the axes with the two ids.
ooxml::ChartGroup GroupOfColumns(std::string type, const std::vector<std::string>& formulas, uint32_t categoryAxis,
                                 uint32_t valueAxis);

// The category and value axes of the corpus' xlsxwriter charts: at the bottom and left, crossing
// each other at zero, value gridlines with a linked General format.
ooxml::ChartAxis CategoryAxis(uint32_t id, uint32_t crossAxis);
ooxml::ChartAxis ValueAxis(uint32_t id, uint32_t crossAxis);

// A chart of one group on those axes, with a legend at the right.
ooxml::ChartDocument ChartOf(ooxml::ChartGroup group, ooxml::ChartAxis categoryAxis, ooxml::ChartAxis valueAxis);

}  // namespace chart_test
