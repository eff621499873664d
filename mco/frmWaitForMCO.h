#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "hostlib/Requests.h"
#include "pnr/GetPTAPNRinfo.h"
#include "pnr/PNRChecks.h"
#include "ui/controls/Desktop.h"

namespace mco {

/// Holds the run while MCO segments of the PNR still lack their FA element, and lets it go by
/// itself once all have theirs: reads the PNR again every five seconds. When they are complete from
/// the start the form is never seen.
class frmWaitForMCO : public ui::Form {
 public:
  /// What the form reads with and may do.
  struct Reach {
    hostlib::Library& library;
    hostlib::ScriptGlobal& global;
    errors::ErrorHandler& errors;
    const errors::StopFlag& stop;
    ui::Desktop& desktop;
    common::RunEnd& runEnd;
    pnr::GetPTAPNRinfo& pnrReading;
    pnr::PNRChecks& checks;
  };

  /// `waitCancelled` is set by Cancel and cleared when the waiting ends by itself.
  frmWaitForMCO(Reach reach, bool& waitCancelled);

  ui::Label lblTSTListMessage{*this, L"lblTSTListMessage"};
  ui::ListBox lstMCOElements{*this, L"lstMCOElements", ui::ListBox::Selection::kSingle};
  ui::Timer tmrWait{*this, L"tmrWait"};
  ui::StatusBar staStatusText{*this, L"staStatusText"};
  ui::Button cmdCancel{*this, L"cmdCancel", L"Cancel"};

  /// Of the selected MCO segment; empty after Cancel.
  const std::wstring& ElementNumber() const { return elementNumber_; }
  const std::wstring& Element() const { return element_; }
  /// True when the waiting has ended by itself.
  bool WaitOK() const { return waitOK_; }
  /// True after Cancel.
  bool Cancelled() const { return cancelled_; }
  std::int16_t MCOCount() const { return mcoCount_; }
  /// For each line of the list: 1 with an FA number, else 0.
  const std::vector<std::int16_t>& Flags() const { return flags_; }

  /// Adds one line to the list.
  void addMCOItem(std::wstring text, std::int32_t itemData, std::int16_t flag);
  /// Counts the MCO segments, when asked to after the PNR has been read again. When a report within
  /// marks the run to stop, nothing more is asked of the host.
  std::int16_t CountMCOs(bool readAgain);
  /// Reads the PNR again and lists its MCO segments. True when there is at least one.
  bool FillList();

  void OnCloseBox() override;

 protected:
  void OnLoad() override;

 private:
  void StartAfresh();
  void ListElement(hostlib::PnrReader& reader, int index);
  void StartWaiting();
  void Tick();
  void ShowWaitedTime();
  void ShowMinutes(std::int32_t minutes);
  void EndWaiting();
  void Cancel();
  void EndWithoutMCO();

  Reach reach_;
  bool& waitCancelled_;
  std::int16_t mcoCount_ = 0;
  std::int16_t faCount_ = 0;  ///< of the MCO segments with an FA number
  bool waitOK_ = false;
  std::wstring elementNumber_;
  std::wstring element_;
  bool cancelled_ = false;
  std::int32_t waited_ = 0;  ///< milliseconds
  std::int32_t minutesShown_ = 0;
  std::vector<std::int16_t> flags_;
};

}  // namespace mco
