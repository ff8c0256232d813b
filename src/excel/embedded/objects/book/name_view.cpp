#include "excel/embedded/objects/book/name_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/model/names/name_reference.hpp"
#include "excel/embedded/objects/book/names_view.hpp"
#include "excel/embedded/objects/range/range_view.hpp"

namespace excel::embedded {

DefinedNameModel& NameView::name() const {
    if (!book_->Alive() || name_->deleted) {
        ThrowObjectRequired();
    }
    return *name_;
}

std::string NameView::GetName() {
    return WorkbookModel::ScopedName(name());
}

void NameView::SetName(const std::string& newName) {
    DefinedNameModel& current = name();
    // A local name may be given with its sheet prefix; the scope itself does not change.
    const auto bang = newName.rfind('!');
    book_->RenameName(current, bang == std::string::npos ? newName : newName.substr(bang + 1));
}

std::string NameView::RefersTo() {
    return "=" + name().formula;
}

void NameView::SetRefersTo(const Variant& refersTo) {
    DefinedNameModel& current = name();
    current.formula = FormulaFromRefersTo(refersTo);
    book_->SetSaved(false);
}

std::string NameView::Value() {
    return RefersTo();
}

std::shared_ptr<excel::Range> NameView::RefersToRange() {
    const auto reference = ReadSheetReference(name().formula);
    const auto sheet = reference ? book_->FindSheet(reference->sheet) : nullptr;
    if (!sheet) {
        ThrowRefused("Application-defined or object-defined error");
    }
    return RangeView::Make(sheet, reference->areas);
}

bool NameView::Visible() {
    return name().visible;
}

void NameView::SetVisible(bool visible) {
    name().visible = visible;
    book_->SetSaved(false);
}

int32_t NameView::Index() {
    const DefinedNameModel& current = name();
    const auto& names = book_->Names();
    for (size_t i = 0; i < names.size(); ++i) {
        if (names[i].get() == &current) {
            return static_cast<int32_t>(i + 1);
        }
    }
    ThrowObjectRequired();
}

void NameView::Delete() {
    book_->DeleteName(name());
}

}  // namespace excel::embedded
