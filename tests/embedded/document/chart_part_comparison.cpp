#include "embedded/document/chart_part_comparison.hpp"

#include <pugixml.hpp>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <map>
#include <set>
#include <utility>

namespace chart_comparison {

namespace {

// Excel writes 0.4 as "0.40000000000000002" where we write "0.4": the same double.
bool SameValue(const std::string& a, const std::string& b) {
    if (a == b) {
        return true;
    }
    if (a.empty() || b.empty()) {
        return false;
    }
    char* aEnd = nullptr;
    char* bEnd = nullptr;
    const double x = std::strtod(a.c_str(), &aEnd);
    const double y = std::strtod(b.c_str(), &bEnd);
    if (*aEnd != '\0' || *bEnd != '\0' || !std::isfinite(x) || !std::isfinite(y)) {
        return false;
    }
    return std::fabs(x - y) <= 1e-12 * std::max(std::fabs(x), std::fabs(y));
}

// A step of an allowed addition's path against one of ours: "*" stands for any element, also
// before "@name".
bool SameStep(std::string_view wanted, std::string_view step) {
    const auto split = [](std::string_view text) {
        const std::size_t at = std::min(text.find('@'), text.size());
        return std::pair{text.substr(0, at), text.substr(at)};
    };
    const auto [wantedName, wantedAttribute] = split(wanted);
    const auto [name, attribute] = split(step);
    return (wantedName == "*" || wantedName == name) && wantedAttribute == attribute;
}

std::string Quoted(const std::string& value) {
    return value.empty() ? value : " '" + value + "'";
}

bool IsDeclaration(std::string_view attribute) {
    return attribute == "xmlns" || attribute.starts_with("xmlns:");
}

std::vector<pugi::xml_node> ChildElements(const pugi::xml_node& node) {
    std::vector<pugi::xml_node> out;
    for (const pugi::xml_node child : node.children()) {
        if (child.type() == pugi::node_element) {
            out.push_back(child);
        }
    }
    return out;
}

// The style choice of Excel 2010 and later holds in its fallback what Excel 2007 writes.
void ResolveStyleChoice(pugi::xml_node space) {
    const pugi::xml_node choice = space.child("mc:AlternateContent");
    if (!choice) {
        return;
    }
    for (const pugi::xml_node written : ChildElements(choice.child("mc:Fallback"))) {
        space.insert_copy_before(written, choice);
    }
    space.remove_child(choice);
}

// Each file numbers its axes as it likes: both become "axis1", "axis2", ... in the order of the
// plot area's axes.
void NumberAxes(pugi::xml_node space) {
    std::map<std::string, std::string> names;
    for (const pugi::xml_node element : ChildElements(space.child("c:chart").child("c:plotArea"))) {
        const std::string_view name = element.name();
        if (name.ends_with("Ax")) {
            const std::string id = element.child("c:axId").attribute("val").value();
            names.emplace(id, "axis" + std::to_string(names.size() + 1));
        }
    }
    for (const pugi::xpath_node found : space.select_nodes(".//c:axId | .//c:crossAx")) {
        pugi::xml_attribute id = found.node().attribute("val");
        const auto name = names.find(id.value());
        id.set_value(name != names.end() ? name->second.c_str() : "unknown axis");
    }
}

// An element's value: its val attribute, or all its attributes as "name=value".
std::string ValueOf(const pugi::xml_node& element) {
    const pugi::xml_attribute only = element.first_attribute();
    if (only && !only.next_attribute() && std::string_view(only.name()) == "val") {
        return only.value();
    }
    std::map<std::string, std::string> attributes;
    for (const pugi::xml_attribute attribute : element.attributes()) {
        if (!IsDeclaration(attribute.name())) {
            attributes.emplace(attribute.name(), attribute.value());
        }
    }
    std::string out;
    for (const auto& [name, value] : attributes) {
        out += (out.empty() ? "" : " ") + name + "=" + value;
    }
    return out;
}

// The steps of a path, without the numbers of siblings.
std::vector<std::string> StepsOf(std::string_view path) {
    std::vector<std::string> out;
    while (!path.empty()) {
        const std::size_t slash = path.find('/');
        std::string step(path.substr(0, slash));
        const std::size_t number = step.find('[');
        if (number != std::string::npos) {
            step.erase(number, step.find(']') + 1 - number);
        }
        out.push_back(step);
        path = slash == std::string_view::npos ? std::string_view() : path.substr(slash + 1);
    }
    return out;
}

pugi::xml_document Normalised(const std::string& part) {
    pugi::xml_document xml;
    xml.load_string(part.c_str(), pugi::parse_default | pugi::parse_ws_pcdata_single);
    pugi::xml_node space = xml.child("c:chartSpace");
    space.remove_child("c:printSettings");
    ResolveStyleChoice(space);
    NumberAxes(space);
    return xml;
}

class Comparison {
public:
    explicit Comparison(std::span<const AllowedAddition> allowed) : allowed_(allowed) {}

    void Elements(const pugi::xml_node& excel, const pugi::xml_node& ours, const std::string& path) {
        attributes(excel, ours, path);
        const std::string excelText = excel.text().get();
        const std::string ourText = ours.text().get();
        if (!SameValue(excelText, ourText)) {
            differ(path, "text Excel '" + excelText + "', ours '" + ourText + "'");
        }
        children(excel, ours, path);
    }

    std::vector<std::string> Differences() && { return std::move(differences_); }

private:
    void differ(const std::string& path, const std::string& what) {
        differences_.push_back((path.empty() ? "c:chartSpace" : path) + ": " + what);
    }

    void attributes(const pugi::xml_node& excel, const pugi::xml_node& ours, const std::string& path) {
        std::set<std::string> names;
        for (const pugi::xml_node& node : {excel, ours}) {
            for (const pugi::xml_attribute attribute : node.attributes()) {
                if (!IsDeclaration(attribute.name())) {
                    names.insert(attribute.name());
                }
            }
        }
        for (const std::string& name : names) {
            const pugi::xml_attribute excelValue = excel.attribute(name.c_str());
            const pugi::xml_attribute ourValue = ours.attribute(name.c_str());
            if (excelValue ? ourValue && SameValue(excelValue.value(), ourValue.value())
                           : allowed(path + "@" + name, ourValue.value())) {
                continue;
            }
            differ(path, "@" + name + " Excel '" + (excelValue ? excelValue.value() : "-") + "', ours '" +
                             (ourValue ? ourValue.value() : "-") + "'");
        }
    }

    // Whether the element at the path, or its attribute when the path ends in "@name", may be ours
    // alone with this value.
    bool allowed(const std::string& path, const std::string& value) const {
        const std::vector<std::string> steps = StepsOf(path);
        return std::any_of(allowed_.begin(), allowed_.end(), [&](const AllowedAddition& addition) {
            const std::vector<std::string> tail = StepsOf(addition.where);
            return tail.size() <= steps.size() && std::equal(tail.rbegin(), tail.rend(), steps.rbegin(), SameStep) &&
                   SameValue(std::string(addition.value), value);
        });
    }

    // The k-th child of a name in Excel's part goes with the k-th of that name in ours.
    void children(const pugi::xml_node& excel, const pugi::xml_node& ours, const std::string& path) {
        using Key = std::pair<std::string, int>;
        const auto keyed = [](const pugi::xml_node& node) {
            std::vector<std::pair<Key, pugi::xml_node>> out;
            std::map<std::string, int> seen;
            for (const pugi::xml_node child : ChildElements(node)) {
                out.push_back({{child.name(), seen[child.name()]++}, child});
            }
            return std::pair{out, seen};
        };
        const auto [excelChildren, excelCounts] = keyed(excel);
        const auto [ourChildren, ourCounts] = keyed(ours);
        const auto pathOf = [&](const Key& key) {
            const std::string& name = key.first;
            const auto countIn = [&](const std::map<std::string, int>& counts) {
                const auto found = counts.find(name);
                return found != counts.end() ? found->second : 0;
            };
            const bool numbered = std::max(countIn(excelCounts), countIn(ourCounts)) > 1;
            return path + (path.empty() ? "" : "/") + name +
                   (numbered ? "[" + std::to_string(key.second + 1) + "]" : "");
        };
        const auto find = [](const auto& list, const Key& key) {
            return std::find_if(list.begin(), list.end(), [&](const auto& entry) { return entry.first == key; });
        };
        std::vector<Key> excelOrder;
        for (const auto& [key, child] : excelChildren) {
            const auto mine = find(ourChildren, key);
            if (mine == ourChildren.end()) {
                differ(pathOf(key), "missing" + Quoted(ValueOf(child)));
                continue;
            }
            excelOrder.push_back(key);
            Elements(child, mine->second, pathOf(key));
        }
        std::vector<Key> ourOrder;
        for (const auto& [key, child] : ourChildren) {
            if (find(excelChildren, key) != excelChildren.end()) {
                ourOrder.push_back(key);
            } else if (child.first_child() || !allowed(pathOf(key), ValueOf(child))) {
                differ(pathOf(key), "added" + Quoted(ValueOf(child)));
            }
        }
        if (excelOrder != ourOrder) {
            const auto names = [](const std::vector<Key>& keys) {
                std::string out;
                for (const Key& key : keys) {
                    out += (out.empty() ? "" : " ") + key.first;
                }
                return out;
            };
            differ(path, "order Excel (" + names(excelOrder) + "), ours (" + names(ourOrder) + ")");
        }
    }

    std::span<const AllowedAddition> allowed_;
    std::vector<std::string> differences_;
};

}  // namespace

std::vector<std::string> ChartPartDifferences(const std::string& excel, const std::string& ours,
                                              std::span<const AllowedAddition> allowed) {
    const pugi::xml_document excelXml = Normalised(excel);
    const pugi::xml_document ourXml = Normalised(ours);
    Comparison comparison(allowed);
    comparison.Elements(excelXml.child("c:chartSpace"), ourXml.child("c:chartSpace"), "");
    return std::move(comparison).Differences();
}

}  // namespace chart_comparison
