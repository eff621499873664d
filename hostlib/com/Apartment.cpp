#include "hostlib/com/Apartment.h"

#include <wrl/client.h>

#include <atomic>

#include "common/ConstDefintions.h"
#include "hostlib/com/Failures.h"

namespace hostlib::com {
namespace {

using Microsoft::WRL::ComPtr;

class BusyFilter : public IMessageFilter {
 public:
  explicit BusyFilter(BusyPolicy policy) : policy_(std::move(policy)) {}
  virtual ~BusyFilter() = default;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override {
    if (result == nullptr) return E_POINTER;
    const bool isOurs = id == IID_IUnknown || id == IID_IMessageFilter;
    *result = isOurs ? static_cast<IMessageFilter*>(this) : nullptr;
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

  DWORD STDMETHODCALLTYPE HandleInComingCall(DWORD, HTASK, DWORD, LPINTERFACEINFO) override {
    return SERVERCALL_ISHANDLED;
  }
  DWORD STDMETHODCALLTYPE RetryRejectedCall(HTASK, DWORD sinceItsStart, DWORD) override {
    try {
      return static_cast<DWORD>(policy_.AfterRejection(sinceItsStart));
    } catch (...) {
      // Nothing may leave through the system. This is never the end of the run nor anything else of
      // its own: while a call is out no handler of a form runs, since the gate is shut or only the
      // progress form is there, which has none. What has failed is the question itself, and the
      // step whose call is given up reports that.
      return static_cast<DWORD>(BusyPolicy::kGiveUp);
    }
  }
  DWORD STDMETHODCALLTYPE MessagePending(HTASK, DWORD, DWORD) override {
    return PENDINGMSG_WAITDEFPROCESS;
  }

 private:
  std::atomic<ULONG> references_ = 0;
  BusyPolicy policy_;
};

}  // namespace

Apartment::Apartment(BusyPolicy::Question tryAgain) {
  Check(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE),
        L"The link to the script library could not be set up");
  const ComPtr<IMessageFilter> filter(
      new BusyFilter(BusyPolicy([] { return GetTickCount(); }, std::move(tryAgain))));
  CoRegisterMessageFilter(filter.Get(), nullptr);
}

Apartment::~Apartment() {
  CoRegisterMessageFilter(nullptr, nullptr);
  CoUninitialize();
}

bool AskToTryAgain(common::MessageBoxes& boxes) {
  return boxes.ShowBox(
             L"The Vantel session is busy and does not take the next step.\r\r"
             L"Finish what it is waiting for, then choose Retry. Cancel gives the step up.",
             common::kRetryCancel + common::kExclamation, common::kTitle) == common::kRetry;
}

}  // namespace hostlib::com
