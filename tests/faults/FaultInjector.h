#pragma once

#include <optional>
#include <vector>

#include "common/MessageBoxes.h"
#include "hostlib/Interposer.h"
#include "tests/faults/Timeline.h"
#include "tests/faults/Ways.h"

namespace faults {

struct Fault {
  int place = 0;  ///< the call that fails, from 1; 0: none does
  Way way = Way::kErrorWithNumber;
};

/// What the library's last error says when a fault made it fail.
inline constexpr std::wstring_view kFaultText = L"The library failed as it was told to";

/// Stands before a library, counts its calls and the making of its objects, and lets one of them
/// fail. Writes the entries into the timeline and knows when a box shows the last error.
class FaultInjector : public hostlib::CallHook {
 public:
  FaultInjector(Fault fault, common::MessageBoxes& boxes, Timeline& timeline)
      : fault_(fault), boxes_(boxes), timeline_(timeline) {}

  /// Every call so far; an undisturbed run's are the places where a fault can be put.
  const std::vector<CallSite>& sites() const { return sites_; }
  bool HasStruck() const { return struck_; }
  bool ShowsLastError() const { return showsLastError_; }

  void BeforeCreation(std::wstring_view className);
  hostlib::Value OnCall(const hostlib::CallInfo& call,
                        const std::function<hostlib::Value()>& proceed) override;

 private:
  struct LastError {
    std::int32_t number;
    std::wstring text;
  };

  hostlib::Value Perform(const hostlib::CallInfo& call,
                         const std::function<hostlib::Value()>& proceed);
  hostlib::Value Strike(const std::function<hostlib::Value()>& proceed);
  void FailIfDown(bool isReporter, bool isSession);
  hostlib::Value Report(const hostlib::CallInfo& call,
                        const std::function<hostlib::Value()>& proceed);
  [[noreturn]] void Fail(bool withNumber);
  void Note(CallSite site);

  Fault fault_;
  common::MessageBoxes& boxes_;
  Timeline& timeline_;
  std::vector<CallSite> sites_;
  bool struck_ = false;
  std::optional<LastError> lastError_;
  bool lastErrorRead_ = false;
  bool showsLastError_ = false;
};

/// A library with the injector before it.
class FaultyLibrary : public hostlib::Library {
 public:
  FaultyLibrary(hostlib::Library& inner, FaultInjector& injector)
      : hooked_(inner, injector), injector_(injector) {}
  hostlib::ObjectPtr Create(std::wstring_view className) override {
    injector_.BeforeCreation(className);
    return hooked_.Create(className);
  }

 private:
  hostlib::InterposedLibrary hooked_;
  FaultInjector& injector_;
};

}  // namespace faults
