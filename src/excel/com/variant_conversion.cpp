#ifdef _WIN32

#include "excel/com/variant_conversion.hpp"

#include "excel/com/wide_text.hpp"

#include <excel/automation_error.hpp>
#include <excel/safe_array.hpp>

#include <cmath>
#include <cstring>
#include <vector>

namespace excel::com {

namespace {

constexpr int32_t TypeMismatch = 13;
constexpr double CurrencyScale = 10000.0;

// The element types an array can have on both sides.
struct ElementType {
    VarType library;
    VARTYPE automation;
};

constexpr ElementType ElementTypes[] = {
    {VarType::Variant, VT_VARIANT}, {VarType::Double, VT_R8},   {VarType::String, VT_BSTR},
    {VarType::Long, VT_I4},         {VarType::Integer, VT_I2},  {VarType::Boolean, VT_BOOL},
    {VarType::Date, VT_DATE},       {VarType::Currency, VT_CY}, {VarType::Single, VT_R4},
    {VarType::Byte, VT_UI1},        {VarType::Error, VT_ERROR}, {VarType::Object, VT_DISPATCH},
};

VARTYPE AutomationElementType(VarType type) {
    for (const ElementType& element : ElementTypes) {
        if (element.library == type) {
            return element.automation;
        }
    }
    ThrowRuntimeError(TypeMismatch);
}

VarType LibraryElementType(VARTYPE type) {
    for (const ElementType& element : ElementTypes) {
        if (element.automation == type) {
            return element.library;
        }
    }
    return VarType::Variant;  // other element types are read element by element into variants
}

SAFEARRAY* ToSafeArray(const SafeArray& array, const ObjectBridge& objects) {
    const VARTYPE elementType = AutomationElementType(array.ElementType());
    if (!array.IsAllocated()) {
        return nullptr;  // as VBA passes an array not yet dimensioned
    }
    std::vector<SAFEARRAYBOUND> bounds(static_cast<size_t>(array.Dimensions()));
    for (int32_t dimension = 1; dimension <= array.Dimensions(); ++dimension) {
        bounds[static_cast<size_t>(dimension - 1)] = {array.Count(dimension), array.LowerBound(dimension)};
    }
    SAFEARRAY* out = SafeArrayCreate(elementType, static_cast<UINT>(bounds.size()), bounds.data());
    if (out == nullptr) {
        ThrowRuntimeError(7);  // out of memory
    }
    void* data = nullptr;
    SafeArrayAccessData(out, &data);
    const UINT elementSize = SafeArrayGetElemsize(out);
    // Both keep their elements with the first index varying fastest.
    const auto& elements = array.Elements();
    for (size_t i = 0; i < elements.size(); ++i) {
        auto* slot = static_cast<unsigned char*>(data) + i * elementSize;
        if (elementType == VT_VARIANT) {
            ToVariant(elements[i], *reinterpret_cast<VARIANT*>(slot), objects);
            continue;
        }
        VARIANT element;
        VariantInit(&element);
        ToVariant(elements[i], element, objects);
        // The element's value moves into the array, which owns it from then on.
        if (element.vt != elementType && VariantChangeType(&element, &element, 0, elementType) != S_OK) {
            VariantClear(&element);
            SafeArrayUnaccessData(out);
            SafeArrayDestroy(out);
            ThrowRuntimeError(TypeMismatch);
        }
        std::memcpy(slot, &element.llVal, elementSize);
    }
    SafeArrayUnaccessData(out);
    return out;
}

SafeArray FromSafeArray(SAFEARRAY* array, VARTYPE declaredType, const ObjectBridge& objects) {
    VARTYPE elementType = declaredType;
    if (elementType == VT_EMPTY) {
        SafeArrayGetVartype(array, &elementType);
    }
    const UINT dimensions = SafeArrayGetDim(array);
    std::vector<SafeArrayBound> bounds(dimensions);
    size_t count = dimensions == 0 ? 0 : 1;
    for (UINT dimension = 1; dimension <= dimensions; ++dimension) {
        LONG lower = 0;
        LONG upper = -1;
        SafeArrayGetLBound(array, dimension, &lower);
        SafeArrayGetUBound(array, dimension, &upper);
        const auto elements = static_cast<uint32_t>(upper - lower + 1);
        bounds[dimension - 1] = {lower, elements};
        count *= elements;
    }
    SafeArray out(LibraryElementType(elementType), std::move(bounds));
    if (count == 0) {
        return out;
    }
    void* data = nullptr;
    SafeArrayAccessData(array, &data);
    const UINT elementSize = SafeArrayGetElemsize(array);
    std::vector<int32_t> index(dimensions);
    for (size_t i = 0; i < count; ++i) {
        // The index of the i-th element in storage order, the first index varying fastest.
        size_t rest = i;
        for (UINT dimension = 0; dimension < dimensions; ++dimension) {
            const uint32_t elements = out.Count(static_cast<int32_t>(dimension + 1));
            index[dimension] =
                out.LowerBound(static_cast<int32_t>(dimension + 1)) + static_cast<int32_t>(rest % elements);
            rest /= elements;
        }
        const auto* slot = static_cast<const unsigned char*>(data) + i * elementSize;
        if (elementType == VT_VARIANT) {
            out.Set(index, FromVariant(*reinterpret_cast<const VARIANT*>(slot), objects));
        } else {
            // Borrowed: the element stays the array's.
            VARIANT element;
            VariantInit(&element);
            element.vt = elementType;
            std::memcpy(&element.llVal, slot, elementSize);
            out.Set(index, FromVariant(element, objects));
        }
    }
    SafeArrayUnaccessData(array);
    return out;
}

// A value of a type the library has no place for, changed to the nearest one it has.
Variant Changed(const VARIANT& value, VARTYPE nearest, const ObjectBridge& objects) {
    OwnedVariant changed;
    if (VariantChangeType(changed.get(), const_cast<VARIANT*>(&value), 0, nearest) != S_OK) {
        ThrowRuntimeError(TypeMismatch);
    }
    return FromVariant(*changed, objects);
}

}  // namespace

void ToVariant(const Variant& value, VARIANT& out, const ObjectBridge& objects) {
    VariantInit(&out);
    if (value.IsArray()) {
        SAFEARRAY* array = ToSafeArray(value.Array(), objects);
        out.vt = static_cast<VARTYPE>(VT_ARRAY | AutomationElementType(value.Array().ElementType()));
        out.parray = array;
        return;
    }
    switch (value.Type()) {
        case VarType::Empty:
            return;
        case VarType::Null:
            out.vt = VT_NULL;
            return;
        case VarType::Integer:
            out.vt = VT_I2;
            out.iVal = value.ToShort();
            return;
        case VarType::Long:
            out.vt = VT_I4;
            out.lVal = value.ToInt();
            return;
        case VarType::Single:
            out.vt = VT_R4;
            out.fltVal = static_cast<float>(value.ToDouble());
            return;
        case VarType::Double:
            out.vt = VT_R8;
            out.dblVal = value.ToDouble();
            return;
        case VarType::Currency:
            out.vt = VT_CY;
            out.cyVal.int64 = std::llround(value.ToDouble() * CurrencyScale);
            return;
        case VarType::Date:
            out.vt = VT_DATE;
            out.date = value.ToDouble();
            return;
        case VarType::String:
            out.vt = VT_BSTR;
            out.bstrVal = NewBstr(value.ToString());
            return;
        case VarType::Object:
            out.vt = VT_DISPATCH;
            out.pdispVal = objects.Unwrap(value.ToObject());
            return;
        case VarType::Error:
            out.vt = VT_ERROR;
            out.scode = value.ErrorCode();
            return;
        case VarType::Boolean:
            out.vt = VT_BOOL;
            out.boolVal = value.ToBool() ? VARIANT_TRUE : VARIANT_FALSE;
            return;
        default:
            ThrowRuntimeError(TypeMismatch);
    }
}

Variant FromVariant(const VARIANT& value, const ObjectBridge& objects) {
    const VARTYPE type = value.vt;
    if ((type & VT_ARRAY) != 0) {
        SAFEARRAY* array = (type & VT_BYREF) != 0 ? *value.pparray : value.parray;
        if (array == nullptr) {
            return Variant(SafeArray(LibraryElementType(type & VT_TYPEMASK), {}));
        }
        return Variant(FromSafeArray(array, static_cast<VARTYPE>(type & VT_TYPEMASK), objects));
    }
    if (type == (VT_BYREF | VT_VARIANT)) {
        return FromVariant(*value.pvarVal, objects);
    }
    if ((type & VT_BYREF) != 0) {
        // The value a reference points to, read through a copy without the reference.
        OwnedVariant copy;
        if (VariantCopyInd(copy.get(), const_cast<VARIANT*>(&value)) != S_OK) {
            ThrowRuntimeError(TypeMismatch);
        }
        return FromVariant(*copy, objects);
    }
    switch (type) {
        case VT_EMPTY:
            return {};
        case VT_NULL:
            return Variant::Null();
        case VT_I2:
            return Variant(static_cast<int16_t>(value.iVal));
        case VT_I4:
        case VT_INT:
            return Variant(static_cast<int32_t>(value.lVal));
        case VT_R4:
            return Variant(value.fltVal);
        case VT_R8:
            return Variant(value.dblVal);
        case VT_CY:
            return Variant(Currency{value.cyVal.int64});
        case VT_DATE:
            return Variant(Date{value.date});
        case VT_BSTR:
            return Variant(Utf8FromBstr(value.bstrVal));
        case VT_DISPATCH:
            return Variant(objects.Wrap(value.pdispVal));
        case VT_UNKNOWN: {
            if (value.punkVal == nullptr) {
                return Variant(std::shared_ptr<Object>());
            }
            IDispatch* dispatch = nullptr;
            if (value.punkVal->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&dispatch)) != S_OK) {
                ThrowRuntimeError(TypeMismatch);
            }
            Variant wrapped(objects.Wrap(dispatch));
            dispatch->Release();
            return wrapped;
        }
        case VT_ERROR:
            return Variant(ErrorValue{static_cast<int32_t>(value.scode)});
        case VT_BOOL:
            return Variant(value.boolVal != VARIANT_FALSE);
        case VT_UI1:
        case VT_I1:
            return Changed(value, VT_I2, objects);
        case VT_UI2:
        case VT_UI4:
        case VT_UINT:
            return Changed(value, VT_I4, objects);
        default:
            return Changed(value, VT_R8, objects);
    }
}

}  // namespace excel::com

#endif  // _WIN32
