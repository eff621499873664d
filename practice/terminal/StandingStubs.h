#pragma once

#include <windows.h>
#include <wrl/client.h>

namespace practice::terminal {

/// Stubs that nobody uses, one for every interface by which clients come in. They stand as long as
/// this.
///
/// COM registers an interface with the first stub for it and takes it back with the last. To take
/// it back, Wine waits under a lock for the interface's calls, and loses the news when the last of
/// them ends at that very moment: no client gets an object any more. With a stub that stays, no
/// interface is ever taken back.
class StandingStubs {
 public:
  /// On a thread with an apartment.
  StandingStubs();
  ~StandingStubs();
  StandingStubs(const StandingStubs&) = delete;
  StandingStubs& operator=(const StandingStubs&) = delete;

 private:
  Microsoft::WRL::ComPtr<IUnknown> holder_;
};

}  // namespace practice::terminal
