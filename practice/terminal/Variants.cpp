#include "practice/terminal/Variants.h"

#include <memory>
#include <new>

#include "hostlib/Object.h"

namespace practice::terminal {
namespace {

using hostlib::Value;

[[noreturn]] void Mismatch(VARTYPE kind) {
  throw hostlib::LibraryError(DISP_E_TYPEMISMATCH, L"Practice library",
                              L"A value of kind " + std::to_wstring(kind) + L" is not understood");
}

/// A variant that is cleared at the end.
class OwnVariant {
 public:
  OwnVariant() { VariantInit(&variant_); }
  ~OwnVariant() { VariantClear(&variant_); }
  OwnVariant(const OwnVariant&) = delete;
  OwnVariant& operator=(const OwnVariant&) = delete;
  VARIANT* operator&() { return &variant_; }
  const VARIANT& get() const { return variant_; }

 private:
  VARIANT variant_;
};

/// Gives access to the items of an array for its lifetime.
class LockedItems {
 public:
  explicit LockedItems(SAFEARRAY* array) : array_(array) {
    if (FAILED(SafeArrayAccessData(array, &items_))) throw std::bad_alloc();
  }
  ~LockedItems() { SafeArrayUnaccessData(array_); }
  LockedItems(const LockedItems&) = delete;
  LockedItems& operator=(const LockedItems&) = delete;
  template <typename T>
  T* as() const {
    return static_cast<T*>(items_);
  }

 private:
  SAFEARRAY* array_;
  void* items_ = nullptr;
};

struct ArrayDestroyer {
  void operator()(SAFEARRAY* array) const { SafeArrayDestroy(array); }
};
using OwnArray = std::unique_ptr<SAFEARRAY, ArrayDestroyer>;

struct Bounds {
  LONG lower = 0;
  LONG upper = -1;
  std::size_t Count() const {
    return upper < lower ? 0 : static_cast<std::size_t>(upper - lower) + 1;
  }
};

Bounds BoundsOf(SAFEARRAY* array) {
  Bounds bounds;
  if (array == nullptr) return bounds;
  if (SafeArrayGetDim(array) != 1) Mismatch(VT_ARRAY);
  SafeArrayGetLBound(array, 1, &bounds.lower);
  SafeArrayGetUBound(array, 1, &bounds.upper);
  return bounds;
}

template <typename T, typename Item>
hostlib::Array<T> ReadArray(SAFEARRAY* array, const std::function<T(const Item&)>& read) {
  const Bounds bounds = BoundsOf(array);
  hostlib::Array<T> result{{}, static_cast<int>(bounds.lower)};
  if (bounds.Count() == 0) return result;
  const LockedItems items(array);
  for (std::size_t i = 0; i < bounds.Count(); ++i) {
    result.items.push_back(read(items.as<Item>()[i]));
  }
  return result;
}

std::wstring TextItem(const VARIANT& item) {
  if (V_VT(&item) == VT_EMPTY) return {};
  if (V_VT(&item) != VT_BSTR) Mismatch(V_VT(&item));
  return TextOf(V_BSTR(&item));
}

Value ReadArray(const VARIANT& variant) {
  SAFEARRAY* array = V_ARRAY(&variant);
  switch (V_VT(&variant) & VT_TYPEMASK) {
    case VT_BSTR:
      return ReadArray<std::wstring, BSTR>(array, [](const BSTR& text) { return TextOf(text); });
    case VT_VARIANT:
      return ReadArray<std::wstring, VARIANT>(array, TextItem);
    case VT_I2:
      return ReadArray<std::int16_t, SHORT>(array, [](const SHORT& n) { return n; });
    case VT_R8:
      return ReadArray<double, double>(array, [](const double& n) { return n; });
    default:
      Mismatch(V_VT(&variant));
  }
}

Value ReadNumber(const VARIANT& variant, VARTYPE wanted) {
  OwnVariant number;
  if (FAILED(VariantChangeType(&number, const_cast<VARIANT*>(&variant), 0, wanted))) {
    Mismatch(V_VT(&variant));
  }
  return wanted == VT_I4 ? Value(static_cast<std::int32_t>(V_I4(&number.get())))
                         : Value(V_R8(&number.get()));
}

Value ReadPlain(const VARIANT& variant, const ObjectPassage& passage) {
  if ((V_VT(&variant) & VT_ARRAY) != 0) return ReadArray(variant);
  switch (V_VT(&variant)) {
    case VT_EMPTY:
    case VT_NULL:
      return {};
    case VT_ERROR:
      if (V_ERROR(&variant) == DISP_E_PARAMNOTFOUND) return hostlib::Missing{};
      Mismatch(VT_ERROR);
    case VT_BOOL:
      return V_BOOL(&variant) != VARIANT_FALSE;
    case VT_I2:
      return static_cast<std::int16_t>(V_I2(&variant));
    case VT_I4:
      return static_cast<std::int32_t>(V_I4(&variant));
    case VT_R8:
      return V_R8(&variant);
    case VT_BSTR:
      return TextOf(V_BSTR(&variant));
    case VT_DISPATCH:
    case VT_UNKNOWN:
      return passage.in(V_UNKNOWN(&variant));
    case VT_I1:
    case VT_UI1:
    case VT_UI2:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
      return ReadNumber(variant, VT_I4);
    case VT_R4:
    case VT_CY:
    case VT_DECIMAL:
      return ReadNumber(variant, VT_R8);
    default:
      Mismatch(V_VT(&variant));
  }
}

template <typename T, typename Item>
SAFEARRAY* NewArray(const hostlib::Array<T>& array, VARTYPE kind,
                    const std::function<Item(const T&)>& write) {
  OwnArray result(
      SafeArrayCreateVector(kind, array.lowerBound, static_cast<ULONG>(array.items.size())));
  if (!result) throw std::bad_alloc();
  {
    const LockedItems items(result.get());
    for (std::size_t i = 0; i < array.items.size(); ++i) {
      items.as<Item>()[i] = write(array.items[i]);
    }
  }
  return result.release();
}

struct Writer {
  const ObjectPassage& passage;
  VARIANT& variant;

  void operator()(std::monostate) const {}
  void operator()(hostlib::Missing) const {
    V_VT(&variant) = VT_ERROR;
    V_ERROR(&variant) = DISP_E_PARAMNOTFOUND;
  }
  void operator()(bool flag) const {
    V_VT(&variant) = VT_BOOL;
    V_BOOL(&variant) = flag ? VARIANT_TRUE : VARIANT_FALSE;
  }
  void operator()(std::int16_t number) const {
    V_VT(&variant) = VT_I2;
    V_I2(&variant) = number;
  }
  void operator()(std::int32_t number) const {
    V_VT(&variant) = VT_I4;
    V_I4(&variant) = number;
  }
  void operator()(double number) const {
    V_VT(&variant) = VT_R8;
    V_R8(&variant) = number;
  }
  void operator()(const std::wstring& text) const {
    V_BSTR(&variant) = NewText(text);
    V_VT(&variant) = VT_BSTR;
  }
  void operator()(const hostlib::TextArray& array) const {
    Put(VT_BSTR, NewArray<std::wstring, BSTR>(array, VT_BSTR, NewText));
  }
  void operator()(const hostlib::IntegerArray& array) const {
    Put(VT_I2, NewArray<std::int16_t, SHORT>(array, VT_I2, [](std::int16_t n) { return n; }));
  }
  void operator()(const hostlib::DoubleArray& array) const {
    Put(VT_R8, NewArray<double, double>(array, VT_R8, [](double n) { return n; }));
  }
  void operator()(const hostlib::ObjectPtr& object) const {
    V_DISPATCH(&variant) = passage.out(object);
    V_VT(&variant) = VT_DISPATCH;
  }

 private:
  void Put(VARTYPE kind, SAFEARRAY* array) const {
    V_ARRAY(&variant) = array;
    V_VT(&variant) = static_cast<VARTYPE>(VT_ARRAY | kind);
  }
};

}  // namespace

Value FromVariant(const VARIANT& variant, const ObjectPassage& passage) {
  if ((V_VT(&variant) & VT_BYREF) == 0) return ReadPlain(variant, passage);
  OwnVariant copy;
  if (FAILED(VariantCopyInd(&copy, const_cast<VARIANT*>(&variant)))) Mismatch(V_VT(&variant));
  return ReadPlain(copy.get(), passage);
}

void ToVariant(const Value& value, const ObjectPassage& passage, VARIANT& variant) {
  VariantInit(&variant);
  std::visit(Writer{passage, variant}, value.content());
}

BSTR NewText(std::wstring_view text) {
  BSTR result = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
  if (result == nullptr) throw std::bad_alloc();
  return result;
}

std::wstring TextOf(BSTR text) {
  return text == nullptr ? std::wstring() : std::wstring(text, SysStringLen(text));
}

}  // namespace practice::terminal
