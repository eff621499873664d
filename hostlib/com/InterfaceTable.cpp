#include "hostlib/com/InterfaceTable.h"

namespace hostlib::com {
namespace {

// The entries that every interface called by name begins with.
constexpr int kStandardEntries = 7;
// Type libraries use the lowest bits of an offset for themselves.
constexpr int kOffsetMask = ~3;

TypeInfo Referenced(const TypeInfo& type, UINT implemented) {
  HREFTYPE reference = 0;
  TypeInfo other;
  const bool isThere = IsAnswered(type->GetRefTypeOfImplType(implemented, &reference)) &&
                       IsAnswered(type->GetRefTypeInfo(reference, &other));
  return isThere ? other : nullptr;
}

// The half of a dual interface that has the table. Offsets and parameters of the other half are
// those of calls by name.
TypeInfo TableHalf(const TypeInfo& type) {
  const TypeAttributes attributes(type);
  if (attributes->typekind != TKIND_DISPATCH) return type;
  if ((attributes->wTypeFlags & TYPEFLAG_FDUAL) == 0) return nullptr;
  constexpr auto kOtherHalf = static_cast<UINT>(-1);
  return Referenced(type, kOtherHalf);
}

/// What one type of a type library is to a variant.
struct Seen {
  VARTYPE type = VT_EMPTY;   ///< VT_EMPTY: nothing that a variant can refer to
  bool isInterface = false;  ///< a pointer to it is an object
};

Seen SeenAs(const TypeInfo& owner, const TYPEDESC& description);

Seen SeenAsNamed(const TypeInfo& owner, HREFTYPE reference) {
  TypeInfo type;
  if (!IsAnswered(owner->GetRefTypeInfo(reference, &type))) return {};
  const TypeAttributes attributes(type);
  switch (attributes->typekind) {
    case TKIND_ENUM:
      return {VT_I4};
    case TKIND_ALIAS:
      return SeenAs(type, attributes->tdescAlias);
    case TKIND_INTERFACE:
    case TKIND_DISPATCH:
    case TKIND_COCLASS:
      return {VT_EMPTY, true};
    default:
      return {};
  }
}

Seen SeenAs(const TypeInfo& owner, const TYPEDESC& description) {
  switch (description.vt) {
    case VT_PTR:
      return SeenAs(owner, *description.lptdesc).isInterface ? Seen{VT_DISPATCH} : Seen{};
    case VT_SAFEARRAY: {
      const VARTYPE row = SeenAs(owner, *description.lptdesc).type;
      return {static_cast<VARTYPE>(row == VT_EMPTY ? VT_EMPTY : VT_ARRAY | row)};
    }
    case VT_USERDEFINED:
      return SeenAsNamed(owner, description.hreftype);
    case VT_INT:
    case VT_HRESULT:
      return {VT_I4};
    case VT_UINT:
      return {VT_UI4};
    case VT_VARIANT:
    case VT_BSTR:
    case VT_BOOL:
    case VT_DISPATCH:
    case VT_UNKNOWN:
    case VT_I1:
    case VT_UI1:
    case VT_I2:
    case VT_UI2:
    case VT_I4:
    case VT_UI4:
    case VT_I8:
    case VT_UI8:
    case VT_R4:
    case VT_R8:
    case VT_CY:
    case VT_DATE:
    case VT_ERROR:
      return {description.vt};
    default:
      return {};
  }
}

VARTYPE ReferenceType(const TypeInfo& owner, const ELEMDESC& parameter) {
  if (parameter.tdesc.vt != VT_PTR) return VT_EMPTY;
  return SeenAs(owner, *parameter.tdesc.lptdesc).type;
}

Member Described(const TypeInfo& owner, const FunctionDescription& function) {
  Member member;
  member.id = function->memid;
  member.kind = static_cast<WORD>(function->invkind);
  for (SHORT i = 0; i < function->cParams; ++i) {
    const ELEMDESC& parameter = function->lprgelemdescParam[i];
    constexpr USHORT kNotAnArgument = PARAMFLAG_FRETVAL | PARAMFLAG_FLCID;
    if ((parameter.paramdesc.wParamFlags & kNotAnArgument) != 0) continue;
    member.references.push_back(ReferenceType(owner, parameter));
  }
  return member;
}

}  // namespace

InterfaceTable::InterfaceTable(const TypeInfo& type) : id_(TypeAttributes(type)->guid) {
  ReadLevels(TableHalf(type));
}

void InterfaceTable::ReadLevels(TypeInfo type) {
  while (type != nullptr) {
    const TypeAttributes attributes(type);
    if (attributes->guid == IID_IDispatch) {
      const int size = attributes->cbSizeVft / kStandardEntries;
      if (size == 4 || size == 8) entrySize_ = size;
      return;
    }
    levels_.push_back({type, attributes->cFuncs});
    type = attributes->cImplTypes == 0 ? nullptr : Referenced(type, 0);
  }
  // What does not come from the standard entries can't be called by name.
  levels_.clear();
}

std::optional<Member> InterfaceTable::MemberInSlot(int slot) const {
  for (const Level& level : levels_) {
    if (auto member = MemberIn(level, slot)) return member;
  }
  return std::nullopt;
}

std::optional<Member> InterfaceTable::MemberIn(const Level& level, int slot) const {
  const int wanted = slot * entrySize_;
  const auto tried = [&](UINT index) -> std::optional<Member> {
    const FunctionDescription function(level.type, index);
    if ((function->oVft & kOffsetMask) != wanted) return std::nullopt;
    return Described(level.type, function);
  };
  // Functions mostly stand in the order of their slots; to ask for one costs a round trip.
  const auto guess = static_cast<UINT>(slot - kStandardEntries);
  if (slot >= kStandardEntries && guess < level.functions) {
    if (auto member = tried(guess)) return member;
  }
  for (UINT index = 0; index < level.functions; ++index) {
    if (auto member = tried(index)) return member;
  }
  return std::nullopt;
}

}  // namespace hostlib::com
