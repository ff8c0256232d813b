#include "excel/com/com_object.hpp"
#include "com/counted_dispatch.hpp"
#include "excel/com/wide_text.hpp"

#include <excel/automation_error.hpp>

#include <gtest/gtest.h>

#include <string>

namespace {

using excel::Variant;
using excel::com::ComObject;
using excel::com::ComObjects;

// An automation object with a parent: Parent (an object) and Name (a text), counting references.
class Node : public CountedDispatch {
public:
    Node(std::string name, Node* parent) : name_(std::move(name)), parent_(parent) {}

    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override {
        const std::wstring name(names[0]);
        if (name == L"Parent" || name == L"Name") {
            ids[0] = name == L"Parent" ? 1 : 2;
            return S_OK;
        }
        return DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                                     UINT*) override {
        if (id == 1) {
            result->vt = VT_DISPATCH;
            result->pdispVal = parent_;
            if (parent_ != nullptr) {
                parent_->AddRef();
            }
        } else {
            result->vt = VT_BSTR;
            result->bstrVal = excel::com::NewBstr(name_);
        }
        return S_OK;
    }

private:
    std::string name_;
    Node* parent_;
};

TEST(ComObject, TwoWrappersOfOneObjectAreTheSameObject) {
    Node book("Book1", nullptr);
    Node other("Book2", nullptr);
    const auto first = std::make_shared<ComObject>(&book);
    const auto second = std::make_shared<ComObject>(&book);
    const auto third = std::make_shared<ComObject>(&other);
    EXPECT_TRUE(excel::IsSameObject(first, second));
    EXPECT_FALSE(excel::IsSameObject(first, third));
}

TEST(ComObject, ReleasesWhatItHeldWhenTheLastWrapperGoes) {
    Node book("Book1", nullptr);
    {
        const auto wrapper = std::make_shared<ComObject>(&book);
        EXPECT_GT(book.references, 1u);
    }
    EXPECT_EQ(book.references, 1u);
}

TEST(ComObject, ObjectsACallReturnsComeWrapped) {
    Node book("Book1", nullptr);
    Node sheet("Sheet1", &book);
    {
        const excel::com::DispatchCaller caller(&sheet, excel::com::TypeOf(&sheet), ComObjects());
        const Variant parent = caller.Get("Parent");
        const auto wrapped = parent.As<ComObject>();
        ASSERT_NE(wrapped, nullptr);
        EXPECT_EQ(wrapped->Dispatch(), &book);
        EXPECT_EQ(excel::com::DispatchCaller(wrapped->Dispatch(), wrapped->Type(), ComObjects()).Get("Name"),
                  Variant("Book1"));
    }
    EXPECT_EQ(book.references, 1u);
    EXPECT_EQ(sheet.references, 1u);
    // A parent of nothing comes as an empty object.
    const excel::com::DispatchCaller caller(&book, excel::com::TypeOf(&book), ComObjects());
    EXPECT_EQ(caller.Get("Parent").ToObject(), nullptr);
}

// A typed object of the boundary, as a workbook's would be: its interface and the holder.
class TypedBook : public excel::Object, public excel::com::DispatchHolder {
public:
    explicit TypedBook(IDispatch* dispatch) : DispatchHolder(dispatch) {}
    const void* Identity() const override { return DispatchIdentity(); }
};

TEST(ComObject, OnlyAutomationObjectsCrossBackToAutomation) {
    Node book("Book1", nullptr);
    const auto wrapper = std::make_shared<ComObject>(&book);
    IDispatch* handed = ComObjects().Unwrap(wrapper);
    EXPECT_EQ(handed, &book);
    handed->Release();
    const auto typed = std::make_shared<TypedBook>(&book);
    EXPECT_TRUE(excel::IsSameObject(typed, wrapper));
    handed = ComObjects().Unwrap(typed);
    EXPECT_EQ(handed, &book);
    handed->Release();
    EXPECT_EQ(ComObjects().Unwrap(nullptr), nullptr);
    class Elsewhere : public excel::Object {};
    try {
        ComObjects().Unwrap(std::make_shared<Elsewhere>());
        ADD_FAILURE() << "expected a type mismatch";
    } catch (const excel::AutomationError& error) {
        EXPECT_EQ(static_cast<uint32_t>(error.code()), 0x800A000Du);
    }
}

}  // namespace
