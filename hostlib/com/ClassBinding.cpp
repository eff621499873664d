#include "hostlib/com/ClassBinding.h"

#include "common/Numbers.h"
#include "hostlib/com/CallOutcome.h"

namespace hostlib::com {
namespace {

struct Interfaces {
  std::vector<TypeInfo> types;
  std::size_t ofTheObject = 1;  ///< counted from 1
};

Interfaces InterfacesOf(const TypeInfo& coclass) {
  Interfaces interfaces;
  const TypeAttributes attributes(coclass);
  for (UINT i = 0; i < attributes->cImplTypes; ++i) {
    INT flags = 0;
    HREFTYPE reference = 0;
    TypeInfo type;
    CheckAnswered(coclass->GetImplTypeFlags(i, &flags));
    // What the class calls back is none of its interfaces.
    if ((flags & IMPLTYPEFLAG_FSOURCE) != 0) continue;
    CheckAnswered(coclass->GetRefTypeOfImplType(i, &reference));
    CheckAnswered(coclass->GetRefTypeInfo(reference, &type));
    interfaces.types.push_back(std::move(type));
    if ((flags & IMPLTYPEFLAG_FDEFAULT) != 0) interfaces.ofTheObject = interfaces.types.size();
  }
  return interfaces;
}

// For a class without a registered id: the coclass whose default interface is the object's.
TypeInfo CoclassWithInterface(ITypeLib& library, const IID& interfaceId) {
  const UINT types = library.GetTypeInfoCount();
  for (UINT i = 0; i < types; ++i) {
    TYPEKIND kind{};
    TypeInfo type;
    if (!IsAnswered(library.GetTypeInfoType(i, &kind)) || kind != TKIND_COCLASS) continue;
    if (!IsAnswered(library.GetTypeInfo(i, &type))) continue;
    const Interfaces interfaces = InterfacesOf(type);
    if (interfaces.types.empty()) continue;
    const TypeInfo& own = interfaces.types[interfaces.ofTheObject - 1];
    if (TypeAttributes(own)->guid == interfaceId) return type;
  }
  return nullptr;
}

TypeInfo TypeOf(IDispatch& object) {
  TypeInfo type;
  return IsAnswered(object.GetTypeInfo(0, LOCALE_NEUTRAL, &type)) ? type : nullptr;
}

// The same library as it is registered on this machine, which is read in this process. From the
// object's own process every single question would cost a round trip. Null when it is not there.
TypeLibrary RegisteredCopy(ITypeLib& library) {
  TLIBATTR* attributes = nullptr;
  if (!IsAnswered(library.GetLibAttr(&attributes))) return nullptr;
  TypeLibrary copy;
  LoadRegTypeLib(attributes->guid, attributes->wMajorVerNum, attributes->wMinorVerNum,
                 attributes->lcid, &copy);
  library.ReleaseTLibAttr(attributes);
  return copy;
}

TypeLibrary LibraryOf(const TypeInfo& type) {
  TypeLibrary library;
  UINT index = 0;
  if (type == nullptr || !IsAnswered(type->GetContainingTypeLib(&library, &index))) return nullptr;
  TypeLibrary registered = RegisteredCopy(*library.Get());
  return registered == nullptr ? library : registered;
}

Interfaces InterfacesOf(IDispatch& object, const CLSID* classId) {
  const TypeInfo type = TypeOf(object);
  if (type == nullptr) return {};
  const TypeLibrary library = LibraryOf(type);
  if (library == nullptr) return {{type}};
  TypeInfo coclass = classId == nullptr ? nullptr : FindCoclass(*library.Get(), *classId);
  if (coclass == nullptr) {
    coclass = CoclassWithInterface(*library.Get(), TypeAttributes(type)->guid);
  }
  return coclass == nullptr ? Interfaces{{type}} : InterfacesOf(coclass);
}

std::wstring Count(std::size_t number) {
  return common::NumberText(static_cast<std::int32_t>(number)) +
         (number == 1 ? L" argument" : L" arguments");
}

}  // namespace

TypeInfo FindCoclass(ITypeLib& library, const CLSID& classId) {
  TypeInfo type;
  if (!IsAnswered(library.GetTypeInfoOfGuid(classId, &type))) return nullptr;
  return TypeAttributes(type)->typekind == TKIND_COCLASS ? type : nullptr;
}

TypeLibrary TypeLibraryOf(IDispatch& object) { return LibraryOf(TypeOf(object)); }

ClassBinding::ClassBinding(std::wstring className, IDispatch& object, const CLSID* classId)
    : className_(std::move(className)) {
  const Interfaces interfaces = InterfacesOf(object, classId);
  for (const TypeInfo& type : interfaces.types) interfaces_.emplace_back(type);
  ofTheObject_ = static_cast<int>(interfaces.ofTheObject);
}

ClassBinding::ClassBinding(std::wstring className, const TypeInfo& coclass)
    : className_(std::move(className)) {
  const Interfaces interfaces = InterfacesOf(coclass);
  for (const TypeInfo& type : interfaces.types) interfaces_.emplace_back(type);
  ofTheObject_ = static_cast<int>(interfaces.ofTheObject);
}

const IID* ClassBinding::InterfaceId(int number) const {
  const auto index = static_cast<std::size_t>(number - 1);
  return number >= 1 && index < interfaces_.size() ? &interfaces_[index].id() : nullptr;
}

const Member* ClassBinding::Find(int interfaceNumber, int slot) {
  if (InterfaceId(interfaceNumber) == nullptr) return nullptr;
  const std::pair<int, int> place(interfaceNumber, slot);
  auto entry = members_.find(place);
  if (entry == members_.end()) {
    // Kept only when it was answered.
    const auto index = static_cast<std::size_t>(interfaceNumber - 1);
    entry = members_.emplace(place, interfaces_[index].MemberInSlot(slot)).first;
  }
  return entry->second ? &*entry->second : nullptr;
}

std::wstring ClassBinding::WhatIsWrongWith(const Operation& operation) {
  if (interfaces_.empty()) return L"its object does not describe itself";
  if (InterfaceId(operation.interfaceNumber) == nullptr) {
    return L"there is no interface " + common::NumberText(operation.interfaceNumber);
  }
  const Member* member = Find(operation.interfaceNumber, operation.slot);
  if (member == nullptr) return L"there is no such slot";
  const auto expected = static_cast<std::size_t>(operation.arguments);
  if (member->references.size() == expected) return {};
  return L"it takes " + Count(member->references.size()) + L" instead of " +
         common::NumberText(static_cast<std::int32_t>(expected));
}

}  // namespace hostlib::com
