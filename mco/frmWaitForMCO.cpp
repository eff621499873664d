#include "mco/frmWaitForMCO.h"

#include <algorithm>

#include "common/Numbers.h"
#include "common/Text.h"
#include "pnr/ElementBag.h"

namespace mco {
namespace {

constexpr std::wstring_view kMessage =
    L"The script is waiting for MCO segments to be completed.\r\n"
    L"FA elements are missing for one or several of the MCO segments. \r\n"
    L"\r\n"
    L"Wait or press Cancel to end the script";
constexpr std::wstring_view kCompleteText =
    L"Select the MCO segment to use. Note that it is only possible to select MCO segments with an "
    L"FA number.";

constexpr int kInterval = 5000;
constexpr double kMinute = 60000;
constexpr std::size_t kElementWidth = 50;

std::wstring Padded(std::wstring element) {
  if (element.size() < kElementWidth) element.resize(kElementWidth, L' ');
  return element;
}

std::int32_t NumberOrZero(std::wstring_view text) {
  const bool isNumber = std::all_of(text.begin(), text.end(), common::IsDigit);
  return isNumber ? common::ToLong(common::HostNumber(text)) : 0;
}

}  // namespace

frmWaitForMCO::frmWaitForMCO(Reach reach, bool& waitCancelled)
    : Form(L"frmWaitForMCO"), reach_(reach), waitCancelled_(waitCancelled) {
  tmrWait.onTimer = [this] { Tick(); };
  cmdCancel.onClick = [this] { Cancel(); };
}

void frmWaitForMCO::OnLoad() {
  StartAfresh();
  const bool anyMCO = FillList();
  if (reach_.stop.isSet) {
    Unload();
    return;
  }
  if (!anyMCO) EndWithoutMCO();  // does not come back
  if (mcoCount_ <= faCount_) {
    EndWaiting();
  } else {
    StartWaiting();
  }
}

void frmWaitForMCO::StartAfresh() {
  SetCaption(common::kTitle);
  lblTSTListMessage.SetText(kMessage);
  waitOK_ = false;
  elementNumber_.clear();
  element_.clear();
  cancelled_ = false;
  waited_ = 0;
}

std::int16_t frmWaitForMCO::CountMCOs(bool readAgain) {
  reach_.errors.Run(errors::procedures::kCountMCOElements, [&] {
    if (readAgain) {
      reach_.checks.CheckIR();
      if (reach_.stop.isSet) return;
      reach_.pnrReading.RetrievePNR();
      if (reach_.stop.isSet) return;
    }
    mcoCount_ = hostlib::PnrReader(reach_.library).CountMCOElements();
  });
  return mcoCount_;
}

bool frmWaitForMCO::FillList() {
  const std::int16_t count = CountMCOs(true);
  if (reach_.stop.isSet) return false;
  faCount_ = 0;
  lstMCOElements.Clear();
  flags_.clear();
  if (count < 1) {
    mcoCount_ = 0;
    return false;
  }
  hostlib::PnrReader reader(reach_.library);
  for (int i = 0; i < count; ++i) ListElement(reader, i);
  return true;
}

void frmWaitForMCO::ListElement(hostlib::PnrReader& reader, int index) {
  const hostlib::ParameterBag bag = pnr::ElementBag(reach_.library, index, L"MCO");
  reader.ReadElement(bag);
  const std::wstring number = reach_.global.TextIn(bag, L"strKeyElementNr");
  const std::wstring faNumber = reach_.global.TextIn(bag, L"strKeyMCOFATicketNbr");
  std::wstring element = reach_.global.TextIn(bag, L"strKeyElement");
  const bool hasFA = !faNumber.empty();
  if (hasFA) ++faCount_;
  addMCOItem(Padded(std::move(element)), NumberOrZero(number), hasFA ? 1 : 0);
}

void frmWaitForMCO::addMCOItem(std::wstring text, std::int32_t itemData, std::int16_t flag) {
  lstMCOElements.Add(std::move(text), itemData);
  flags_.resize(lstMCOElements.Items().size());
  flags_.back() = flag;
}

void frmWaitForMCO::StartWaiting() {
  tmrWait.SetInterval(kInterval);
  ShowMinutes(0);
}

// The timer stands still while the host is asked: how long that takes does not count as waiting.
void frmWaitForMCO::Tick() {
  const ui::InputGate::Shut busy(reach_.desktop.input());
  tmrWait.SetInterval(0);
  FillList();
  if (reach_.stop.isSet) {
    Unload();
    return;
  }
  // Without any MCO segment left the waiting goes on: the agent may be entering them anew.
  if (mcoCount_ >= 1 && mcoCount_ == faCount_) {
    EndWaiting();
    return;
  }
  ShowWaitedTime();
  tmrWait.SetInterval(kInterval);
}

void frmWaitForMCO::ShowWaitedTime() {
  waited_ = common::ToLong(static_cast<double>(waited_) + kInterval);
  const std::int32_t minutes = common::ToLong(waited_ / kMinute);
  if (minutes != minutesShown_) ShowMinutes(minutes);
}

void frmWaitForMCO::ShowMinutes(std::int32_t minutes) {
  staStatusText.SetText(L"Waiting for MCO segments to be completed with FA elements - waited for " +
                        common::NumberText(minutes) + L" minute(s)...");
  minutesShown_ = minutes;
}

void frmWaitForMCO::EndWaiting() {
  tmrWait.SetInterval(0);
  staStatusText.SetText(kCompleteText);
  waitOK_ = true;
  waitCancelled_ = false;
  Unload();
}

void frmWaitForMCO::Cancel() {
  tmrWait.SetInterval(0);
  waitOK_ = false;
  elementNumber_.clear();
  cancelled_ = true;
  waitCancelled_ = true;
  Unload();
}

void frmWaitForMCO::OnCloseBox() { Cancel(); }

void frmWaitForMCO::EndWithoutMCO() {
  reach_.desktop.ShowBox(L"No MCO's in PNR, script is closing", common::kPlain, L"");
  reach_.runEnd.EndAtOnce();
}

}  // namespace mco
