// A script library as terminal programs bring it along: a DLL that is loaded into the program. Of
// its classes it has the session, which answers with what it was given. Like theirs it needs
// another DLL.
#include <TestLibrary.h>

#include <array>
#include <atomic>
#include <new>
#include <string>

extern "C" __declspec(dllimport) int CompanionVersion(void);

namespace {

HINSTANCE ownModule = nullptr;
std::atomic<int> liveObjects = 0;

HRESULT OwnType(REFGUID id, ITypeInfo** type) {
  std::array<wchar_t, MAX_PATH> path = {};
  GetModuleFileNameW(ownModule, path.data(), static_cast<DWORD>(path.size()));
  ITypeLib* library = nullptr;
  const HRESULT loaded = LoadTypeLibEx(path.data(), REGKIND_NONE, &library);
  if (FAILED(loaded)) return loaded;
  const HRESULT found = library->GetTypeInfoOfGuid(id, type);
  library->Release();
  return found;
}

/// What every object of the DLL counts, and that it ends with its last reference.
template <typename Base>
class Counted : public Base {
 public:
  Counted() { ++liveObjects; }
  virtual ~Counted() { --liveObjects; }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

 private:
  ULONG references_ = 1;
};

class Session final : public Counted<ISession> {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override {
    *result = nullptr;
    if (id != IID_IUnknown && id != IID_IDispatch && id != __uuidof(ISession)) return E_NOINTERFACE;
    *result = static_cast<ISession*>(this);
    AddRef();
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    *count = 1;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** type) override {
    return OwnType(__uuidof(ISession), type);
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD kind, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO* exception,
                                   UINT* badArgument) override {
    ITypeInfo* type = nullptr;
    const HRESULT described = OwnType(__uuidof(ISession), &type);
    if (FAILED(described)) return described;
    // By the table, so that the calling convention of every method is put to the test.
    const HRESULT called = type->Invoke(static_cast<ISession*>(this), member, kind, parameters,
                                        result, exception, badArgument);
    type->Release();
    return called;
  }

  HRESULT STDMETHODCALLTYPE Unused7() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Unused8() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Load() override {
    text_ = L"loaded";
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Command(BSTR command, BSTR* answer) override {
    return Give(L"command " + std::wstring(command), answer);
  }
  HRESULT STDMETHODCALLTYPE Entry(BSTR entry, BSTR* answer) override {
    return Give(L"entry " + std::wstring(entry), answer);
  }
  HRESULT STDMETHODCALLTYPE Unused12() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Unused13() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Unused14() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Display(BSTR command, LCID, BSTR* answer) override {
    return Give(L"display " + std::wstring(command), answer);
  }
  HRESULT STDMETHODCALLTYPE get_Text(BSTR* text) override { return Give(text_, text); }

 private:
  static HRESULT Give(const std::wstring& text, BSTR* result) {
    *result = SysAllocString(text.c_str());
    return *result == nullptr ? E_OUTOFMEMORY : S_OK;
  }

  std::wstring text_ = L"not loaded";
};

class Factory final : public Counted<IClassFactory> {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override {
    *result = nullptr;
    if (id != IID_IUnknown && id != IID_IClassFactory) return E_NOINTERFACE;
    *result = static_cast<IClassFactory*>(this);
    AddRef();
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** result) override {
    if (outer != nullptr) return CLASS_E_NOAGGREGATION;
    auto* session = new Session;
    const HRESULT answer = session->QueryInterface(id, result);
    session->Release();
    return answer;
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }
};

}  // namespace

extern "C" HRESULT STDAPICALLTYPE DllGetClassObject(REFCLSID classId, REFIID id, void** result) {
  if (classId != __uuidof(TestSession) || CompanionVersion() != 1) return CLASS_E_CLASSNOTAVAILABLE;
  auto* factory = new Factory;
  const HRESULT answer = factory->QueryInterface(id, result);
  factory->Release();
  return answer;
}

extern "C" HRESULT STDAPICALLTYPE DllCanUnloadNow() { return liveObjects == 0 ? S_OK : S_FALSE; }

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD, void*) {
  ownModule = module;
  return TRUE;
}
