#include "practice/terminal/StandingStubs.h"

#include <ocidl.h>
#include <servprov.h>

#include <algorithm>
#include <atomic>
#include <iterator>

namespace practice::terminal {
namespace {

using Microsoft::WRL::ComPtr;

// Activation comes in by the first three; a script and its binding by the others.
const IID* const kInterfaces[] = {&IID_IUnknown,          &IID_IServiceProvider, &IID_IClassFactory,
                                  &IID_IDispatch,         &IID_ITypeInfo,        &IID_ITypeLib,
                                  &IID_IProvideClassInfo, &IID_ISupportErrorInfo};

/// Says that it has all of them. No stub of it is ever given to a client, so nothing is called.
class Holder : public IUnknown {
 public:
  virtual ~Holder() = default;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override {
    if (result == nullptr) return E_POINTER;
    const bool isOurs =
        id == IID_IUnknown || std::any_of(std::begin(kInterfaces), std::end(kInterfaces),
                                          [&id](const IID* one) { return *one == id; });
    *result = isOurs ? static_cast<IUnknown*>(this) : nullptr;
    if (!isOurs) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

 private:
  std::atomic<ULONG> references_ = 1;
};

}  // namespace

StandingStubs::StandingStubs() {
  holder_.Attach(new Holder());
  for (const IID* id : kInterfaces) {
    ComPtr<IStream> kept;
    // By an interface that can not be marshalled no client comes in, either.
    if (SUCCEEDED(CreateStreamOnHGlobal(nullptr, TRUE, &kept))) {
      CoMarshalInterface(kept.Get(), *id, holder_.Get(), MSHCTX_LOCAL, nullptr,
                         MSHLFLAGS_TABLESTRONG);
    }
  }
}

StandingStubs::~StandingStubs() { CoDisconnectObject(holder_.Get(), 0); }

}  // namespace practice::terminal
