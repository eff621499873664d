#pragma once

#include <string>
#include <vector>

#include "hostlib/Interposer.h"

namespace hostlib {

/// Writes a line for every call, in order:
///   PnrReader.1.29 GetRecordLocator() -> "ABC123"
///   ParameterBag.1.7 SetValue("strKeyPNRElement", "ALL")
///   TerminalSession.1.11 SendEntry("TQT") !> the words of the failure
/// and, when asked for, "+ class" and "- class" as objects come and go.
class Recorder : public CallHook {
 public:
  enum class Objects { kLeaveOut, kShow };
  explicit Recorder(Objects objects = Objects::kLeaveOut) : objects_(objects) {}

  void ObjectCreated(std::wstring_view className) override;
  void ObjectReleased(std::wstring_view className) override;
  Value OnCall(const CallInfo& call, const std::function<Value()>& proceed) override;

  const std::vector<std::wstring>& lines() const { return lines_; }
  void Clear() { lines_.clear(); }
  /// Objects made and not yet released.
  int LiveObjects() const { return live_; }

 private:
  Objects objects_;
  std::vector<std::wstring> lines_;
  int live_ = 0;
};

}  // namespace hostlib
