#include "common/Text.h"
#include "practice/library/Objects.h"

namespace practice::objects {
namespace {

using hostlib::Arguments;
using hostlib::LibraryError;
using hostlib::Value;

constexpr int kLongestSingleEntry = 75;

/// Carries texts to the host.
class SessionObject : public PracticeObject {
 public:
  explicit SessionObject(Workshop& workshop)
      : PracticeObject(hostlib::operations::terminal_session::kClass, &workshop.lastError),
        workshop_(workshop) {
    using namespace hostlib::operations::terminal_session;
    On(kLoadPNR, [this](const Arguments&) { return LoadPnr(); });
    On(kSendCommand, [this](const Arguments& a) { return Value(Send(a[0].Text())); });
    On(kSendEntry, [this](const Arguments& a) { return Value(SendShort(a[0].Text())); });
    On(kSendDisplay, [this](const Arguments& a) { return Value(Send(a[0].Text())); });
    On(kSessionText, [](const Arguments&) { return Value(L"PRACTICE A"); });
    On(kSendEntryChecked,
       [this](const Arguments& a) { return Value(IsAccepted(Send(a[0].Text()))); });
  }

 private:
  std::wstring Send(const std::wstring& entry) {
    if (lost_) throw Lost(LibraryError::Outcome::kNotSent);
    try {
      return workshop_.with.host.Enter(entry);
    } catch (const SessionLost&) {
      lost_ = true;
      throw Lost(LibraryError::Outcome::kInterrupted);
    }
  }

  static LibraryError Lost(LibraryError::Outcome outcome) {
    return {kSessionLost, L"Practice library", L"The session to the host was lost", outcome};
  }

  std::wstring SendShort(const std::wstring& entry) {
    if (common::Length(entry) > kLongestSingleEntry) {
      RaiseFailure(kEntryTooLong, L"An entry of more than 75 characters must go as a command");
    }
    return Send(entry);
  }

  Value LoadPnr() {
    workshop_.loaded.reset();
    const std::wstring answer = Send(L"RT");
    workshop_.loaded = ReadPnrDisplay(answer);
    if (!workshop_.loaded) {
      RaiseFailure(kNoPnr, L"The PNR can not be read: " + display_lines::FirstLine(answer));
    }
    return {};
  }

  // The entries whose success is asked for redisplay the PNR, or confirm in a word.
  static bool IsAccepted(std::wstring_view answer) {
    return ReadPnrDisplay(answer) || answer == L"OK";
  }

  Workshop& workshop_;
  bool lost_ = false;
};

}  // namespace

hostlib::ObjectPtr MakeTerminalSession(Workshop& workshop) {
  if (!workshop.options.sessionRunning) {
    RaiseFailure(kNoSession, L"No terminal session is running");
  }
  return workshop.Make<SessionObject>(workshop);
}

}  // namespace practice::objects
