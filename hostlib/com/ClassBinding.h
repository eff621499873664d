#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>

#include "hostlib/Operations.h"
#include "hostlib/com/InterfaceTable.h"

namespace hostlib::com {

/// How the operations of one class of the installed library are called: found by their slots when
/// they are first asked for, and kept, what is not there too. Whatever asks the library throws when
/// it can't be asked, and nothing is kept then.
class ClassBinding {
 public:
  /// From an object of the class. `classId` is null for a class that only the library makes.
  ClassBinding(std::wstring className, IDispatch& object, const CLSID* classId);
  /// From a type library that has the class.
  ClassBinding(std::wstring className, const TypeInfo& coclass);

  const std::wstring& className() const { return className_; }

  /// Null for an interface that the class does not have. Interfaces count from 1.
  const IID* InterfaceId(int number) const;
  /// The interface that answers an object's calls by name as it is: the class's default, else the
  /// first.
  int InterfaceOfTheObject() const { return ofTheObject_; }
  /// Null when the slot is not there.
  const Member* Find(int interfaceNumber, int slot);
  /// Why the operation can't be used; "" when it can.
  std::wstring WhatIsWrongWith(const Operation& operation);

 private:
  std::wstring className_;
  std::vector<InterfaceTable> interfaces_;
  int ofTheObject_ = 1;
  std::map<std::pair<int, int>, std::optional<Member>> members_;
};

/// The coclass with this id in a type library; null when it has none.
TypeInfo FindCoclass(ITypeLib& library, const CLSID& classId);
/// The type library of the object; null when it gives no type information.
TypeLibrary TypeLibraryOf(IDispatch& object);

}  // namespace hostlib::com
