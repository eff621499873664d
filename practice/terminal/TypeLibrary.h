#pragma once

#include <windows.h>
// clang-format off
#include <oaidl.h>
#include <ocidl.h>
#include <wrl/client.h>
// clang-format on

#include <string>

namespace practice::terminal {

using Microsoft::WRL::ComPtr;

/// This program's own path.
std::wstring ProgramPath();

/// The type library that the program carries as a resource; needs no registration to be read.
class TypeLibrary {
 public:
  /// Throws common::RunTimeError when the program carries none.
  TypeLibrary();

  /// Null when the library does not describe it.
  ComPtr<ITypeInfo> InfoOf(REFGUID id) const;
  ITypeLib& library() const { return *library_.Get(); }
  GUID Id() const;

 private:
  ComPtr<ITypeLib> library_;
};

}  // namespace practice::terminal
