#include "hostlib/com/ArrayValues.h"

#include <algorithm>
#include <limits>

#include "common/Numbers.h"
#include "hostlib/com/Failures.h"

namespace hostlib::com {
namespace {

SAFEARRAY* NewArray(VARTYPE rowType, std::size_t rows, int lowerBound) {
  SAFEARRAY* array = SafeArrayCreateVector(rowType, lowerBound, static_cast<ULONG>(rows));
  if (array == nullptr) ThrowLinkError(E_OUTOFMEMORY);
  return array;
}

template <typename T, typename Item, typename Convert>
Variant Filled(VARTYPE rowType, const Array<Item>& array, Convert convert) {
  SafeArray filled(NewArray(rowType, array.items.size(), array.lowerBound));
  if (!array.items.empty()) {
    const LockedRows<T> rows(filled.get());
    if (rows.get() == nullptr) ThrowLinkError(E_OUTOFMEMORY);
    std::transform(array.items.begin(), array.items.end(), rows.get(), convert);
  }
  Variant variant;
  variant.get().vt = static_cast<VARTYPE>(VT_ARRAY | rowType);
  variant.get().parray = filled.Release();
  return variant;
}

BSTR Copied(const std::wstring& text) { return Bstr(text).Release(); }

std::wstring TextIn(BSTR text) { return {text == nullptr ? L"" : text, SysStringLen(text)}; }

/// Where the rows of an incoming array stand.
struct Extent {
  LONG lower = 0;
  std::size_t rows = 0;
};

Extent ExtentOf(SAFEARRAY* array) {
  if (SafeArrayGetDim(array) != 1) ThrowMismatch(L"an array of several dimensions");
  Extent extent;
  LONG upper = 0;
  Check(SafeArrayGetLBound(array, 1, &extent.lower));
  Check(SafeArrayGetUBound(array, 1, &upper));
  // Without a sign: before the lowest bound of an array without rows comes the highest number.
  extent.rows = static_cast<ULONG>(upper) - static_cast<ULONG>(extent.lower) + 1U;
  return extent;
}

template <typename Item, typename T, typename Convert>
Array<Item> Read(SAFEARRAY* array, Convert convert) {
  const Extent extent = ExtentOf(array);
  Array<Item> result{std::vector<Item>(extent.rows), static_cast<int>(extent.lower)};
  if (extent.rows == 0) return result;
  if (SafeArrayGetElemsize(array) != sizeof(T))
    ThrowMismatch(L"an array with rows of another size");
  const LockedRows<T> rows(array);
  if (rows.get() == nullptr) ThrowLinkError(E_UNEXPECTED);
  std::transform(rows.get(), rows.get() + extent.rows, result.items.begin(), convert);
  return result;
}

// The narrowest kind that holds every number.
Value NumbersValue(const DoubleArray& numbers) {
  using Limits = std::numeric_limits<std::int16_t>;
  const bool areIntegers =
      std::all_of(numbers.items.begin(), numbers.items.end(), [](double number) {
        return number >= Limits::min() && number <= Limits::max() &&
               number == static_cast<std::int16_t>(number);
      });
  if (!areIntegers) return Value(numbers);
  IntegerArray integers{{}, numbers.lowerBound};
  for (const double number : numbers.items) {
    integers.items.push_back(static_cast<std::int16_t>(number));
  }
  return Value(std::move(integers));
}

bool IsNumber(VARTYPE type) {
  return type == VT_I1 || type == VT_UI1 || type == VT_I2 || type == VT_UI2 || type == VT_I4 ||
         type == VT_UI4 || type == VT_INT || type == VT_UINT || type == VT_R4 || type == VT_R8;
}

// An array of variants is one of what its rows hold; rows that hold nothing fit to texts.
Value VariantRows(SAFEARRAY* array) {
  const auto rows = Read<const VARIANT*, VARIANT>(array, [](const VARIANT& row) { return &row; });
  if (rows.items.empty()) return {};
  const auto all = [&rows](auto fits) {
    return std::all_of(rows.items.begin(), rows.items.end(),
                       [&](const VARIANT* row) { return fits(row->vt); });
  };
  if (all([](VARTYPE type) { return type == VT_BSTR || type == VT_EMPTY; })) {
    return Value(Read<std::wstring, VARIANT>(array, [](const VARIANT& row) {
      return row.vt == VT_BSTR ? TextIn(row.bstrVal) : std::wstring();
    }));
  }
  if (!all(IsNumber)) ThrowMismatch(L"an array of variants of several kinds");
  const auto numbers = Read<double, VARIANT>(array, NumberIn);
  if (all([](VARTYPE type) { return type == VT_R8 || type == VT_R4; })) return Value(numbers);
  return NumbersValue(numbers);
}

// One row of an array, as the functions for rows want it.
void* PlaceOf(VARIANT& row, VARTYPE rowType) {
  return rowType == VT_VARIANT ? static_cast<void*>(&row) : &row.byref;
}

HRESULT ConvertRow(SAFEARRAY* from, VARTYPE fromType, SAFEARRAY* to, VARTYPE toType, LONG at) {
  Variant row;
  if (fromType != VT_VARIANT) row.get().vt = fromType;
  HRESULT result = SafeArrayGetElement(from, &at, PlaceOf(row.get(), fromType));
  if (SUCCEEDED(result) && toType != VT_VARIANT) {
    result = VariantChangeTypeEx(&row.get(), &row.get(), LOCALE_INVARIANT, 0, toType);
  }
  if (FAILED(result)) return result;
  // Texts and objects are handed over as the pointers that they are, and copied.
  const bool isPointer = toType == VT_BSTR || toType == VT_DISPATCH || toType == VT_UNKNOWN;
  return SafeArrayPutElement(to, &at, isPointer ? row.get().byref : PlaceOf(row.get(), toType));
}

}  // namespace

HRESULT ConvertRows(VARIANT& array, VARTYPE type) {
  if ((type & VT_ARRAY) == 0) return DISP_E_TYPEMISMATCH;
  const auto fromType = static_cast<VARTYPE>(array.vt & VT_TYPEMASK);
  const auto toType = static_cast<VARTYPE>(type & VT_TYPEMASK);
  const Extent extent = ExtentOf(array.parray);
  SafeArray converted(NewArray(toType, extent.rows, extent.lower));
  for (std::size_t i = 0; i < extent.rows; ++i) {
    const LONG at = extent.lower + static_cast<LONG>(i);
    const HRESULT result = ConvertRow(array.parray, fromType, converted.get(), toType, at);
    if (FAILED(result)) return result;
  }
  VariantClear(&array);
  array.parray = converted.Release();
  array.vt = type;
  return S_OK;
}

double NumberIn(const VARIANT& variant) {
  Variant number;
  // The function only reads it, though its parameter does not say so.
  auto* source = const_cast<VARIANT*>(&variant);
  Check(VariantChangeTypeEx(&number.get(), source, LOCALE_INVARIANT, 0, VT_R8));
  return number.get().dblVal;
}

Variant ArrayVariant(const TextArray& array) { return Filled<BSTR>(VT_BSTR, array, Copied); }

Variant ArrayVariant(const IntegerArray& array) {
  return Filled<SHORT>(VT_I2, array, [](std::int16_t number) { return SHORT{number}; });
}

Variant ArrayVariant(const DoubleArray& array) {
  return Filled<DOUBLE>(VT_R8, array, [](double number) { return number; });
}

Value ArrayValue(SAFEARRAY* array, VARTYPE rowType) {
  if (array == nullptr) return {};
  switch (rowType) {
    case VT_BSTR:
      return Value(Read<std::wstring, BSTR>(array, TextIn));
    case VT_I2:
      return Value(Read<std::int16_t, SHORT>(array, [](SHORT row) { return std::int16_t{row}; }));
    case VT_I4:
    case VT_INT:
      return NumbersValue(
          Read<double, LONG>(array, [](LONG row) { return static_cast<double>(row); }));
    case VT_R4:
      return Value(Read<double, FLOAT>(array, [](FLOAT row) { return static_cast<double>(row); }));
    case VT_R8:
      return Value(Read<double, DOUBLE>(array, [](DOUBLE row) { return row; }));
    case VT_VARIANT:
      return VariantRows(array);
    default:
      ThrowMismatch(L"an array of kind " + common::NumberText(rowType));
  }
}

}  // namespace hostlib::com
