#pragma once

#include <windows.h>

#include <functional>
#include <string>

namespace practice::terminal {

/// Leaves the failure for the client, as the thread's error information, and gives its number.
HRESULT Raise(HRESULT number, const std::wstring& source, const std::wstring& text) noexcept;

/// Runs the body of a COM method. No exception leaves it: each becomes a result and the thread's
/// error information.
HRESULT Guarded(const std::function<void()>& body) noexcept;

}  // namespace practice::terminal
