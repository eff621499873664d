#include "hostlib/com/ComLibrary.h"

#include "hostlib/com/CallOutcome.h"
#include "hostlib/com/ComObject.h"
#include "hostlib/com/Failures.h"
#include "hostlib/com/OwnObject.h"
#include "hostlib/com/ProgIds.h"

namespace hostlib::com {
namespace {

using Microsoft::WRL::ComPtr;

constexpr const wchar_t* kOutOfReach =
    L"The Vantel session runs as administrator and this program does not.\r\r"
    L"Start both of them in the same way.";

[[noreturn]] void ThrowNotMade(std::wstring_view className, HRESULT reason,
                               const std::wstring& text) {
  LibraryError error(reason, L"hostlib", text, LibraryError::Outcome::kNotSent);
  error.Locate(className, L"Create");
  throw error;
}

}  // namespace

ObjectPtr ComLibrary::Create(std::wstring_view className) {
  ComPtr<IDispatch> object;
  const HRESULT made = MakeObject(className, object);
  if (SUCCEEDED(made)) {
    return std::make_shared<ComObject>(*this, std::wstring(className), std::move(object));
  }
  const InstalledClass& installed = Find(className);
  if (SUCCEEDED(installed.found) && source_.IsOutOfReach(installed.id, made)) {
    ThrowNotMade(className, kTerminalIsElevated, kOutOfReach);
  }
  const wchar_t* fault =
      SUCCEEDED(installed.found) ? L" could not be made: " : L" is not installed: ";
  ThrowNotMade(className, made, std::wstring(ProgIdOf(className)) + fault + TextOf(made));
}

HRESULT ComLibrary::MakeObject(std::wstring_view className, ComPtr<IDispatch>& object) {
  const InstalledClass& installed = Find(className);
  if (FAILED(installed.found)) return installed.found;
  HRESULT made = source_.Make(installed.id, object);
  // The one that serves objects is about to end because nobody used it: its successor will do.
  if (made == CO_E_SERVER_STOPPING) made = source_.Make(installed.id, object);
  return SUCCEEDED(made) && object == nullptr ? E_NOINTERFACE : made;
}

ComPtr<IDispatch> ComLibrary::Outward(const ObjectPtr& object) {
  if (const auto theirs = std::dynamic_pointer_cast<ComObject>(object)) return theirs->object();
  return MakeOwnObject(object, *this);
}

ObjectPtr ComLibrary::Inward(ComPtr<IDispatch> object, std::wstring_view className) {
  return std::make_shared<ComObject>(*this, std::wstring(className), std::move(object));
}

ClassBinding& ComLibrary::BindingFor(std::wstring_view className, IDispatch& object) {
  if (const auto found = bindings_.find(className); found != bindings_.end()) {
    return *found->second;
  }
  if (ClassBinding* binding = BindingWithoutObject(className)) return *binding;
  const InstalledClass& installed = Find(className);
  const CLSID* const classId = SUCCEEDED(installed.found) ? &installed.id : nullptr;
  if (classId != nullptr) {
    if (ClassBinding* binding = BindingInNew(source_.TypesOf(*classId), className)) return *binding;
  }
  if (ClassBinding* binding = BindingInNew(TypeLibraryOf(object), className)) return *binding;
  return Keep(std::make_unique<ClassBinding>(std::wstring(className), object, classId));
}

ClassBinding* ComLibrary::BindingWithoutObject(std::wstring_view className) {
  if (const auto found = bindings_.find(className); found != bindings_.end()) {
    return found->second.get();
  }
  const InstalledClass& installed = Find(className);
  if (FAILED(installed.found)) return nullptr;
  for (auto library = typeLibraries_.begin(); library != typeLibraries_.end();) {
    try {
      if (ClassBinding* binding = BindingIn(*library, className)) return binding;
      ++library;
    } catch (const LibraryError& error) {
      if (!IsOfTheLink(error)) throw;
      // The terminal that it came from is gone; another one brings its own.
      library = typeLibraries_.erase(library);
    }
  }
  return nullptr;
}

ClassBinding* ComLibrary::BindingInNew(const TypeLibrary& library, std::wstring_view className) {
  if (library == nullptr) return nullptr;
  typeLibraries_.push_back(library);
  return BindingIn(library, className);
}

ClassBinding* ComLibrary::BindingIn(const TypeLibrary& library, std::wstring_view className) {
  const TypeInfo coclass = FindCoclass(*library.Get(), Find(className).id);
  if (coclass == nullptr) return nullptr;
  return &Keep(std::make_unique<ClassBinding>(std::wstring(className), coclass));
}

const Member* ComLibrary::FindMember(std::wstring_view className, IDispatch& object,
                                     int interfaceNumber, int slot) {
  try {
    return BindingFor(className, object).Find(interfaceNumber, slot);
  } catch (const LibraryError& error) {
    if (IsOfTheLink(error)) Forget(className);
    throw;
  }
}

void ComLibrary::Forget(std::wstring_view className) {
  if (const auto found = bindings_.find(className); found != bindings_.end())
    bindings_.erase(found);
}

bool ComLibrary::IsInstalled(std::wstring_view className) {
  return SUCCEEDED(Find(className).found);
}

const ComLibrary::InstalledClass& ComLibrary::Find(std::wstring_view className) {
  const auto [entry, isNew] =
      classes_.try_emplace(std::wstring(className), InstalledClass{CO_E_CLASSSTRING, CLSID{}});
  InstalledClass& installed = entry->second;
  const std::wstring_view progId = ProgIdOf(className);
  if (isNew && !progId.empty()) installed.found = source_.FindClass(progId, installed.id);
  return installed;
}

ClassBinding& ComLibrary::Keep(std::unique_ptr<ClassBinding> binding) {
  const std::wstring className = binding->className();
  return *bindings_.insert_or_assign(className, std::move(binding)).first->second;
}

}  // namespace hostlib::com
