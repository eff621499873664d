#pragma once

#include "hostlib/com/VariantValues.h"

namespace hostlib::com {

/// An object of this program as the library may call it: by the names of its properties, or by
/// their slots as member ids. Lives no longer than the object itself: when that is gone, the
/// library is told so, however long it holds on. `gate` must outlive every call.
Microsoft::WRL::ComPtr<IDispatch> MakeOwnObject(const ObjectPtr& object, ObjectGate& gate);

}  // namespace hostlib::com
