#pragma once

#include <wrl/client.h>

#include <string>
#include <string_view>

#include "hostlib/com/Owners.h"
#include "hostlib/com/TypeOwners.h"

namespace hostlib::com {

/// Where the library's objects come from.
class ObjectSource {
 public:
  virtual ~ObjectSource() = default;
  virtual HRESULT FindClass(std::wstring_view progId, CLSID& classId) = 0;
  virtual HRESULT Make(const CLSID& classId, Microsoft::WRL::ComPtr<IDispatch>& object) = 0;
  /// The type library that describes the class, when that is known without an object; else null.
  virtual TypeLibrary TypesOf(const CLSID& classId) = 0;
  /// An object of the class could not be made because its program runs with rights that this
  /// program does not have.
  virtual bool IsOutOfReach(const CLSID& classId, HRESULT failure) = 0;
};

/// The classes that are registered on the machine.
class InstalledObjects : public ObjectSource {
 public:
  HRESULT FindClass(std::wstring_view progId, CLSID& classId) override;
  HRESULT Make(const CLSID& classId, Microsoft::WRL::ComPtr<IDispatch>& object) override;
  TypeLibrary TypesOf(const CLSID& classId) override;
  bool IsOutOfReach(const CLSID& classId, HRESULT failure) override;
};

}  // namespace hostlib::com
