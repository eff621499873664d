#include "practice/terminal/ClassObjects.h"

#include <atomic>

#include "practice/terminal/ComObject.h"
#include "practice/terminal/Failures.h"

namespace practice::terminal {
namespace {

/// Makes the objects of one class. Called on any thread.
class ClassFactory final : public IClassFactory {
 public:
  ClassFactory(const LibraryClass& kind, hostlib::Library& library, Exporter& exporter,
               const MainThread& main)
      : kind_(kind), library_(library), exporter_(exporter), main_(main) {}

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
    const ClientPtr client = Client::Calling();
    ComPtr<IStream> passed;
    HRESULT made = CO_E_SERVER_STOPPING;
    main_.Run([&] { made = Make(client, id, passed); });
    if (FAILED(made)) return made;
    return CoGetInterfaceAndReleaseStream(passed.Detach(), id, result);
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override {
    const bool done = main_.Run([&] {
      if (lock != FALSE) {
        exporter_.life().Hold();
      } else {
        exporter_.life().LetGo();
      }
    });
    return done ? S_OK : CO_E_SERVER_STOPPING;
  }

 private:
  ~ClassFactory() = default;

  HRESULT Make(const ClientPtr& client, REFIID id, ComPtr<IStream>& passed) {
    const Exporter::Serving serving(exporter_, client);
    HRESULT marshalled = E_FAIL;
    const HRESULT made = Guarded([&] {
      const ComPtr<IDispatch> object = exporter_.Outward(library_.Create(kind_.name));
      marshalled = CoMarshalInterThreadInterfaceInStream(id, object.Get(), &passed);
    });
    return FAILED(made) ? made : marshalled;
  }

  std::atomic<ULONG> references_ = 1;
  const LibraryClass& kind_;
  hostlib::Library& library_;
  Exporter& exporter_;
  const MainThread& main_;
};

}  // namespace

ClassObjects::ClassObjects(hostlib::Library& library, Exporter& exporter)
    : library_(library),
      exporter_(exporter),
      ready_(CreateEventW(nullptr, TRUE, FALSE, nullptr)),
      end_(CreateEventW(nullptr, TRUE, FALSE, nullptr)),
      ended_(CreateEventW(nullptr, TRUE, FALSE, nullptr)),
      thread_([this] { Offer(); }) {
  WaitForSingleObject(ready_, INFINITE);
  if (registered_) return;
  thread_.join();
  throw common::RunTimeError(L"COM does not take the practice library's classes");
}

ClassObjects::~ClassObjects() {
  SetEvent(end_);
  // Requests that are under way, and the other apartment's last references, wait for this thread.
  DWORD index = 0;
  while (CoWaitForMultipleHandles(0, INFINITE, 1, &ended_, &index) == RPC_S_CALLPENDING) {
  }
  thread_.join();
  for (const HANDLE event : {ready_, end_, ended_}) CloseHandle(event);
}

void ClassObjects::Offer() {
  CoInitializeEx(nullptr, COINIT_MULTITHREADED);
  registered_ = RegisterAll();
  SetEvent(ready_);
  if (registered_) WaitForSingleObject(end_, INFINITE);
  RevokeAll();
  CoUninitialize();
  SetEvent(ended_);
}

bool ClassObjects::RegisterAll() {
  for (const LibraryClass& kind : LibraryClasses()) {
    if (kind.use == ClassUse::kNonCreatable) continue;
    ComPtr<IClassFactory> factory;
    factory.Attach(new ClassFactory(kind, library_, exporter_, main_));
    DWORD cookie = 0;
    // Suspended until all of them stand, so that no client meets half a library.
    if (FAILED(CoRegisterClassObject(kind.id, factory.Get(), CLSCTX_LOCAL_SERVER,
                                     REGCLS_MULTIPLEUSE | REGCLS_SUSPENDED, &cookie))) {
      return false;
    }
    cookies_.push_back(cookie);
  }
  return SUCCEEDED(CoResumeClassObjects());
}

void ClassObjects::RevokeAll() {
  for (const DWORD cookie : cookies_) CoRevokeClassObject(cookie);
  cookies_.clear();
}

}  // namespace practice::terminal
