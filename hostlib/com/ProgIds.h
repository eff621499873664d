#pragma once

#include <string_view>

namespace hostlib::com {

/// The name under which an object of the library is registered on the machine; "" for a class
/// that the library gives and this program never makes. The one place to change when an installed
/// library uses other names.
std::wstring_view ProgIdOf(std::wstring_view className);

}  // namespace hostlib::com
