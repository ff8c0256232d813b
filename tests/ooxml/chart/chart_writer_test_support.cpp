#include "ooxml/chart/chart_writer_test_support.hpp"

#include "ooxml/chart/chart_part.hpp"
#include "ooxml/writer_test_support.hpp"

#include <map>

namespace chart_test {

using namespace ooxml;

namespace {

std::string Path(pugi::xml_node node) {
    std::string path;
    for (; node && node.type() == pugi::node_element; node = node.parent()) {
        path = "/" + std::string(node.name()) + path;
    }
    return path;
}

std::map<std::string, std::string> Attributes(pugi::xml_node node) {
    std::map<std::string, std::string> attributes;
    for (const pugi::xml_attribute attribute : node.attributes()) {
        attributes[attribute.name()] = attribute.value();
    }
    return attributes;
}

std::string Describe(const std::map<std::string, std::string>& attributes) {
    std::string text;
    for (const auto& [name, value] : attributes) {
        text += " " + name + "=\"" + value + "\"";
    }
    return text;
}

}  // namespace

std::unique_ptr<pugi::xml_document> WriteChart(const ChartDocument& chart, std::string_view userShapesId) {
    return writer_test::ParseXml(
        writer_test::WriteToString([&](XmlWriter& xml) { WriteChartPart(xml, chart, userShapesId); }));
}

std::unique_ptr<pugi::xml_document> CorpusPart(const std::string& file, const std::string& part) {
    return writer_test::ParsePart(std::string(VOS_SHARED_DIR "/excel-corpus/") + file, part);
}

::testing::AssertionResult Embeds(pugi::xml_node expected, pugi::xml_node actual, std::set<std::string>* extra) {
    if (std::string_view(expected.name()) != actual.name()) {
        return ::testing::AssertionFailure() << Path(actual) << ": " << expected.name() << " expected";
    }
    if (Attributes(expected) != Attributes(actual)) {
        return ::testing::AssertionFailure() << Path(actual) << ": attributes" << Describe(Attributes(actual))
                                             << ", expected" << Describe(Attributes(expected));
    }
    if (std::string_view(expected.text().get()) != actual.text().get()) {
        return ::testing::AssertionFailure() << Path(actual) << ": text \"" << actual.text().get() << "\", expected \""
                                             << expected.text().get() << "\"";
    }
    pugi::xml_node next = actual.first_child();
    for (const pugi::xml_node child : expected.children()) {
        if (child.type() != pugi::node_element) {
            continue;
        }
        while (next && (next.type() != pugi::node_element || std::string_view(next.name()) != child.name())) {
            if (extra != nullptr && next.type() == pugi::node_element) {
                extra->insert(next.name());
            }
            next = next.next_sibling();
        }
        if (!next) {
            return ::testing::AssertionFailure() << Path(actual) << ": no " << child.name() << " where expected";
        }
        ::testing::AssertionResult same = Embeds(child, next, extra);
        if (!same) {
            return same;
        }
        next = next.next_sibling();
    }
    for (; next; next = next.next_sibling()) {
        if (extra != nullptr && next.type() == pugi::node_element) {
            extra->insert(next.name());
        }
    }
    return ::testing::AssertionSuccess();
}

::testing::AssertionResult EmbedsAllowing(pugi::xml_node expected, pugi::xml_node actual,
                                          const std::set<std::string>& allowed) {
    std::set<std::string> extra;
    ::testing::AssertionResult embedded = Embeds(expected, actual, &extra);
    if (!embedded) {
        return embedded;
    }
    for (const std::string& name : extra) {
        if (allowed.count(name) == 0) {
            return ::testing::AssertionFailure() << "unexpected " << name << " in " << Path(actual);
        }
    }
    return ::testing::AssertionSuccess();
}

::testing::AssertionResult SameXml(pugi::xml_node expected, pugi::xml_node actual) {
    return EmbedsAllowing(expected, actual, {});
}

const std::set<std::string>& DefaultsSpelledOut() {
    static const std::set<std::string> defaults{
        "c:date1904",      "c:roundedCorners", "mc:AlternateContent", "c:autoTitleDeleted",
        "c:varyColors",    "c:gapWidth",       "c:overlap",           "c:delete",
        "c:majorTickMark", "c:minorTickMark",  "c:invertIfNegative",  "c:smooth",
        "c:overlay",       "c:noMultiLvlLbl",  "c:dispBlanksAs",      "c:showDLblsOverMax",
    };
    return defaults;
}

::testing::AssertionResult EmbedsWithDefaultsSpelledOut(pugi::xml_node expected, pugi::xml_node actual) {
    return EmbedsAllowing(expected, actual, DefaultsSpelledOut());
}

std::vector<std::string> ChildNames(pugi::xml_node element) {
    std::vector<std::string> names;
    for (const pugi::xml_node child : element.children()) {
        if (child.type() == pugi::node_element) {
            names.emplace_back(child.name());
        }
    }
    return names;
}

ChartData NumberReference(std::string formula, const std::vector<std::string>& values, std::string formatCode) {
    ChartData data;
    data.kind = ChartData::Kind::NumberReference;
    data.formula = std::move(formula);
    data.formatCode = std::move(formatCode);
    data.pointCount = static_cast<uint32_t>(values.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        data.points.emplace_back(static_cast<uint32_t>(i), values[i]);
    }
    return data;
}

ChartData StringReference(std::string formula, const std::vector<std::string>& values) {
    ChartData data = NumberReference(std::move(formula), values, "");
    data.kind = ChartData::Kind::StringReference;
    return data;
}

ChartGroup GroupOfColumns(std::string type, const std::vector<std::string>& formulas, uint32_t categoryAxis,
                          uint32_t valueAxis) {
    ChartGroup group;
    group.type = std::move(type);
    for (std::size_t i = 0; i < formulas.size(); ++i) {
        ChartSeries series;
        series.index = series.order = static_cast<uint32_t>(i);
        const std::size_t column = static_cast<std::size_t>(formulas[i][formulas[i].find("!$") + 2] - 'A' + 1);
        std::vector<std::string> values;
        for (std::size_t row = 1; row <= 5; ++row) {
            values.push_back(std::to_string(row * column));
        }
        series.values = NumberReference(formulas[i], values);
        group.series.push_back(std::move(series));
    }
    group.axisIds = {categoryAxis, valueAxis};
    return group;
}

ChartAxis CategoryAxis(uint32_t id, uint32_t crossAxis) {
    ChartAxis axis;
    axis.type = "catAx";
    axis.id = id;
    axis.crossAxisId = crossAxis;
    return axis;
}

ChartAxis ValueAxis(uint32_t id, uint32_t crossAxis) {
    ChartAxis axis;
    axis.type = "valAx";
    axis.id = id;
    axis.position = "l";
    axis.majorGridlines = ChartShapeProperties{};
    axis.numberFormat = ChartNumberFormat{"General", true};
    axis.crossAxisId = crossAxis;
    return axis;
}

ChartDocument ChartOf(ChartGroup group, ChartAxis categoryAxis, ChartAxis valueAxis) {
    ChartDocument chart;
    chart.plotArea.groups.push_back(std::move(group));
    chart.plotArea.axes = {std::move(categoryAxis), std::move(valueAxis)};
    chart.legend = ChartLegend{};
    return chart;
}

}  // namespace chart_test
