#pragma once

#include <map>
#include <memory>
#include <string>

#include "hostlib/com/ClassBinding.h"
#include "hostlib/com/ObjectSource.h"
#include "hostlib/com/VariantValues.h"

namespace hostlib::com {

/// The installed script library, over COM. Belongs to one thread with its own apartment; must
/// outlive its objects.
class ComLibrary : public Library, public ObjectGate {
 public:
  explicit ComLibrary(ObjectSource& source) : source_(source) {}
  ComLibrary(const ComLibrary&) = delete;
  ComLibrary& operator=(const ComLibrary&) = delete;

  ObjectPtr Create(std::wstring_view className) override;

  Microsoft::WRL::ComPtr<IDispatch> Outward(const ObjectPtr& object) override;
  ObjectPtr Inward(Microsoft::WRL::ComPtr<IDispatch> object, std::wstring_view className) override;

  /// How the class's operations are called: from its types, which the object is asked for when
  /// nothing else tells them.
  ClassBinding& BindingFor(std::wstring_view className, IDispatch& object);
  /// The same without an object, when a type library that is known already has the class; null
  /// otherwise.
  ClassBinding* BindingWithoutObject(std::wstring_view className);
  /// The member in the slot; null when it is not there. When the library can't be asked, the class
  /// is bound anew the next time.
  const Member* FindMember(std::wstring_view className, IDispatch& object, int interfaceNumber,
                           int slot);
  void Forget(std::wstring_view className);
  /// The bare object, when it can be made.
  HRESULT MakeObject(std::wstring_view className, Microsoft::WRL::ComPtr<IDispatch>& object);
  /// Whether an object or its types have been seen, so that there is a library.
  bool HasBound() const { return !bindings_.empty(); }
  /// Whether a class of that name is installed at all.
  bool IsInstalled(std::wstring_view className);

 private:
  struct InstalledClass {
    HRESULT found;
    CLSID id;
  };

  const InstalledClass& Find(std::wstring_view className);
  ClassBinding* BindingIn(const TypeLibrary& library, std::wstring_view className);
  ClassBinding* BindingInNew(const TypeLibrary& library, std::wstring_view className);
  ClassBinding& Keep(std::unique_ptr<ClassBinding> binding);

  ObjectSource& source_;
  std::map<std::wstring, InstalledClass, std::less<>> classes_;
  std::map<std::wstring, std::unique_ptr<ClassBinding>, std::less<>> bindings_;
  std::vector<TypeLibrary> typeLibraries_;
};

}  // namespace hostlib::com
