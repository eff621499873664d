#include "pnr/GetPTAPNRinfo.h"

#include "common/Text.h"
#include "pnr/ElementBag.h"

namespace pnr {

using hostlib::ParameterBag;
using hostlib::PnrReader;
namespace procedures = errors::procedures;

GetPTAPNRinfo::GetPTAPNRinfo(hostlib::Library& library, hostlib::ScriptGlobal& global,
                             hostlib::TerminalSession& session, errors::ErrorHandler& errors,
                             fares::DateHelpers& dates, const settings::Settings& settings,
                             const tst::TSTGeneral& general, PNRInfo& pnr, MCOInfo& mco,
                             FollowUpControls followUp)
    : library_(library),
      global_(global),
      session_(session),
      errors_(errors),
      dates_(dates),
      settings_(settings),
      general_(general),
      pnr_(pnr),
      mco_(mco),
      followUp_(followUp) {}

void GetPTAPNRinfo::RetrievePNR() {
  errors_.Run(procedures::kRetrievePNR, [&] { session_.LoadPNR(); });
}

// What is missing is reported as it is found; the reading goes on, so that the agent hears of
// everything at once.
void GetPTAPNRinfo::GetPNRInformation() {
  errors_.Run(procedures::kPNRInformation, [&] {
    PnrReader reader(library_);
    ReadRecordLocator(reader);
    CheckMandatoryElements(reader);
    ReadTKElement(reader);
    ReadFirstSegment(reader);
    if (reader.CountFPElements() > 0) pnr_.blnFPExists = true;
    ReadResponsibleOffice(reader);
  });
}

void GetPTAPNRinfo::ReadRecordLocator(PnrReader& reader) {
  std::wstring locator = reader.GetRecordLocator();
  if (locator.empty()) {
    errors_.Report(procedures::kRecordLocatorMissing);
  } else {
    mco_.strRecordLocator = std::move(locator);
  }
}

void GetPTAPNRinfo::CheckMandatoryElements(PnrReader& reader) {
  const std::wstring& list = settings_.strMandatoryElements;
  if (list.empty()) return;
  std::wstring missing;
  for (int n = 1;; ++n) {
    const std::wstring element = global_.GetField(list, n, L",");
    if (element.empty()) break;
    if (IsInPNR(reader, element)) continue;
    if (!missing.empty()) missing += L", ";
    missing += element;
  }
  if (!missing.empty()) errors_.Report(procedures::kMandatoryMissing, missing);
}

bool GetPTAPNRinfo::IsInPNR(PnrReader& reader, const std::wstring& element) {
  ParameterBag bag(library_);
  bag.SetValue(L"strKeyPNRElement", L"ALL");
  // The library searches from index 1 on, and answers likewise: an array that ends at 0 is its way
  // to say that nothing was found.
  bag.SetValue(L"strKeyFind()", hostlib::TextArray{{L"", element}});
  const ParameterBag result = reader.FindElements(bag);
  return hostlib::TextsOf(result.GetValue(L"strKeyResult()")).UpperBound() != 0;
}

void GetPTAPNRinfo::ReadTKElement(PnrReader& reader) {
  if (reader.CountTKElements() == 0) {
    errors_.Report(procedures::kTKMissing);
    return;
  }
  const ParameterBag bag = ElementBag(library_, 0);
  reader.GetTKElement(bag);
  pnr_.strTKElementNumber = global_.TextIn(bag, L"strKeyElementNr");
  pnr_.strTicketingAction = global_.TextIn(bag, L"strKeyAction");
  pnr_.strTicketingText = global_.TextIn(bag, L"strKeyElement");
}

void GetPTAPNRinfo::ReadFirstSegment(PnrReader& reader) {
  if (reader.CountSegments() < 1) return;
  const ParameterBag bag = ElementBag(library_, 0);
  reader.GetSegment(bag);
  // The cities are always the first segment's: its line is read, but an "OPEN" in it does not move
  // the reading on to the next one.
  global_.TextIn(bag, L"strKeySegment");
  pnr_.strOrigin = global_.TextIn(bag, L"strKeyDepCity");
  pnr_.strDestination = global_.TextIn(bag, L"strKeyArrCity");
}

void GetPTAPNRinfo::ReadResponsibleOffice(PnrReader& reader) {
  const ParameterBag bag(library_);
  reader.GetHeader(bag);
  pnr_.strResponsibleOffice = global_.TextIn(bag, L"strKeyOfficeID");
}

void GetPTAPNRinfo::GetOptionInformation() {
  errors_.Run(procedures::kOption, [&] {
    const std::wstring nextDay = dates_.AddDay(general_.strFirstTravelDate);
    PnrReader reader(library_);
    const int count = reader.CountOPElements();
    for (int i = 0; i < count; ++i) {
      const ParameterBag bag = ElementBag(library_, i);
      reader.GetOPElement(bag);
      const std::wstring option = global_.TextIn(bag, L"strKeyElement");
      // Without a day to look for, every option would be found to hold it.
      if (!nextDay.empty() && common::Contains(option, nextDay)) SwitchFollowUpOff();
    }
  });
}

void GetPTAPNRinfo::SwitchFollowUpOff() {
  followUp_.chkOP.SetValue(false);
  followUp_.chkOP.SetEnabled(false);
  followUp_.lblOPText.SetEnabled(false);
  followUp_.txtOPText.SetEnabled(false);
}

}  // namespace pnr
