#pragma once

#include <windows.h>
// The order matters: windows.h first.
#include <oleauto.h>

#include <string>

#include "hostlib/Object.h"

namespace hostlib::com {

/// The system's words for a result, or its number when the system has none.
std::wstring TextOf(HRESULT result);

/// A failure of the link itself, in the system's words after `what` when there is any, and with
/// what it tells about the call.
[[noreturn]] void ThrowLinkError(HRESULT result, const std::wstring& what = {});
inline void Check(HRESULT result, const std::wstring& what = {}) {
  if (FAILED(result)) ThrowLinkError(result, what);
}

/// Whether a question about the library's types was answered. Throws when the link failed, so that
/// a terminal that goes away is not taken for one that lacks what was asked for.
bool IsAnswered(HRESULT result);
/// ... and only throws.
void CheckLink(HRESULT result);
/// ... and throws for every failure.
void CheckAnswered(HRESULT result);
/// A failure before the call itself: nothing of it has been sent.
void CheckBeforeCall(HRESULT result, const std::wstring& what);
/// The failure is one of the link: a later try may go well.
bool IsOfTheLink(const LibraryError& error);

/// A value of a kind that this system's values can't hold, or not in this place.
[[noreturn]] void ThrowMismatch(const std::wstring& detail);

/// What the called object says about its failure; fetches what the object left for later.
class ExceptionInfo {
 public:
  ExceptionInfo() = default;
  ~ExceptionInfo();
  ExceptionInfo(const ExceptionInfo&) = delete;
  ExceptionInfo& operator=(const ExceptionInfo&) = delete;

  EXCEPINFO* Out() { return &info_; }
  /// The failure that the object raised.
  LibraryError Error();

 private:
  EXCEPINFO info_{};
};

}  // namespace hostlib::com
