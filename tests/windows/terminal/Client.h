#pragma once

#include <wrl/client.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "hostlib/com/Owners.h"

/// A script's side of the terminal, as bare as it can be: late-bound calls by name.
namespace client {

using hostlib::com::Variant;
using Microsoft::WRL::ComPtr;

/// What a failed call says.
class Failure : public std::runtime_error {
 public:
  Failure(HRESULT theResult, SCODE theNumber, std::wstring theSource, std::wstring theText);

  HRESULT result = S_OK;
  SCODE number = 0;
  std::wstring source;
  std::wstring text;
};

Variant Text(std::wstring_view text);
Variant Number(long number);
Variant Flag(bool flag);
Variant Object(const ComPtr<IDispatch>& object);
Variant LeftOut();

std::wstring TextIn(const Variant& variant);
ComPtr<IDispatch> ObjectIn(const Variant& variant);

/// S_OK and the object, or why there is none.
HRESULT Make(std::wstring_view className, ComPtr<IDispatch>& object);
/// Throws Failure.
ComPtr<IDispatch> Make(std::wstring_view className);
/// Throws Failure.
Variant Call(IDispatch& object, const wchar_t* name, std::vector<Variant> arguments = {});
Variant CallMember(IDispatch& object, DISPID member, std::vector<Variant> arguments = {});
/// A bag with these texts in it.
ComPtr<IDispatch> Bag(const std::vector<std::pair<std::wstring, std::wstring>>& texts = {});
std::wstring TextIn(IDispatch& bag, std::wstring_view key);

/// How many objects of scripts the terminal counts. Asking makes none.
long LiveObjects();

}  // namespace client
