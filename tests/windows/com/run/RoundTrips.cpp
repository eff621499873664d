#include "tests/windows/com/run/RoundTrips.h"

namespace com_run {
namespace {

constexpr GUID kExtension{
    0x3cf0a7e2, 0x51d4, 0x4a0b, {0x9a, 0x6f, 0x21, 0x7d, 0x4e, 0x88, 0x10, 0x5c}};
std::atomic<int> count = 0;

/// Asked before every call how much it wants to add to it: nothing.
class Hook : public IChannelHook {
 public:
  virtual ~Hook() = default;
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** result) override {
    *result = static_cast<IChannelHook*>(this);
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }

  void STDMETHODCALLTYPE ClientGetSize(REFGUID, REFIID, ULONG* size) override {
    ++count;
    *size = 0;
  }
  void STDMETHODCALLTYPE ClientFillBuffer(REFGUID, REFIID, ULONG*, void*) override {}
  void STDMETHODCALLTYPE ClientNotify(REFGUID, REFIID, ULONG, void*, DWORD, HRESULT) override {}
  void STDMETHODCALLTYPE ServerNotify(REFGUID, REFIID, ULONG, void*, DWORD) override {}
  void STDMETHODCALLTYPE ServerGetSize(REFGUID, REFIID, HRESULT, ULONG* size) override {
    *size = 0;
  }
  void STDMETHODCALLTYPE ServerFillBuffer(REFGUID, REFIID, ULONG*, void*, HRESULT) override {}
};

}  // namespace

void RoundTrips::Watch() {
  static Hook hook;
  static const HRESULT registered = CoRegisterChannelHook(kExtension, &hook);
  static_cast<void>(registered);
}

int RoundTrips::Count() { return count; }

}  // namespace com_run
