#pragma once

#include <optional>
#include <vector>

#include "hostlib/com/TypeOwners.h"

namespace hostlib::com {

/// A member as it is called by name.
struct Member {
  DISPID id = DISPID_VALUE;
  WORD kind = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
  /// For every argument the type that it is handed over by reference as, or VT_EMPTY for one that
  /// goes by value.
  std::vector<VARTYPE> references;
};

/// The table of one interface as its type information describes it: which member stands in which
/// slot. An interface that only answers calls by name has no table and no slots.
class InterfaceTable {
 public:
  explicit InterfaceTable(const TypeInfo& type);

  const IID& id() const { return id_; }
  /// The function whose table offset is the slot.
  std::optional<Member> MemberInSlot(int slot) const;

 private:
  /// Functions of one of the interfaces that inherit from each other.
  struct Level {
    TypeInfo type;
    UINT functions;
  };

  void ReadLevels(TypeInfo type);
  std::optional<Member> MemberIn(const Level& level, int slot) const;

  IID id_;
  std::vector<Level> levels_;
  /// Bytes of a table entry, as wide as a pointer of the library, not of this program.
  int entrySize_ = static_cast<int>(sizeof(void*));
};

}  // namespace hostlib::com
