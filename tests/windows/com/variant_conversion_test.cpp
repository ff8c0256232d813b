#include "excel/com/variant_conversion.hpp"
#include "com/counted_dispatch.hpp"
#include "excel/com/wide_text.hpp"

#include <excel/automation_error.hpp>
#include <excel/safe_array.hpp>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

using excel::Variant;
using excel::VarType;
using excel::com::FromVariant;
using excel::com::OwnedVariant;
using excel::com::ToVariant;

// An object of the library that stands for a dispatch pointer, holding a reference to it.
class Held : public excel::Object {
public:
    explicit Held(IDispatch* dispatch) : dispatch(dispatch) { dispatch->AddRef(); }
    ~Held() override { dispatch->Release(); }
    IDispatch* dispatch;
};

class HeldBridge : public excel::com::ObjectBridge {
public:
    std::shared_ptr<excel::Object> Wrap(IDispatch* dispatch) const override {
        return dispatch == nullptr ? nullptr : std::make_shared<Held>(dispatch);
    }
    IDispatch* Unwrap(const std::shared_ptr<excel::Object>& object) const override {
        if (object == nullptr) {
            return nullptr;
        }
        const auto held = std::dynamic_pointer_cast<Held>(object);
        if (held == nullptr) {
            excel::ThrowRuntimeError(13);
        }
        held->dispatch->AddRef();
        return held->dispatch;
    }
};

const HeldBridge bridge;

Variant RoundTrip(const Variant& value, VARTYPE expected) {
    OwnedVariant automation;
    ToVariant(value, *automation.get(), bridge);
    EXPECT_EQ((*automation).vt, expected);
    return FromVariant(*automation, bridge);
}

TEST(VariantConversion, ScalarsKeepTheirTypesAndValues) {
    EXPECT_EQ(RoundTrip(Variant(), VT_EMPTY), Variant());
    EXPECT_EQ(RoundTrip(Variant::Null(), VT_NULL), Variant::Null());
    EXPECT_EQ(RoundTrip(Variant(int16_t{-7}), VT_I2), Variant(int16_t{-7}));
    EXPECT_EQ(RoundTrip(Variant(int32_t{123456}), VT_I4), Variant(int32_t{123456}));
    EXPECT_EQ(RoundTrip(Variant(2.5f), VT_R4), Variant(2.5f));
    EXPECT_EQ(RoundTrip(Variant(0.1), VT_R8), Variant(0.1));
    EXPECT_EQ(RoundTrip(Variant(excel::Currency{12345678}), VT_CY), Variant(excel::Currency{12345678}));
    EXPECT_EQ(RoundTrip(Variant(excel::Date{45000.25}), VT_DATE), Variant(excel::Date{45000.25}));
    EXPECT_EQ(RoundTrip(Variant(true), VT_BOOL), Variant(true));
    EXPECT_EQ(RoundTrip(Variant(false), VT_BOOL), Variant(false));
    const excel::ErrorValue name{static_cast<int32_t>(0x800A07ED)};
    EXPECT_EQ(RoundTrip(Variant(name), VT_ERROR), Variant(name));
}

TEST(VariantConversion, TextsCrossAsUtf16) {
    const std::string text = "Loss ratio \xE9\xA3\x8E\xE9\x99\xA9 \xF0\x9F\x93\x88";  // two CJK letters and an emoji
    OwnedVariant automation;
    ToVariant(Variant(text), *automation.get(), bridge);
    ASSERT_EQ((*automation).vt, VT_BSTR);
    // Eleven letters and spaces, two CJK letters, a space and one emoji as a surrogate pair.
    EXPECT_EQ(SysStringLen((*automation).bstrVal), 16u);
    EXPECT_EQ(FromVariant(*automation, bridge), Variant(text));
    EXPECT_EQ(RoundTrip(Variant(""), VT_BSTR), Variant(""));
}

TEST(VariantConversion, ArraysKeepTheirBoundsElementTypeAndOrder) {
    excel::SafeArray matrix = excel::SafeArray::Matrix(VarType::Variant, 2, 3);
    matrix.Set({1, 1}, Variant("a"));
    matrix.Set({1, 3}, Variant(3.5));
    matrix.Set({2, 1}, Variant(true));
    matrix.Set({2, 2}, Variant(int32_t{7}));
    const Variant back = RoundTrip(Variant(matrix), VT_ARRAY | VT_VARIANT);
    ASSERT_TRUE(back.IsArray());
    EXPECT_EQ(back.Array(), matrix);
    EXPECT_EQ(back.Array().LowerBound(2), 1);
    EXPECT_EQ(back.Array().Count(2), 3u);
    EXPECT_EQ(back.Array().Get({1, 3}), Variant(3.5));

    excel::SafeArray shifted(VarType::Double, {excel::SafeArrayBound{-2, 3}, excel::SafeArrayBound{5, 2}});
    shifted.Set({-2, 6}, Variant(1.25));
    shifted.Set({0, 5}, Variant(-4.0));
    EXPECT_EQ(RoundTrip(Variant(shifted), VT_ARRAY | VT_R8), Variant(shifted));

    const Variant texts(std::vector<std::string>{"North", "", "West"});
    EXPECT_EQ(RoundTrip(texts, VT_ARRAY | VT_BSTR), texts);
    const Variant numbers = Variant(excel::SafeArray::Doubles(std::vector<double>{1, 2, 3}));
    EXPECT_EQ(RoundTrip(numbers, VT_ARRAY | VT_R8), numbers);
}

TEST(VariantConversion, AnUnallocatedArrayStaysUnallocated) {
    const Variant empty(excel::SafeArray(VarType::Double, {}));
    const Variant back = RoundTrip(empty, VT_ARRAY | VT_R8);
    EXPECT_FALSE(back.Array().IsAllocated());
}

TEST(VariantConversion, ReferencesAreFollowed) {
    VARIANT target;
    VariantInit(&target);
    target.vt = VT_I4;
    target.lVal = 42;
    VARIANT reference;
    VariantInit(&reference);
    reference.vt = VT_BYREF | VT_VARIANT;
    reference.pvarVal = &target;
    EXPECT_EQ(FromVariant(reference, bridge), Variant(int32_t{42}));

    double number = 6.5;
    reference.vt = VT_BYREF | VT_R8;
    reference.pdblVal = &number;
    EXPECT_EQ(FromVariant(reference, bridge), Variant(6.5));
}

TEST(VariantConversion, OtherTypesComeAsTheNearestTheLibraryHas) {
    VARIANT value;
    VariantInit(&value);
    value.vt = VT_UI1;
    value.bVal = 200;
    EXPECT_EQ(FromVariant(value, bridge), Variant(int16_t{200}));
    value.vt = VT_I8;
    value.llVal = 1LL << 40;
    EXPECT_EQ(FromVariant(value, bridge), Variant(static_cast<double>(1LL << 40)));
    value.vt = VT_UI2;
    value.uiVal = 65535;
    EXPECT_EQ(FromVariant(value, bridge), Variant(int32_t{65535}));
}

TEST(VariantConversion, ObjectsCrossThroughTheBridgeWithBalancedReferences) {
    CountedDispatch dispatch;
    {
        const auto object = bridge.Wrap(&dispatch);
        EXPECT_EQ(dispatch.references, 2u);
        OwnedVariant automation;
        ToVariant(Variant(object), *automation.get(), bridge);
        EXPECT_EQ((*automation).vt, VT_DISPATCH);
        EXPECT_EQ((*automation).pdispVal, &dispatch);
        EXPECT_EQ(dispatch.references, 3u);
        const Variant back = FromVariant(*automation, bridge);
        EXPECT_EQ(std::dynamic_pointer_cast<Held>(back.ToObject())->dispatch, &dispatch);
    }
    EXPECT_EQ(dispatch.references, 1u);
    // Nothing crosses as a null dispatch pointer.
    EXPECT_EQ(RoundTrip(Variant(std::shared_ptr<excel::Object>()), VT_DISPATCH).ToObject(), nullptr);
}

TEST(VariantConversion, AnObjectWithoutADispatchPointerIsATypeMismatch) {
    class Plain : public excel::Object {};
    VARIANT out;
    try {
        ToVariant(Variant(std::make_shared<Plain>()), out, bridge);
        ADD_FAILURE() << "expected a type mismatch";
    } catch (const excel::AutomationError& error) {
        EXPECT_EQ(static_cast<uint32_t>(error.code()), 0x800A000Du);
    }
}

}  // namespace
