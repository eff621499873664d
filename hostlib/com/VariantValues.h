#pragma once

#include <wrl/client.h>

#include "hostlib/ValueView.h"
#include "hostlib/com/Owners.h"

namespace hostlib::com {

/// How objects cross: each side's objects as the other side's.
class ObjectGate {
 public:
  virtual ~ObjectGate() = default;
  virtual Microsoft::WRL::ComPtr<IDispatch> Outward(const ObjectPtr& object) = 0;
  /// `className` as the operation promises it.
  virtual ObjectPtr Inward(Microsoft::WRL::ComPtr<IDispatch> object,
                           std::wstring_view className) = 0;
};

/// The value as a variant.
Variant ToVariant(const ValueView& value, ObjectGate& gate);

/// The variant as a value, by reference or not. Throws LibraryError for what no value can hold.
Value FromVariant(const VARIANT& variant, ObjectGate& gate, std::wstring_view className);

}  // namespace hostlib::com
