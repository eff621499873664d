#include "hostlib/com/VariantValues.h"

#include "common/Numbers.h"
#include "hostlib/com/ArrayValues.h"
#include "hostlib/com/Failures.h"

namespace hostlib::com {
namespace {

using Microsoft::WRL::ComPtr;

class Outgoing {
 public:
  explicit Outgoing(ObjectGate& gate) : gate_(gate) {}

  Variant operator()(std::monostate) const { return {}; }
  Variant operator()(Missing) const {
    return Scalar(VT_ERROR, &VARIANT::scode, DISP_E_PARAMNOTFOUND);
  }
  Variant operator()(bool flag) const {
    return Scalar(VT_BOOL, &VARIANT::boolVal, flag ? VARIANT_TRUE : VARIANT_FALSE);
  }
  Variant operator()(std::int16_t number) const { return Scalar(VT_I2, &VARIANT::iVal, number); }
  Variant operator()(std::int32_t number) const { return Scalar(VT_I4, &VARIANT::lVal, number); }
  Variant operator()(double number) const { return Scalar(VT_R8, &VARIANT::dblVal, number); }
  Variant operator()(std::wstring_view text) const {
    Bstr copy(text);
    if (copy.get() == nullptr) ThrowLinkError(E_OUTOFMEMORY);
    return Scalar(VT_BSTR, &VARIANT::bstrVal, copy.Release());
  }
  template <typename T>
  Variant operator()(const Array<T>* array) const {
    return ArrayVariant(*array);
  }
  Variant operator()(const ObjectPtr* object) const {
    ComPtr<IDispatch> outward;
    if (*object != nullptr) outward = gate_.Outward(*object);
    return Scalar(VT_DISPATCH, &VARIANT::pdispVal, outward.Detach());
  }

 private:
  template <typename T, typename Content>
  static Variant Scalar(VARTYPE type, T VARIANT::*member, Content content) {
    Variant variant;
    variant.get().*member = static_cast<T>(content);
    variant.get().vt = type;
    return variant;
  }

  ObjectGate& gate_;
};

Value UnsignedValue(ULONG number) {
  if (number <= 0x7FFFFFFFUL) return Value(static_cast<std::int32_t>(number));
  return Value(static_cast<double>(number));
}

Value ErrorValue(SCODE code) {
  if (code == DISP_E_PARAMNOTFOUND) return Value(Missing{});
  ThrowMismatch(L"an error value (" + TextOf(code) + L")");
}

Value ObjectValue(IUnknown* object, ObjectGate& gate, std::wstring_view className) {
  if (object == nullptr) return Value(ObjectPtr());
  ComPtr<IDispatch> dispatch;
  if (FAILED(object->QueryInterface(IID_PPV_ARGS(&dispatch)))) {
    ThrowMismatch(L"an object that can't be called by name");
  }
  return Value(gate.Inward(std::move(dispatch), className));
}

}  // namespace

Variant ToVariant(const ValueView& value, ObjectGate& gate) {
  return std::visit(Outgoing(gate), value.content());
}

Value FromVariant(const VARIANT& variant, ObjectGate& gate, std::wstring_view className) {
  if ((variant.vt & VT_BYREF) != 0) {
    if (variant.byref == nullptr) return {};
    Variant direct;
    // The function only reads it, though its parameter does not say so everywhere.
    Check(VariantCopyInd(&direct.get(), const_cast<VARIANT*>(&variant)));
    return FromVariant(direct.get(), gate, className);
  }
  if ((variant.vt & VT_ARRAY) != 0) {
    return ArrayValue(variant.parray, static_cast<VARTYPE>(variant.vt & VT_TYPEMASK));
  }
  switch (variant.vt) {
    case VT_EMPTY:
    case VT_NULL:
      return {};
    case VT_ERROR:
      return ErrorValue(variant.scode);
    case VT_BOOL:
      return Value(variant.boolVal != VARIANT_FALSE);
    case VT_I1:
      return Value(std::int16_t{static_cast<signed char>(variant.cVal)});
    case VT_UI1:
      return Value(std::int16_t{variant.bVal});
    case VT_I2:
      return Value(std::int16_t{variant.iVal});
    case VT_UI2:
      return Value(std::int32_t{variant.uiVal});
    case VT_I4:
    case VT_INT:
      return Value(static_cast<std::int32_t>(variant.lVal));
    case VT_UI4:
    case VT_UINT:
      return UnsignedValue(variant.ulVal);
    case VT_R4:
      return Value(static_cast<double>(variant.fltVal));
    case VT_R8:
      return Value(variant.dblVal);
    case VT_I8:
    case VT_UI8:
    case VT_CY:
    case VT_DECIMAL:
      return Value(NumberIn(variant));
    case VT_BSTR:
      return Value(std::wstring(variant.bstrVal == nullptr ? L"" : variant.bstrVal,
                                SysStringLen(variant.bstrVal)));
    case VT_DISPATCH:
      return ObjectValue(variant.pdispVal, gate, className);
    case VT_UNKNOWN:
      return ObjectValue(variant.punkVal, gate, className);
    default:
      ThrowMismatch(L"a variant of kind " + common::NumberText(variant.vt));
  }
}

}  // namespace hostlib::com
