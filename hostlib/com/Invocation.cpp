#include "hostlib/com/Invocation.h"

#include <algorithm>

#include "common/Numbers.h"
#include "hostlib/com/ArrayValues.h"
#include "hostlib/com/Failures.h"

namespace hostlib::com {
namespace {

// Makes what is to be handed over by reference one of the declared type.
HRESULT Convert(VARIANT& held, VARTYPE type) {
  if (held.vt == type) return S_OK;
  const bool mayBeNone = (type & VT_ARRAY) != 0 || type == VT_DISPATCH || type == VT_UNKNOWN;
  if (held.vt == VT_EMPTY && mayBeNone) {
    held.byref = nullptr;
    held.vt = type;
    return S_OK;
  }
  if ((held.vt & VT_ARRAY) != 0) return ConvertRows(held, type);
  return VariantChangeTypeEx(&held, &held, LOCALE_INVARIANT, 0, type);
}

std::wstring ArgumentName(std::size_t number) {
  return L"Argument " + common::NumberText(static_cast<std::int32_t>(number));
}

// The argument as its parameter wants it; `holder` keeps what is handed over by reference.
VARIANT HandedOver(Variant& holder, VARTYPE reference, const std::wstring& name) {
  VARIANT argument = holder.get();
  // What is left out is never a reference.
  if (reference == VT_EMPTY || holder.type() == VT_ERROR) return argument;
  if (reference == VT_VARIANT) {
    argument.vt = VT_BYREF | VT_VARIANT;
    argument.pvarVal = &holder.get();
    return argument;
  }
  CheckBeforeCall(Convert(holder.get(), reference), name);
  argument.vt = static_cast<VARTYPE>(VT_BYREF | reference);
  argument.byref = &holder.get().byref;
  return argument;
}

std::vector<VARIANT> InCallOrder(std::vector<Variant>& arguments, const Member& member) {
  std::vector<VARIANT> handed;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const VARTYPE reference =
        i < member.references.size() ? member.references[i] : VARTYPE{VT_EMPTY};
    handed.push_back(HandedOver(arguments[i], reference, ArgumentName(i + 1)));
  }
  std::reverse(handed.begin(), handed.end());
  return handed;
}

bool NamesAnArgument(HRESULT result) {
  return result == DISP_E_TYPEMISMATCH || result == DISP_E_PARAMNOTFOUND;
}

}  // namespace

Variant InvokeMember(IDispatch& object, const Member& member, std::vector<Variant> arguments) {
  std::vector<VARIANT> handed = InCallOrder(arguments, member);
  const auto count = static_cast<UINT>(handed.size());
  const bool isPut = (member.kind & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
  DISPID putValue = DISPID_PROPERTYPUT;
  DISPPARAMS parameters{handed.data(), isPut ? &putValue : nullptr, count, isPut ? 1U : 0U};

  Variant result;
  ExceptionInfo exception;
  constexpr UINT kNoArgument = 0xFFFFFFFF;
  UINT badArgument = kNoArgument;
  const HRESULT outcome =
      object.Invoke(member.id, IID_NULL, LOCALE_USER_DEFAULT, member.kind, &parameters,
                    isPut ? nullptr : &result.get(), exception.Out(), &badArgument);
  if (outcome == DISP_E_EXCEPTION) throw exception.Error();
  if (NamesAnArgument(outcome) && badArgument < count) {
    ThrowLinkError(outcome, ArgumentName(count - badArgument));
  }
  Check(outcome);
  return result;
}

}  // namespace hostlib::com
