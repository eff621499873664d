#include "practice/terminal/ClassObjects.h"

#include "practice/terminal/ComObject.h"
#include "practice/terminal/Failures.h"

namespace practice::terminal {
namespace {

/// Makes the objects of one class.
class ClassFactory final : public IClassFactory {
 public:
  ClassFactory(const LibraryClass& kind, hostlib::Library& library, Exporter& exporter)
      : kind_(kind), library_(library), exporter_(exporter) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override {
    if (result == nullptr) return E_POINTER;
    const bool known = id == IID_IUnknown || id == IID_IClassFactory;
    *result = known ? static_cast<IClassFactory*>(this) : nullptr;
    if (!known) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** result) override {
    if (result == nullptr) return E_POINTER;
    *result = nullptr;
    if (outer != nullptr) return CLASS_E_NOAGGREGATION;
    HRESULT found = E_NOINTERFACE;
    const HRESULT made = Guarded(
        [&] { found = exporter_.Export(library_.Create(kind_.name))->QueryInterface(id, result); });
    return FAILED(made) ? made : found;
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override {
    if (lock != FALSE) {
      exporter_.life().Hold();
    } else {
      exporter_.life().LetGo();
    }
    return S_OK;
  }

 private:
  ~ClassFactory() = default;

  ULONG references_ = 1;
  const LibraryClass& kind_;
  hostlib::Library& library_;
  Exporter& exporter_;
};

}  // namespace

ClassObjects::ClassObjects(hostlib::Library& library, Exporter& exporter) {
  for (const LibraryClass& kind : LibraryClasses()) {
    if (kind.use == ClassUse::kNonCreatable) continue;
    ComPtr<IClassFactory> factory;
    factory.Attach(new ClassFactory(kind, library, exporter));
    DWORD cookie = 0;
    // Suspended until all of them stand, so that no client meets half a library.
    const HRESULT registered =
        CoRegisterClassObject(kind.id, factory.Get(), CLSCTX_LOCAL_SERVER,
                              REGCLS_MULTIPLEUSE | REGCLS_SUSPENDED, &cookie);
    if (FAILED(registered)) {
      RevokeAll();
      throw common::RunTimeError(L"COM does not take the practice library's classes");
    }
    cookies_.push_back(cookie);
  }
  CoResumeClassObjects();
}

ClassObjects::~ClassObjects() { RevokeAll(); }

void ClassObjects::RevokeAll() {
  for (const DWORD cookie : cookies_) CoRevokeClassObject(cookie);
  cookies_.clear();
}

}  // namespace practice::terminal
