#include "tests/windows/terminal/Client.h"

#include <algorithm>

#include "common/Text.h"

namespace client {

Failure::Failure(HRESULT theResult, SCODE theNumber, std::wstring theSource, std::wstring theText)
    : std::runtime_error("The terminal: " + std::to_string(theResult) + " " +
                         common::ToUtf8(theText)),
      result(theResult),
      number(theNumber),
      source(std::move(theSource)),
      text(std::move(theText)) {}

Variant Text(std::wstring_view text) {
  Variant variant;
  variant.get().bstrVal = hostlib::com::Bstr(text).Release();
  variant.get().vt = VT_BSTR;
  return variant;
}

Variant Number(long number) {
  Variant variant;
  variant.get().lVal = number;
  variant.get().vt = VT_I4;
  return variant;
}

Variant Flag(bool flag) {
  Variant variant;
  variant.get().boolVal = flag ? VARIANT_TRUE : VARIANT_FALSE;
  variant.get().vt = VT_BOOL;
  return variant;
}

Variant Object(const ComPtr<IDispatch>& object) {
  Variant variant;
  ComPtr<IDispatch> copy = object;
  variant.get().pdispVal = copy.Detach();
  variant.get().vt = VT_DISPATCH;
  return variant;
}

Variant LeftOut() {
  Variant variant;
  variant.get().scode = DISP_E_PARAMNOTFOUND;
  variant.get().vt = VT_ERROR;
  return variant;
}

std::wstring TextIn(const Variant& variant) {
  if (variant.type() != VT_BSTR) throw Failure{DISP_E_TYPEMISMATCH, 0, L"", L"no text"};
  return {variant.get().bstrVal == nullptr ? L"" : variant.get().bstrVal,
          SysStringLen(variant.get().bstrVal)};
}

ComPtr<IDispatch> ObjectIn(const Variant& variant) {
  if (variant.type() != VT_DISPATCH) throw Failure{DISP_E_TYPEMISMATCH, 0, L"", L"no object"};
  return variant.get().pdispVal;
}

HRESULT Make(std::wstring_view className, ComPtr<IDispatch>& object) {
  CLSID id = {};
  const std::wstring name = L"Vantel." + std::wstring(className);
  const HRESULT found = CLSIDFromProgID(name.c_str(), &id);
  if (FAILED(found)) return found;
  return CoCreateInstance(id, nullptr, CLSCTX_LOCAL_SERVER, IID_PPV_ARGS(&object));
}

ComPtr<IDispatch> Make(std::wstring_view className) {
  ComPtr<IDispatch> object;
  const HRESULT made = Make(className, object);
  if (FAILED(made)) throw Failure{made, made, L"", L"can not be made"};
  return object;
}

Variant Call(IDispatch& object, const wchar_t* name, std::vector<Variant> arguments) {
  DISPID member = 0;
  auto* names = const_cast<wchar_t*>(name);
  const HRESULT found = object.GetIDsOfNames(IID_NULL, &names, 1, LOCALE_NEUTRAL, &member);
  if (FAILED(found)) throw Failure{found, 0, L"", name};
  return CallMember(object, member, std::move(arguments));
}

Variant CallMember(IDispatch& object, DISPID member, std::vector<Variant> arguments) {
  std::vector<VARIANT> reversed;
  for (auto at = arguments.rbegin(); at != arguments.rend(); ++at) reversed.push_back(at->get());
  DISPPARAMS parameters = {reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
  Variant result;
  EXCEPINFO exception = {};
  UINT bad = 0;
  const HRESULT called =
      object.Invoke(member, IID_NULL, LOCALE_NEUTRAL, DISPATCH_METHOD | DISPATCH_PROPERTYGET,
                    &parameters, &result.get(), &exception, &bad);
  if (SUCCEEDED(called)) return result;
  Failure failure{called, exception.scode, L"", L""};
  if (exception.bstrSource != nullptr) failure.source = exception.bstrSource;
  if (exception.bstrDescription != nullptr) failure.text = exception.bstrDescription;
  SysFreeString(exception.bstrSource);
  SysFreeString(exception.bstrDescription);
  SysFreeString(exception.bstrHelpFile);
  throw failure;
}

ComPtr<IDispatch> Bag(const std::vector<std::pair<std::wstring, std::wstring>>& texts) {
  ComPtr<IDispatch> bag = Make(L"ParameterBag");
  for (const auto& [key, text] : texts) {
    std::vector<Variant> arguments;
    arguments.push_back(Text(key));
    arguments.push_back(Text(text));
    Call(*bag.Get(), L"SetValue", std::move(arguments));
  }
  return bag;
}

std::wstring TextIn(IDispatch& bag, std::wstring_view key) {
  std::vector<Variant> arguments;
  arguments.push_back(Text(key));
  return TextIn(Call(bag, L"GetValue", std::move(arguments)));
}

long LiveObjects() {
  const ComPtr<IDispatch> desk = Make(L"PracticeDesk");
  return Call(*desk.Get(), L"LiveObjects").get().lVal;
}

}  // namespace client
