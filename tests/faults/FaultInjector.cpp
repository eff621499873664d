#include "tests/faults/FaultInjector.h"

#include <utility>

#include "common/ConstDefintions.h"
#include "hostlib/ScriptErrorReporter.h"

namespace faults {

using hostlib::CallInfo;
using hostlib::LibraryError;
using hostlib::Value;
namespace reporter = hostlib::operations::script_error_reporter;
namespace session = hostlib::operations::terminal_session;

namespace {

constexpr std::int32_t kFaultNumber = 4711;
constexpr auto kServerGone = static_cast<std::int32_t>(0x800706BA);

bool IsEntry(const CallInfo& call) {
  return call.object == session::kClass && !Is(call.operation, session::kSessionText);
}

std::wstring EntryOf(const CallInfo& call) {
  return call.arguments.empty() ? L"RT" : call.arguments[0].Text();
}

/// As long as the box of a last error may stand on the screen.
class Showing {
 public:
  Showing(std::optional<LastErrorShown>& shown, LastErrorShown now) : shown_(shown) {
    shown_ = std::move(now);
  }
  ~Showing() { shown_.reset(); }
  Showing(const Showing&) = delete;
  Showing& operator=(const Showing&) = delete;

 private:
  std::optional<LastErrorShown>& shown_;
};

CallSite SiteOfCreation(std::wstring_view className) {
  CallSite site;
  site.name = L"new " + std::wstring(className);
  site.isCreation = true;
  site.isSession = className == session::kClass;
  return site;
}

CallSite SiteOf(const CallInfo& call) {
  CallSite site;
  site.name = std::wstring(call.object) + L"." +
              std::wstring(call.operation == nullptr ? L"(default)" : call.operation->name);
  site.isSession = call.object == session::kClass;
  site.isBagValue = Is(call.operation, hostlib::operations::parameter_bag::kGetValue);
  if (site.isBagValue) site.name += L" " + call.arguments[0].Text();
  return site;
}

}  // namespace

void FaultInjector::BeforeCreation(std::wstring_view className) {
  ++calls_;
  if (IsUndisturbed()) sites_.push_back(SiteOfCreation(className));
  if (calls_ == fault_.place && fault_.way == Way::kLibraryReplaced) struck_ = true;
  if (IsReplaced()) return;
  FailIfDown(className == reporter::kClass, className == session::kClass);
  if (calls_ == fault_.place) Strike(nullptr);
}

Value FaultInjector::OnCallOfTheOther(const CallInfo& call, const std::function<Value()>& proceed) {
  const bool wasRead = std::exchange(lastErrorRead_, false);
  return call.object == reporter::kClass ? Report(call, wasRead, proceed) : proceed();
}

Value FaultInjector::OnCall(const CallInfo& call, const std::function<Value()>& proceed) {
  ++calls_;
  // What stands inside may call on: its places come after.
  const std::size_t at = sites_.size();
  if (IsUndisturbed()) sites_.push_back(SiteOf(call));
  const std::size_t entry = timeline_.size();
  if (IsEntry(call)) {
    timeline_.push_back({.kind = Event::Kind::kEntry,
                         .text = EntryOf(call),
                         .outcome = Event::Outcome::kBrokeOff,
                         .afterFault = struck_});
  }
  const Value answer = Perform(call, proceed);
  if (IsEntry(call)) timeline_[entry].outcome = Event::Outcome::kAnswered;
  if (IsUndisturbed()) {
    sites_[at].answersObject = answer.IsObject();
    if (!answer.IsObject()) sites_[at].answer = answer;
  }
  return answer;
}

Value FaultInjector::Perform(const CallInfo& call, const std::function<Value()>& proceed) {
  const bool wasRead = std::exchange(lastErrorRead_, false);
  const bool strikes = calls_ == fault_.place;
  const bool isReporter = call.object == reporter::kClass;
  FailIfDown(isReporter, call.object == session::kClass);
  if (isReporter) {
    const auto report = [&] { return Report(call, wasRead, proceed); };
    return strikes ? Strike(report) : report();
  }
  lastError_.reset();
  return strikes ? Strike(proceed) : proceed();
}

Value FaultInjector::Strike(const std::function<Value()>& proceed) {
  struck_ = true;
  switch (fault_.way) {
    case Way::kErrorWithoutNumber:
      Fail(false);
    case Way::kAnswerLost:
      proceed();
      Fail(true);
    case Way::kLibraryGone:
    case Way::kLibraryReplaced:
      throw LibraryError(kServerGone, L"fault", std::wstring(kFaultText),
                         LibraryError::Outcome::kInterrupted);
    default:
      if (IsError(fault_.way)) Fail(true);
      return Spoilt(fault_.way, proceed());
  }
}

// What stays down once the fault has come.
void FaultInjector::FailIfDown(bool isReporter, bool isSession) {
  if (!struck_) return;
  if (fault_.way == Way::kLibraryGone || IsReplaced() ||
      (isReporter && fault_.way == Way::kErrorAndNoReporter)) {
    throw LibraryError(kServerGone, L"fault", std::wstring(kFaultText),
                       LibraryError::Outcome::kNotSent);
  }
  const bool lost = fault_.way == Way::kSessionLost || fault_.way == Way::kAnswerLost;
  if (isSession && lost) Fail(true);
}

// The reporter tells of the fault as it would of a failure of the library's own.
Value FaultInjector::Report(const CallInfo& call, bool wasRead,
                            const std::function<Value()>& proceed) {
  if (Is(call.operation, reporter::kLastErrorText)) {
    lastErrorRead_ = true;
    return lastError_ ? Value(lastError_->text) : proceed();
  }
  if (Is(call.operation, reporter::kLastErrorNumber)) {
    return lastError_ ? Value(lastError_->number) : proceed();
  }
  if (Is(call.operation, reporter::kReportLastError)) return ShowLastError(false, proceed);
  const bool showsIt = wasRead && Is(call.operation, reporter::kShowMessage);
  return showsIt ? ShowLastError(true, proceed) : proceed();
}

Value FaultInjector::ShowLastError(bool byProgram, const std::function<Value()>& proceed) {
  const Showing showing(shown_, {LastErrorText(), byProgram});
  if (byProgram || !lastError_) return proceed();
  boxes_.ShowBox(lastError_->text, common::kCritical, common::kTitle);
  return {};
}

// From the library itself: what the program was told may be what went wrong.
std::wstring FaultInjector::LastErrorText() const {
  if (lastError_) return lastError_->text;
  hostlib::ScriptErrorReporter reporter;
  reporter.Create(IsReplaced() ? *other_ : *library_);
  return reporter.LastErrorText();
}

void FaultInjector::Fail(bool withNumber) {
  if (withNumber) lastError_ = {kFaultNumber, std::wstring(kFaultText)};
  throw LibraryError(kFaultNumber, L"fault", std::wstring(kFaultText));
}

}  // namespace faults
