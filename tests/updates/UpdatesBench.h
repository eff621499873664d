#pragma once

#include <initializer_list>

#include "hostlib/Requests.h"
#include "pnr/MCOInfo.h"
#include "pnr/PNRInfo.h"
#include "settings/Settings.h"
#include "tests/support/RoomBench.h"
#include "tst/TSTCollection.h"
#include "tst/TSTGeneral.h"

namespace updates {

using Lines = std::vector<std::wstring>;

/// How many library objects are held when the run ends.
class ReleaseWatchingRunEnd : public common::RunEnd {
 public:
  explicit ReleaseWatchingRunEnd(const hostlib::Recorder& recorder) : recorder_(recorder) {}
  void UnloadForms() override { ADD_FAILURE() << "an update is not the run's last step"; }
  [[noreturn]] void EndScript() override {
    heldAtEnd = recorder_.LiveObjects();
    throw support::EndedByEndScript();
  }
  [[noreturn]] void EndAtOnce() override { throw support::EndedAtOnce(); }

  int heldAtEnd = -1;

 private:
  const hostlib::Recorder& recorder_;
};

/// A bench with the records that the updates read, and a host that accepts everything.
struct UpdatesBench : support::RoomBench {
  UpdatesBench() {
    using namespace hostlib::operations;
    scripted.Answer(terminal_session::kSendEntry, L"ANSWER");
    scripted.Answer(terminal_session::kSendCommand, L"LONG ANSWER");
    settings.strSymbol = L",";
  }

  /// The operation gives a bag with this flag in it, every time.
  void AnswerFlag(const hostlib::Operation& operation, std::wstring_view key, bool flag) {
    scripted.Answer(operation, hostlib::ObjectPtr(scripted.Bag({{key, flag}})));
  }

  /// From now on the transcript shows objects too. The global object is there already.
  void ShowObjects() {
    global.ToText(L"");
    recorder = hostlib::Recorder(hostlib::Recorder::Objects::kShow);
  }

  /// The calls of this operation so far, by object and name, e.g. L"TerminalSession.1.11".
  Lines CallsOf(std::wstring_view prefix) {
    Lines calls;
    for (const std::wstring& line : recorder.lines()) {
      if (line.starts_with(prefix)) calls.push_back(line);
    }
    return calls;
  }

  pnr::PNRInfo pnr;
  pnr::MCOInfo mco;
  settings::Settings settings;
  tst::TSTGeneral general;
  tst::TSTCollection tsts;
};

/// The reporter's box as the transcript shows it.
inline std::wstring Box(int number, std::wstring_view text, int style) {
  return L"ScriptErrorReporter.1.18 ShowError(" + std::to_wstring(-2147221504 + number) +
         L", \"  PTA Script \", \"" + std::wstring(text) + L"\", " + std::to_wstring(style) + L")";
}

/// The box of a refusal: the first line and the standard text.
inline std::wstring RefusalBox(int number, std::wstring_view firstLine) {
  return Box(number,
             std::wstring(firstLine) +
                 L"\r\rCorvane Central System gave an incorrect response to the last transaction."
                 L"\rPlease verify the response given and correct if possible, or contact your "
                 L"help desk. \rThe program can not continue.",
             48);
}

inline std::wstring Set(std::wstring_view key, const hostlib::Value& value) {
  return L"ParameterBag.1.7 SetValue(\"" + std::wstring(key) + L"\", " + hostlib::Describe(value) +
         L")";
}

/// A flag read as the convention wants it.
inline Lines ReadFlag(std::wstring_view key, bool flag) {
  const std::wstring value = flag ? L"True" : L"False";
  return {L"ParameterBag.1.8 GetValue(\"" + std::wstring(key) + L"\") -> " + value,
          L"ScriptGlobal.1.16 ToBoolean(" + value + L") -> " + value};
}

inline Lines Joined(std::initializer_list<Lines> parts) {
  Lines whole;
  for (const Lines& part : parts) whole.insert(whole.end(), part.begin(), part.end());
  return whole;
}

}  // namespace updates
