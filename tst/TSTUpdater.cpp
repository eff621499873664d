#include "tst/TSTUpdater.h"

#include "common/Text.h"

namespace tst {

using hostlib::ParameterBag;
namespace procedures = errors::procedures;

TSTUpdater::TSTUpdater(hostlib::Library& library, hostlib::TerminalSession& session,
                       hostlib::ScriptGlobal& global, errors::ErrorHandler& errors,
                       const TSTGeneral& general, TSTCollection& tsts)
    : library_(library),
      session_(session),
      global_(global),
      errors_(errors),
      general_(general),
      tsts_(tsts) {}

void TSTUpdater::UpdateTST() {
  errors_.Run(procedures::kUpdateTST, [&] {
    for (TSTInfo& tst : tsts_) {
      if (!tst.strTSTNum.empty()) UpdateOne(tst);
    }
  });
}

void TSTUpdater::UpdateOne(TSTInfo& tst) {
  std::wstring answer;
  {
    ParameterBag bag(library_);
    hostlib::TstUpdateRequest request(library_);
    FillBag(bag, tst);
    answer = session_.SendSingle(BuildCommand(request, bag, tst));
  }
  if (!IsAccepted(answer)) errors_.ReportRefusal(procedures::kUpdateTST);
}

void TSTUpdater::FillBag(ParameterBag& bag, TSTInfo& tst) {
  const hostlib::TextArray taxes = TaxesOf(tst);
  if (tst.strFareIndicator.empty()) tst.strFareIndicator = L"F";
  bag.SetValue(L"strKeyTSTNum", tst.strTSTNum);
  bag.SetValue(L"strKeyFare", tst.strFare);
  bag.SetValue(L"strKeyFareIndicator", tst.strFareIndicator);
  bag.SetValue(L"strKeyEquivFare", tst.strEquivalentFare);
  bag.SetValue(L"strKeyTaxArray", taxes);
  bag.SetValue(L"blnKeyPTA", true);
  bag.SetValue(L"strKeyNotValidAfter", general_.strFirstTravelDate);
}

// The first empty entry ends the list.
hostlib::TextArray TSTUpdater::TaxesOf(const TSTInfo& tst) {
  hostlib::TextArray taxes;
  for (int field = 1;; ++field) {
    std::wstring tax = common::Trim(global_.GetField(tst.strTaxList, field, L";"));
    if (tax.empty()) return taxes;
    taxes.items.push_back(std::move(tax));
  }
}

std::wstring TSTUpdater::BuildCommand(hostlib::TstUpdateRequest& request, const ParameterBag& bag,
                                      const TSTInfo& tst) {
  // Each piece in a statement of its own: the library is called in this order.
  std::wstring command = request.BuildTSTEntry(bag);
  command += L"/" + request.BuildFareEntry(bag);
  if (!tst.strXFTax.empty()) command += L"/C+PD XF " + tst.strXFTax;
  if (general_.strNotValidAfterDate.empty()) command += L"/" + request.BuildValidityEntry(bag);
  return command;
}

bool TSTUpdater::IsAccepted(const std::wstring& answer) {
  hostlib::TstListRequest request(library_);
  const ParameterBag bag = request.ReadResponse(answer);
  const bool isTST = global_.FlagIn(bag, L"blnKeyTST");
  const bool isList = global_.FlagIn(bag, L"blnKeyTSTList");
  return isTST || isList;
}

}  // namespace tst
