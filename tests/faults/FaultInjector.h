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
/// fail. Writes the entries into the timeline, and knows when a box is to show the last error and
/// what that says.
class FaultInjector : public hostlib::CallHook {
 public:
  FaultInjector(Fault fault, common::MessageBoxes& boxes, Timeline& timeline)
      : fault_(fault), boxes_(boxes), timeline_(timeline) {}

  /// Every call of an undisturbed run: the places where a fault can be put. Of a disturbed one
  /// nobody asks, and there are tens of thousands.
  const std::vector<CallSite>& sites() const { return sites_; }
  bool HasStruck() const { return struck_; }
  /// Of the box that stands on the screen now, when it is to show the library's last error.
  const std::optional<LastErrorShown>& lastErrorShown() const { return shown_; }
  /// Where the injector asks what the last error says when it is none of its own.
  void AskOfLastErrors(hostlib::Library& library, hostlib::Library& other) {
    library_ = &library;
    other_ = &other;
  }

  void BeforeCreation(std::wstring_view className);
  hostlib::Value OnCall(const hostlib::CallInfo& call,
                        const std::function<hostlib::Value()>& proceed) override;

  /// Another library has taken the place of the one that is gone.
  bool IsReplaced() const { return struck_ && fault_.way == Way::kLibraryReplaced; }
  /// A call to an object of that one.
  hostlib::Value OnCallOfTheOther(const hostlib::CallInfo& call,
                                  const std::function<hostlib::Value()>& proceed);

 private:
  struct LastError {
    std::int32_t number;
    std::wstring text;
  };

  hostlib::Value Perform(const hostlib::CallInfo& call,
                         const std::function<hostlib::Value()>& proceed);
  hostlib::Value Strike(const std::function<hostlib::Value()>& proceed);
  void FailIfDown(bool isReporter, bool isSession);
  hostlib::Value Report(const hostlib::CallInfo& call, bool wasRead,
                        const std::function<hostlib::Value()>& proceed);
  hostlib::Value ShowLastError(bool byProgram, const std::function<hostlib::Value()>& proceed);
  std::wstring LastErrorText() const;
  [[noreturn]] void Fail(bool withNumber);
  bool IsUndisturbed() const { return fault_.place == 0; }

  Fault fault_;
  common::MessageBoxes& boxes_;
  Timeline& timeline_;
  std::vector<CallSite> sites_;
  int calls_ = 0;
  bool struck_ = false;
  std::optional<LastError> lastError_;
  bool lastErrorRead_ = false;  ///< by the call before this one: it is about to be shown
  std::optional<LastErrorShown> shown_;
  hostlib::Library* library_ = nullptr;
  hostlib::Library* other_ = nullptr;
};

/// A library with the injector before it, and the other one that may take its place.
class FaultyLibrary : public hostlib::Library {
 public:
  FaultyLibrary(hostlib::Library& inner, hostlib::Library& other, FaultInjector& injector)
      : injector_(injector),
        hooked_(inner, injector),
        hookOfTheOther_(injector),
        other_(other, hookOfTheOther_) {
    injector.AskOfLastErrors(inner, other);
  }
  hostlib::ObjectPtr Create(std::wstring_view className) override {
    injector_.BeforeCreation(className);
    return injector_.IsReplaced() ? other_.Create(className) : hooked_.Create(className);
  }

 private:
  class HookOfTheOther : public hostlib::CallHook {
   public:
    explicit HookOfTheOther(FaultInjector& injector) : injector_(injector) {}
    hostlib::Value OnCall(const hostlib::CallInfo& call,
                          const std::function<hostlib::Value()>& proceed) override {
      return injector_.OnCallOfTheOther(call, proceed);
    }

   private:
    FaultInjector& injector_;
  };

  FaultInjector& injector_;
  hostlib::InterposedLibrary hooked_;
  HookOfTheOther hookOfTheOther_;
  hostlib::InterposedLibrary other_;
};

}  // namespace faults
