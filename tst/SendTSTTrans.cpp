#include "tst/SendTSTTrans.h"

#include <algorithm>

#include "common/ConstDefintions.h"
#include "common/Text.h"
#include "tst/frmSelectTST.h"

namespace tst {

using hostlib::ParameterBag;
using hostlib::TstListRequest;
namespace procedures = errors::procedures;

SendTSTTrans::SendTSTTrans(hostlib::Library& library, hostlib::TerminalSession& session,
                           hostlib::ScriptGlobal& global, errors::ErrorHandler& errors,
                           const errors::StopFlag& stop, ui::Desktop& desktop,
                           common::RunEnd& runEnd, ui::frmWorking& working, TSTRecords records,
                           TSTDetailReader& details, fares::Totals& sums)
    : library_(library),
      session_(session),
      global_(global),
      errors_(errors),
      stop_(stop),
      desktop_(desktop),
      runEnd_(runEnd),
      working_(working),
      records_(records),
      details_(details),
      sums_(sums) {}

void SendTSTTrans::ReadTSTList() {
  errors_.Run(procedures::kReadTSTList, [&] {
    Reset();
    DisplayList();
    records_.mco.blnAllTSTs = true;
    TSTList list = ReadList();
    if (list.isList && list.count == 1) ReplaceByItsOnlyTST(list);
    if (list.isList) {
      ReadPickedTSTs(list);
    } else if (list.found) {
      records_.mco.blnMultTST = false;
      details_.ReadCurrentTST(currentResponse_);
    }
    // A failure has been reported and the run is to end: nothing is derived, and no second box
    // shown, from what was read by halves.
    if (stop_.isSet) return;
    if (!list.isList && !list.found) errors_.Report(procedures::kNoActiveTST);
    DeriveMCOData();
  });
}

void SendTSTTrans::Reset() {
  records_.mco.blnInf = false;
  lastTransaction_.clear();
  currentResponse_.clear();
  records_.pnr.blnFVExists = false;
  records_.pnr.blnFMExists = false;
  records_.tsts = TSTCollection();
}

void SendTSTTrans::DisplayList() {
  TstListRequest request(library_);
  lastTransaction_ = request.BuildListCommand();
  session_.SendSingle(lastTransaction_);
}

void SendTSTTrans::Display(TstListRequest& request, const ParameterBag& bag) {
  lastTransaction_ = request.BuildDisplayCommand(bag);
  currentResponse_ = session_.SendDisplay(lastTransaction_);
}

TSTList SendTSTTrans::ReadList() {
  const ParameterBag bag(library_);
  TstListRequest request(library_);
  Display(request, bag);
  TSTList list = ReadTSTListAnswer(global_, request.ReadResponse(currentResponse_));
  selectedTSTs_ = list.tstNumber;
  return list;
}

void SendTSTTrans::ReplaceByItsOnlyTST(TSTList& list) {
  ParameterBag bag(library_);
  TstListRequest request(library_);
  bag.SetValue(L"strKeyTSTNum", RowOf(list.tstNumbers, 1));
  Display(request, bag);
  const ParameterBag answer = request.ReadResponse(currentResponse_);
  list.found = true;
  list.isList = global_.FlagIn(answer, L"blnKeyTSTList");
  selectedTSTs_ = global_.TextIn(answer, L"strKeyTSTNum");
}

void SendTSTTrans::ReadPickedTSTs(const TSTList& list) {
  records_.mco.blnMultTST = true;
  if (list.count < 2) return;
  SelectTSTFromList(list.segments, list.tstNumbers, list.persons, list.fops);
  for (int row = 1; row <= list.segments.UpperBound() && !stop_.isSet; ++row) {
    const std::wstring& tstNumber = RowOf(list.tstNumbers, row);
    if (IsPicked(tstNumber)) ReadPickedTST(tstNumber, RowOf(list.segments, row));
  }
}

bool SendTSTTrans::IsPicked(const std::wstring& tstNumber) const {
  return std::ranges::find(selectedTSTArray_, tstNumber) != selectedTSTArray_.end();
}

// Only TSTs of the first one's segment selection belong together; the others are passed over.
void SendTSTTrans::ReadPickedTST(const std::wstring& tstNumber, const std::wstring& segment) {
  std::wstring& segments = records_.mco.strSegAsso;
  if (segments.empty()) segments = segment;
  if (segment.empty() || segments != segment) return;
  records_.general.strSegAsso = segments;
  {
    ParameterBag bag(library_);
    TstListRequest request(library_);
    bag.SetValue(L"strKeyTSTNum", tstNumber);
    Display(request, bag);
  }
  details_.ReadCurrentTST(currentResponse_);
}

void SendTSTTrans::DeriveMCOData() {
  sums_.JoinTaxes();
  pnr::MCOInfo& mco = records_.mco;
  const TSTGeneral& general = records_.general;
  mco.strFlightInfo =
      common::Joined({general.strFirstFlightNo, L" ", general.strFirstTravelDate, L" ",
                      records_.pnr.strOrigin, L" ", records_.pnr.strDestination});
  if (mco.strAirlineCode.empty()) mco.strAirlineCode = common::Left(general.strFirstFlightNo, 2);
  mco.strPasAsso = global_.FormatAssociation(mco.strPasAsso);
  if (common::Contains(common::Trim(mco.strSegAsso), L" + ")) mco.strSegAsso.clear();
  const bool hasNoTotal = fares::AmountIn(mco.strTotalFare) == 0;
  if (hasNoTotal && mco.blnReissue) sums_.CalculateTotalFare();
}

void SendTSTTrans::SelectTSTFromList(const hostlib::TextArray& segments,
                                     const hostlib::TextArray& tstNumbers,
                                     const hostlib::TextArray& persons,
                                     const hostlib::TextArray& fops) {
  errors_.Run(procedures::kSelectTST, [&] {
    frmSelectTST form(desktop_, runEnd_);
    for (int row = 1; row <= segments.UpperBound(); ++row) {
      form.addTSTtoList(RowOf(tstNumbers, row), RowOf(segments, row), RowOf(persons, row),
                        RowOf(fops, row));
    }
    desktop_.ShowModal(form);
    selectedTSTs_ = form.blnOK ? form.getStrSelectedTSTs() : std::wstring();
    selectedTSTArray_ = form.getStrArraySelectedTSTs();
    working_.SetCaption(common::kTitle);
    desktop_.Show(working_);
  });
}

void SendTSTTrans::SendTQTP() {
  errors_.Run(procedures::kSendTQTP, [&] {
    TstListRequest request(library_);
    lastTransaction_ = request.BuildPricingCommand();
    session_.SendSingle(lastTransaction_);
  });
}

}  // namespace tst
