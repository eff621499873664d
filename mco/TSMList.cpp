#include "mco/TSMList.h"

#include <algorithm>

#include "common/Numbers.h"
#include "common/RunTimeError.h"
#include "hostlib/Requests.h"
#include "mco/frmSelectMCO.h"

namespace mco {

using hostlib::ParameterBag;
namespace procedures = errors::procedures;

namespace {

constexpr common::Literal kFeeKey = L"dblMCOFee";
constexpr std::wstring_view kHostDecimal = L".";

// The first `count` rows, counted from index 0 whatever the array's own bounds are.
template <typename T>
std::vector<T> Rows(const hostlib::Array<T>& list, std::int16_t count) {
  if (count > 0 && (list.lowerBound != 0 || list.UpperBound() < count - 1)) {
    throw common::RunTimeError(L"Subscript out of range");
  }
  return {list.items.begin(), list.items.begin() + std::max<std::int16_t>(count, 0)};
}

}  // namespace

TSMList::TSMList(hostlib::Library& library, hostlib::ScriptGlobal& global,
                 hostlib::TerminalSession& session, errors::ErrorHandler& errors,
                 ui::Desktop& desktop, TSMInfo& tsm, pnr::MCOInfo& mco)
    : library_(library),
      global_(global),
      session_(session),
      errors_(errors),
      desktop_(desktop),
      tsm_(tsm),
      mco_(mco) {}

bool TSMList::GetTSMList(std::int16_t tsmNumber) {
  bool isRead = false;
  errors_.Run(procedures::kTQM, [&] { isRead = ReadDisplay(Display(tsmNumber)); });
  return isRead;
}

ParameterBag TSMList::Display(std::int16_t tsmNumber) {
  ParameterBag bag(library_);
  hostlib::TsmDisplayReader reader(library_);
  // The library expects to be asked once with the bag still empty; that entry is not for sending.
  reader.BuildTQMEntry(bag);
  bag.SetValue(L"blnKeyRedisplayPNR", true);
  if (tsmNumber != 0) bag.SetValue(L"strNoTSM", tsmNumber);
  const std::wstring entry = reader.BuildTQMEntry(bag);
  return reader.ParseTQMResponse(session_.SendCommand(entry), bag);
}

bool TSMList::ReadDisplay(const ParameterBag& display) {
  const bool isOK = global_.FlagIn(display, L"blnKeyDisplayOK");
  const bool isOneTSM = global_.FlagIn(display, L"blnKeyTSMFound");
  const bool hasFee = global_.FlagIn(display, L"blnMCOFeeFound");
  if (!isOK) {
    Reject(procedures::kTQMRefused, display);
    return false;
  }
  if (!isOneTSM) {
    ReadList(display);
    return true;
  }
  if (!hasFee) {
    Reject(procedures::kNoMCOFee, display);
    return false;
  }
  ReadTSM(display);
  return true;
}

void TSMList::ReadTSM(const ParameterBag& display) {
  tsm_.dblMCOFee = common::ToDouble(global_.TextIn(display, kFeeKey), kHostDecimal);
  tsm_.blnTSMFound = true;
  tsm_.blnMCOFeeFound = true;
}

void TSMList::ReadList(const ParameterBag& display) {
  tsm_.blnTSMFound = false;
  tsm_.blnMCOFeeFound = false;
  const std::int16_t count = display.GetValue(L"intNoTSM").Integer();
  const auto numbers = Rows(hostlib::IntegersOf(display.GetValue(L"intTSMListMArray")), count);
  const auto persons = Rows(hostlib::IntegersOf(display.GetValue(L"intTSMListPArray")), count);
  const auto rs = Rows(hostlib::TextsOf(display.GetValue(L"strTSMListRArray")), count);
  const auto ls = Rows(hostlib::TextsOf(display.GetValue(L"strTSMListLArray")), count);
  const auto names = Rows(hostlib::TextsOf(display.GetValue(L"strTSMListNameArray")), count);
  const auto currencies =
      Rows(hostlib::TextsOf(display.GetValue(L"strTSMListCurrencyArray")), count);
  const auto amounts = Rows(hostlib::DoublesOf(display.GetValue(L"dblTSMListAmountArray")), count);
  const auto fops = Rows(hostlib::TextsOf(display.GetValue(L"strTSMListFOPArray")), count);
  // A list seldom carries a fee.
  const std::wstring fee = global_.TextIn(display, kFeeKey);

  tsm_.dblMCOFee = fee.empty() ? 0 : common::ToDouble(fee, kHostDecimal);
  tsm_.intNoTSM = count;
  tsm_.SetArrIntM(numbers);
  tsm_.SetArrStrR(rs);
  tsm_.SetArrIntP(persons);
  tsm_.SetArrStrL(ls);
  tsm_.SetArrStrName(names);
  tsm_.SetArrStrCurrency(currencies);
  tsm_.SetArrDblAmount(amounts);
  tsm_.SetArrStrFOP(fops);
}

void TSMList::Reject(const errors::Procedure& report, const ParameterBag& display) {
  tsm_.blnTSMFound = false;
  tsm_.blnMCOFeeFound = false;
  tsm_.strErrResponse = global_.TextIn(display, L"strKeyErrorResponse");
  errors_.Report(report, L" " + tsm_.strErrResponse);
}

bool TSMList::SelectMCO() {
  bool isSelected = false;
  errors_.Run(procedures::kSelectMCO, [&] { isSelected = Select(); });
  return isSelected;
}

bool TSMList::Select() {
  if (!GetTSMList(0)) return false;
  if (tsm_.blnTSMFound) {
    mco_.dblMCOFee = tsm_.dblMCOFee;
    Choose(1, 0);
    return true;
  }
  ChooseFromList();
  if (!GetTSMList(tsm_.intSelectedMCO)) return false;
  // A display of one TSM that was read has its fee.
  if (!tsm_.blnTSMFound) {
    errors_.Report(procedures::kNoMCOFee, L" " + tsm_.strErrResponse);
    return false;
  }
  mco_.dblMCOFee = tsm_.dblMCOFee;
  return true;
}

// Without any TSM nothing is chosen: the display that follows says so.
void TSMList::ChooseFromList() {
  if (tsm_.intNoTSM == 1) Choose(tsm_.GetArrIntM().front(), 0);
  if (tsm_.intNoTSM > 1) LetAgentChoose();
}

void TSMList::LetAgentChoose() {
  frmSelectMCO form;
  form.Populate(tsm_);
  session_.LoadPNR();
  desktop_.ShowModal(form);
  if (!form.blnOK) throw common::RunTimeError(L"No MCO was chosen");
  // The place in the list is the place among the PNR's MCO segments: the host keeps both in the
  // same order.
  Choose(common::ToInteger(form.strSelectedMCO), form.intSelectedIndex);
}

void TSMList::Choose(std::int16_t number, std::int16_t index) {
  tsm_.intSelectedMCO = number;
  tsm_.intSelectedMCOIndex = index;
}

}  // namespace mco
