#pragma once

#include "hostlib/Value.h"
#include "hostlib/com/Owners.h"

namespace hostlib::com {

/// The array as a variant, with its lower bound.
Variant ArrayVariant(const TextArray& array);
Variant ArrayVariant(const IntegerArray& array);
Variant ArrayVariant(const DoubleArray& array);

/// An array of one dimension: of texts, numbers, or variants that hold these. An array of variants
/// without rows has no kind and gives an empty value.
Value ArrayValue(SAFEARRAY* array, VARTYPE rowType);

/// Makes the array in a variant one of another type, a VT_ARRAY, row by row.
HRESULT ConvertRows(VARIANT& array, VARTYPE type);

/// The number in a variant of any numeric kind.
double NumberIn(const VARIANT& variant);

}  // namespace hostlib::com
