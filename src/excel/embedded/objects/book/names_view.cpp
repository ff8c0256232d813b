#include "excel/embedded/objects/book/names_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/model/names/defined_name_rules.hpp"
#include "excel/embedded/model/names/name_reference.hpp"
#include "excel/embedded/objects/book/name_view.hpp"
#include "excel/embedded/objects/range/range_view.hpp"
#include "excel/embedded/text/general_format.hpp"

namespace excel::embedded {

std::string FormulaFromRefersTo(const Variant& refersTo) {
    if (refersTo.IsObject()) {
        const auto range = refersTo.As<RangeView>();
        if (!range) {
            ThrowRefused("The formula contains an error.");
        }
        range->Target().Book();
        return WriteSheetReference(range->Target().Sheet()->Name(), range->Target().Areas());
    }
    switch (refersTo.Type()) {
        case VarType::Empty:
        case VarType::Null:
        case VarType::Error:
            ThrowRefused("The formula contains an error.");
        case VarType::String: {
            const std::string text = refersTo.ToString();
            if (text.starts_with("=")) {
                if (text.size() == 1) {
                    ThrowRefused("The formula contains an error.");
                }
                return text.substr(1);
            }
            std::string quoted = "\"";
            for (char c : text) {
                quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
            }
            return quoted + "\"";
        }
        case VarType::Boolean:
            return refersTo.ToBool() ? "TRUE" : "FALSE";
        default:
            return FormatGeneral(refersTo.ToDouble());
    }
}

std::vector<std::shared_ptr<DefinedNameModel>> NamesView::listed() const {
    if (!book_->Alive() || (localSheet_ && !localSheet_->Alive())) {
        ThrowObjectRequired();
    }
    std::vector<std::shared_ptr<DefinedNameModel>> names;
    for (const auto& name : book_->Names()) {
        if (!localSheet_ || name->localSheet == localSheet_) {
            names.push_back(name);
        }
    }
    return names;
}

int32_t NamesView::Count() {
    return static_cast<int32_t>(listed().size());
}

std::shared_ptr<excel::Name> NamesView::Item(const Variant& index) {
    const auto names = listed();
    if (!index.IsString()) {
        const int32_t position = index.ToInt();
        if (position < 1 || position > static_cast<int32_t>(names.size())) {
            ThrowRefused();
        }
        return std::make_shared<NameView>(book_, names[static_cast<size_t>(position - 1)]);
    }
    const std::string text = index.ToString();
    for (const auto& name : names) {
        if (WorkbookModel::ScopedName(*name) == text || (localSheet_ && SameDefinedName(name->name, text))) {
            return std::make_shared<NameView>(book_, name);
        }
    }
    for (const auto& name : names) {
        if (SameDefinedName(WorkbookModel::ScopedName(*name), text)) {
            return std::make_shared<NameView>(book_, name);
        }
    }
    ThrowRefused();
}

std::shared_ptr<excel::Name> NamesView::Add(const std::string& name, const Variant& refersTo, bool visible) {
    listed();
    const std::string formula = FormulaFromRefersTo(refersTo);
    return std::make_shared<NameView>(book_, book_->AddName(name, formula, visible, localSheet_));
}

}  // namespace excel::embedded
