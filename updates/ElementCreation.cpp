#include "updates/ElementCreation.h"

#include "common/Numbers.h"
#include "common/Text.h"

namespace updates {
namespace {

constexpr int kLongestRemark = 124;

}  // namespace

ElementCreation::ElementCreation(hostlib::Library& library, hostlib::ScriptGlobal& global,
                                 hostlib::TerminalSession& session, errors::ErrorHandler& errors,
                                 common::RunEnd& runEnd, fares::DateHelpers& dates,
                                 BackOfficeRemark& backOffice, const settings::Settings& settings,
                                 const tst::TSTGeneral& general, const tst::TSTCollection& tsts,
                                 const pnr::PNRInfo& pnr, const pnr::MCOInfo& mco)
    : builders_(library, errors, dates, settings, general, pnr, mco),
      backOffice_(backOffice),
      entry_(library, global, session, errors, runEnd),
      errors_(errors),
      settings_(settings),
      tsts_(tsts),
      pnr_(pnr),
      mco_(mco) {}

void ElementCreation::EnterPNRElements(bool newPWCT, std::wstring_view officeID) {
  errors_.Run(errors::procedures::kEnterPNRElements, [&] {
    elements_.clear();
    CreateElements(newPWCT, officeID);
    entry_.Send(elements_);
  });
}

void ElementCreation::CreateElements(bool newPWCT, std::wstring_view officeID) {
  AddFOElements();
  AddPassengerElements(pnr_.blnFPExists, &tst::TSTInfo::strFPElementValue,
                       &ElementBuilders::CreateFPElement);
  AddPassengerElements(pnr_.blnFVExists, &tst::TSTInfo::strFVElementValue,
                       &ElementBuilders::CreateFVElement);
  AddPassengerElements(pnr_.blnFMExists, &tst::TSTInfo::strFMElementValue,
                       &ElementBuilders::CreateFMElement);
  if (newPWCT) AddRemark(L"PWCT " + pnr_.strRMPWCTAction);
  if (!pnr_.strRMBODInfo.empty()) AddRemark(L"*" + pnr_.strRMBODInfo);
  if (settings_.blnAddOP) Add(builders_.CreateOPElement());
  AddRemark(PTATotalRemark());
  if (pnr_.blnLH) {
    AddRemark(common::Joined({L"PLS ACK PTA FROM ", pnr_.strResponsibleOffice, L" TO ", officeID}));
  }
  const std::wstring money = backOffice_.CreateRMStarElement();
  if (!money.empty()) AddRemark(money);
}

void ElementCreation::AddFOElements() {
  Add(builders_.CreateFOElement(PassengerType()));
  if (mco_.blnInf) Add(builders_.CreateFOElement(kInfant));
}

// `value` is what a TST holds of this kind of element.
void ElementCreation::AddPassengerElements(bool exists, std::wstring tst::TSTInfo::*value,
                                           Creator create) {
  if (!exists) {
    Add((builders_.*create)(PassengerType(), mco_.strPasAsso));
    if (mco_.blnInf) Add((builders_.*create)(kInfant, mco_.strPasAsso));
    return;
  }
  for (const tst::TSTInfo& tst : tsts_) {
    if (tst.strFare.empty() || !(tst.*value).empty()) continue;
    Add((builders_.*create)(tst.blnInf ? kInfant : PassengerType(), tst.strPasAsso));
  }
}

void ElementCreation::AddRemark(std::wstring_view text) {
  std::wstring element = builders_.CreateRMElement(text);
  if (common::Length(element) > kLongestRemark) element = builders_.DivideRMString(element);
  Add(std::move(element));
}

void ElementCreation::Add(std::wstring element) {
  if (!element.empty()) elements_.push_back(std::move(element));
}

std::wstring ElementCreation::PTATotalRemark() const {
  const std::wstring_view mark = settings_.blnAddRMTotalinBOD ? L"*" : L"";
  std::wstring fee;
  if (mco_.dblMCOFee != 0) {
    fee = common::Joined({L" + ", mco_.strCurrency, common::HostNumberText(mco_.dblMCOFee), L"XP"});
  }
  return common::Joined({mark, L"PTA TTL ", pnr_.strRMPTATotal, fee});
}

std::wstring_view ElementCreation::PassengerType() const {
  return mco_.blnInf ? kAdult : std::wstring_view();
}

}  // namespace updates
