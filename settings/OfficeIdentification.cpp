#include "settings/OfficeIdentification.h"

#include "common/Text.h"
#include "hostlib/Requests.h"

namespace settings {
namespace {

using namespace std::chrono_literals;

constexpr std::wstring_view kApplication = L"PTAStartup";
constexpr std::wstring_view kSection = L"Values";
constexpr std::wstring_view kDate = L"Date";
constexpr std::wstring_view kOfficeID = L"OfficeID";

constexpr int kMostQuestions = 50;
constexpr auto kBetweenQuestions = 100ms;

}  // namespace

OfficeIdentification::OfficeIdentification(hostlib::Library& library, hostlib::ScriptGlobal& global,
                                           hostlib::TerminalSession& session,
                                           errors::ErrorHandler& errors,
                                           const platform::Platform& platform, ui::Desktop& desktop,
                                           IniFile& file)
    : library_(library),
      global_(global),
      session_(session),
      errors_(errors),
      platform_(platform),
      desktop_(desktop),
      file_(file) {}

void OfficeIdentification::IdentifyOffice() {
  bool isToday = false;
  const bool looked =
      errors_.Run(errors::procedures::kFindOffice, [&] { isToday = TakeStoredOffice(); });
  if (!looked || isToday) return;
  errors_.Run(errors::procedures::kSendPV, [&] { AskHost(); });
}

bool OfficeIdentification::TakeStoredOffice() {
  hostlib::UserSettingsStore store(library_);
  const std::wstring date = store.GetSetting(kApplication, kSection, kDate);
  file_.officeSection = store.GetSetting(kApplication, kSection, kOfficeID);
  return !date.empty() && date == Today();
}

void OfficeIdentification::AskHost() {
  hostAsked_ = true;
  WaitForSessionText();
  const std::wstring response = session_.SendCommand(L"PV");
  const hostlib::ParameterBag bag = hostlib::OfficeDisplayReader(library_).ReadResponse(response);
  const std::wstring office = global_.TextIn(bag, L"strKeyOfficeID");
  Store(office);
  // Only now: whatever failed until here leaves the run in the office found last.
  file_.officeSection = office;
}

// The session has no text until it is ready for entries. One that never gets ready must not hold
// the run for ever: the entry then fails by itself, and is reported.
void OfficeIdentification::WaitForSessionText() {
  for (int asked = 1; asked <= kMostQuestions; ++asked) {
    sessionText_ = common::Trim(session_.SessionText());
    if (!sessionText_.empty()) return;
    if (asked < kMostQuestions) desktop_.Pause(kBetweenQuestions);
  }
}

// The office first: a date without its office would keep the host from being asked.
void OfficeIdentification::Store(std::wstring_view office) {
  hostlib::UserSettingsStore store(library_);
  store.SaveSetting(kApplication, kSection, kOfficeID, office);
  store.SaveSetting(kApplication, kSection, kDate, Today());
}

std::wstring OfficeIdentification::Today() const {
  return platform_.ShortDateText(platform_.Today());
}

}  // namespace settings
