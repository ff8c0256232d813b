// The engine's objects served to automation clients, seen from a client's side: one IDispatch per
// object, type information, names and dispatch ids, the default member, the arguments automation
// refuses, and the engine's refusals as exceptions with Excel's code and text.

#include "excel/com/served_object.hpp"

#include "excel/com/com_object.hpp"
#include "excel/com/dispatch_caller.hpp"
#include "excel/com/wide_text.hpp"

#include <excel/com.hpp>
#include <excel/embedded.hpp>
#include <excel/excel.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace {

using excel::Variant;
using excel::com::ServeObject;

// A served object, released when the test is done with it.
struct Served {
    explicit Served(const std::shared_ptr<excel::Object>& object) : dispatch(ServeObject(object)) {}
    ~Served() {
        if (dispatch != nullptr) {
            dispatch->Release();
        }
    }
    Served(const Served&) = delete;
    Served& operator=(const Served&) = delete;
    IDispatch* dispatch;
};

IUnknown* IdentityOf(IDispatch* dispatch) {
    IUnknown* identity = nullptr;
    dispatch->QueryInterface(IID_IUnknown, reinterpret_cast<void**>(&identity));
    identity->Release();
    return identity;
}

DISPID IdOf(IDispatch* dispatch, const wchar_t* name) {
    std::wstring text(name);
    LPOLESTR names[] = {text.data()};
    DISPID id = DISPID_UNKNOWN;
    EXPECT_EQ(dispatch->GetIDsOfNames(IID_NULL, names, 1, 1033, &id), S_OK) << "no member named so";
    return id;
}

// One raw call, arguments in their written order; the result in result, the exception in exception.
struct RawCall {
    HRESULT outcome = S_OK;
    VARIANT result{};
    EXCEPINFO exception{};
    ~RawCall() {
        VariantClear(&result);
        SysFreeString(exception.bstrSource);
        SysFreeString(exception.bstrDescription);
        SysFreeString(exception.bstrHelpFile);
    }
};

void Invoke(RawCall& call, IDispatch* dispatch, DISPID id, WORD flags, std::vector<VARIANT> arguments,
            std::vector<DISPID> named = {}) {
    std::reverse(arguments.begin(), arguments.end());
    DISPPARAMS parameters{arguments.data(), named.data(), static_cast<UINT>(arguments.size()),
                          static_cast<UINT>(named.size())};
    call.outcome = dispatch->Invoke(id, IID_NULL, 1033, flags, &parameters, &call.result, &call.exception, nullptr);
    for (VARIANT& argument : arguments) {
        VariantClear(&argument);
    }
}

VARIANT Long(int32_t value) {
    VARIANT argument;
    VariantInit(&argument);
    argument.vt = VT_I4;
    argument.lVal = value;
    return argument;
}

VARIANT Text(const char* value) {
    VARIANT argument;
    VariantInit(&argument);
    argument.vt = VT_BSTR;
    argument.bstrVal = excel::com::NewBstr(value);
    return argument;
}

VARIANT Omitted() {
    VARIANT argument;
    VariantInit(&argument);
    argument.vt = VT_ERROR;
    argument.scode = DISP_E_PARAMNOTFOUND;
    return argument;
}

class ServedObjectTest : public ::testing::Test {
protected:
    void SetUp() override {
        app = excel::embedded::CreateApplication();
        book = app->Workbooks()->Add();
        sheet = book->Worksheets(1);
    }

    std::shared_ptr<excel::Application> app;
    std::shared_ptr<excel::Workbook> book;
    std::shared_ptr<excel::Worksheet> sheet;
};

TEST_F(ServedObjectTest, OneObjectHasOneDispatchWhileItIsHeldAndTwoRangesAreTwo) {
    Served first(sheet);
    Served second(book->Worksheets(1));
    EXPECT_EQ(first.dispatch, second.dispatch);
    EXPECT_EQ(IdentityOf(first.dispatch), IdentityOf(second.dispatch));
    Served range(sheet->Range("A1"));
    Served sameCells(sheet->Range("A1"));
    EXPECT_NE(IdentityOf(range.dispatch), IdentityOf(sameCells.dispatch));
}

TEST_F(ServedObjectTest, TheServedObjectsGoWhenTheirClientsReleaseThem) {
    const size_t before = excel::com::LiveServedObjects();
    {
        Served workbook(book);
        Served range(sheet->Range("B2"));
        EXPECT_EQ(excel::com::LiveServedObjects(), before + 2);
    }
    EXPECT_EQ(excel::com::LiveServedObjects(), before);
}

TEST_F(ServedObjectTest, TypeInformationNamesTheInterface) {
    Served worksheet(sheet);
    Served range(sheet->Range("A1"));
    Served borders(sheet->Range("A1")->Borders());
    const auto sheetType = excel::com::TypeOf(worksheet.dispatch);
    const auto rangeType = excel::com::TypeOf(range.dispatch);
    EXPECT_EQ(sheetType.name, "Worksheet");
    EXPECT_EQ(rangeType.name, "Range");
    EXPECT_EQ(excel::com::TypeOf(borders.dispatch).name, "Borders");  // the most derived interface
    ASSERT_TRUE(sheetType.interfaceId && rangeType.interfaceId);
    EXPECT_FALSE(IsEqualGUID(*sheetType.interfaceId, *rangeType.interfaceId));
}

TEST_F(ServedObjectTest, NamesAreFoundWhateverTheirCaseAndUnknownNamesAreRefused) {
    Served range(sheet->Range("A1"));
    EXPECT_EQ(IdOf(range.dispatch, L"vALUE"), IdOf(range.dispatch, L"Value"));
    std::wstring unknown(L"NoSuchMember");
    LPOLESTR names[] = {unknown.data()};
    DISPID id = 0;
    EXPECT_EQ(range.dispatch->GetIDsOfNames(IID_NULL, names, 1, 1033, &id), DISP_E_UNKNOWNNAME);
}

TEST_F(ServedObjectTest, ARangesDefaultMemberIsItsValueWithoutArgumentsAndItemWithThem) {
    sheet->Range("C3")->SetValue(Variant("corner"));
    Served range(sheet->Range("B2:D4"));
    RawCall value;
    Invoke(value, range.dispatch, DISPID_VALUE, DISPATCH_PROPERTYGET, {});
    ASSERT_EQ(value.outcome, S_OK);
    EXPECT_EQ(value.result.vt, VT_ARRAY | VT_VARIANT);
    RawCall item;
    Invoke(item, range.dispatch, DISPID_VALUE, DISPATCH_PROPERTYGET | DISPATCH_METHOD, {Long(2), Long(2)});
    ASSERT_EQ(item.outcome, S_OK);
    ASSERT_EQ(item.result.vt, VT_DISPATCH);
    EXPECT_EQ(excel::com::TypeOf(item.result.pdispVal).name, "Range");
    RawCall cellValue;
    Invoke(cellValue, item.result.pdispVal, IdOf(item.result.pdispVal, L"Value"), DISPATCH_PROPERTYGET, {});
    ASSERT_EQ(cellValue.result.vt, VT_BSTR);
    EXPECT_EQ(excel::com::Utf8FromBstr(cellValue.result.bstrVal), "corner");
}

TEST_F(ServedObjectTest, ArgumentsAMemberDoesNotTakeGoToTheDefaultMemberOfWhatItAnswers) {
    Served worksheet(sheet);
    RawCall cell;
    Invoke(cell, worksheet.dispatch, IdOf(worksheet.dispatch, L"Columns"), DISPATCH_PROPERTYGET | DISPATCH_METHOD,
           {Long(3)});
    ASSERT_EQ(cell.outcome, S_OK);
    RawCall address;
    Invoke(address, cell.result.pdispVal, IdOf(cell.result.pdispVal, L"Address"), DISPATCH_PROPERTYGET, {});
    EXPECT_EQ(excel::com::Utf8FromBstr(address.result.bstrVal), "$C:$C");
}

TEST_F(ServedObjectTest, AutomationsOwnRefusalsComeAsTheirResults) {
    Served range(sheet->Range("A1"));
    RawCall tooMany;
    Invoke(tooMany, range.dispatch, IdOf(range.dispatch, L"Address"), DISPATCH_PROPERTYGET,
           {Long(1), Long(1), Long(1), Long(1), Long(1)});
    EXPECT_EQ(tooMany.outcome, DISP_E_BADPARAMCOUNT);
    RawCall missing;
    Invoke(missing, range.dispatch, IdOf(range.dispatch, L"Offset"), DISPATCH_METHOD, {Omitted(), Long(1)});
    EXPECT_EQ(missing.outcome, S_OK);  // Offset's row offset has a default
    RawCall required;
    Invoke(required, range.dispatch, IdOf(range.dispatch, L"Item"), DISPATCH_METHOD, {Omitted(), Long(1)});
    EXPECT_EQ(required.outcome, DISP_E_PARAMNOTOPTIONAL);
    RawCall named;
    Invoke(named, range.dispatch, IdOf(range.dispatch, L"Resize"), DISPATCH_METHOD, {Long(2)}, {1});
    EXPECT_EQ(named.outcome, DISP_E_NONAMEDARGS);
    RawCall readOnly;
    Invoke(readOnly, range.dispatch, IdOf(range.dispatch, L"Text"), DISPATCH_PROPERTYPUT, {Text("x")},
           {DISPID_PROPERTYPUT});
    EXPECT_EQ(readOnly.outcome, DISP_E_MEMBERNOTFOUND);
    RawCall unknown;
    Invoke(unknown, range.dispatch, 100000, DISPATCH_METHOD, {});
    EXPECT_EQ(unknown.outcome, DISP_E_MEMBERNOTFOUND);
}

TEST_F(ServedObjectTest, TheEnginesRefusalsComeAsExceptionsWithExcelsCodeAndText) {
    Served worksheet(sheet);
    RawCall rename;
    Invoke(rename, worksheet.dispatch, IdOf(worksheet.dispatch, L"Name"), DISPATCH_PROPERTYPUT, {Text("bad/name")},
           {DISPID_PROPERTYPUT});
    ASSERT_EQ(rename.outcome, DISP_E_EXCEPTION);
    EXPECT_EQ(rename.exception.scode, static_cast<SCODE>(0x800A03EC));
    EXPECT_EQ(excel::com::Utf8FromBstr(rename.exception.bstrDescription),
              "You typed an invalid name for a sheet or chart.");
    EXPECT_EQ(sheet->Name(), "Sheet1");
}

TEST(ServedObject, ObjectsReachedFromTheApplicationKeepItAliveAsACOMServerLives) {
    IDispatch* application = ServeObject(excel::embedded::CreateApplication());
    const auto workbooks = excel::com::AttachApplication(application)->Workbooks();
    application->Release();  // the client's last reference to the application itself
    const auto book = workbooks->Add();
    book->Worksheets(1)->Range("A1")->SetValue(Variant(3.0));
    EXPECT_EQ(book->Worksheets(1)->Range("A1")->Value(), Variant(3.0));
    EXPECT_EQ(book->Application()->Workbooks()->Count(), 1);
}

TEST_F(ServedObjectTest, AServedObjectComesBackAsTheEnginesOwnObject) {
    Served worksheet(sheet);
    const auto back = excel::com::ServedObjects().Wrap(worksheet.dispatch);
    EXPECT_TRUE(excel::IsSameObject(back, sheet));
    EXPECT_NE(std::dynamic_pointer_cast<excel::Worksheet>(back), nullptr);
}

TEST_F(ServedObjectTest, TheClientTypesAServedObjectByItsInterfacesName) {
    Served range(sheet->Range("A1"));
    const auto wrapped = excel::com::ComObjects().Wrap(range.dispatch);
    const auto typed = std::dynamic_pointer_cast<excel::Range>(wrapped);
    ASSERT_NE(typed, nullptr);
    EXPECT_EQ(typed->Address(), "$A$1");
}

TEST_F(ServedObjectTest, TheObjectModelOverAServedApplicationDrivesTheEngine) {
    Served application(app);
    const auto attached = excel::com::AttachApplication(application.dispatch);
    const uint64_t before = excel::com::DispatchCaller::InvokeCount();
    attached->ActiveWorkbook()->Worksheets(1)->Range("B2")->SetValue(Variant(5.0));
    EXPECT_EQ(excel::com::DispatchCaller::InvokeCount() - before, 4u);
    EXPECT_EQ(sheet->Range("B2")->Value(), Variant(5.0));
    EXPECT_TRUE(excel::IsSameObject(attached->ActiveWorkbook(), attached->Workbooks()->Item(Variant(1))));
}

}  // namespace
