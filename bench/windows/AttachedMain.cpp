// The same with what comes before the first window of a program in the terminal: it makes the
// library's global object and attaches. What PTA_QX takes beyond it is neither Windows nor the
// host.
#include <ole2.h>

#include "bench/windows/MinimalDialog.h"

namespace {

/// What Attach is given: answers whatever it is asked with a text, its instance with a number.
class Attached : public IDispatch {
 public:
  virtual ~Attached() = default;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override {
    *result = id == IID_IUnknown || id == IID_IDispatch ? this : nullptr;
    return *result == nullptr ? E_NOINTERFACE : S_OK;
  }
  // Lives as long as the program.
  ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID,
                                          DISPID* ids) override {
    ids[0] = lstrcmpiW(names[0], L"Instance") == 0 ? kInstance : kText;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result,
                                   EXCEPINFO*, UINT*) override {
    if (member == kInstance) {
      result->vt = VT_I4;
      result->lVal = 1;
    } else {
      result->vt = VT_BSTR;
      result->bstrVal = SysAllocString(L"Minimal");
    }
    return S_OK;
  }

 private:
  enum Member : DISPID { kText = 1, kInstance = 2 };
};

bool Attach(IDispatch& form, IDispatch& application) {
  CLSID id;
  IDispatch* global = nullptr;
  if (FAILED(CLSIDFromProgID(L"Vantel.ScriptGlobal", &id))) return false;
  if (FAILED(CoCreateInstance(id, nullptr, CLSCTX_LOCAL_SERVER, IID_IDispatch,
                              reinterpret_cast<void**>(&global)))) {
    return false;
  }
  wchar_t name[] = L"Attach";
  LPOLESTR names[] = {name};
  DISPID attach = 0;
  VARIANT arguments[2] = {};
  arguments[1].vt = arguments[0].vt = VT_DISPATCH;
  arguments[1].pdispVal = &form;
  arguments[0].pdispVal = &application;
  DISPPARAMS parameters = {arguments, nullptr, 2, 0};
  VARIANT result = {};
  return SUCCEEDED(global->GetIDsOfNames(IID_NULL, names, 1, LOCALE_NEUTRAL, &attach)) &&
         SUCCEEDED(global->Invoke(attach, IID_NULL, LOCALE_NEUTRAL, DISPATCH_METHOD, &parameters,
                                  &result, nullptr, nullptr)) &&
         result.vt == VT_BOOL && result.boolVal == VARIANT_FALSE;
}

}  // namespace

// Without a window there is nothing to measure: the bench says so.
int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, LPWSTR, int) {
  static Attached form;
  static Attached application;
  if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) return 1;
  const int status = Attach(form, application) ? ShowMinimalDialog(instance) : 1;
  // The terminal may let go of the two objects later than the dialog.
  ExitProcess(static_cast<UINT>(status));
}
