#pragma once

#include <functional>

#include "practice/host/Faults.h"
#include "practice/host/Pnr.h"
#include "practice/host/Queues.h"

namespace practice {

/// A line of a booking that the host refuses.
class BookingError : public common::RunTimeError {
 public:
  BookingError(int line, const std::wstring& why)
      : RunTimeError(L"Line " + std::to_wstring(line) + L": " + why), line_(line) {}
  int line() const { return line_; }

 private:
  int line_;
};

/// The practice host: takes entries, answers with texts, keeps bookings, queues, a printer and a
/// back office. Every entry and answer is described in docs/practice-host.md. Lines of an answer
/// are joined with "\r\n", the last one has no line end. A refused entry changes nothing.
class Host {
 public:
  /// Sees every entry with its answer, in order; those of bookings left out.
  using Listener = std::function<void(std::wstring_view entry, std::wstring_view answer)>;

  /// Throws SessionLost when the faults say so, and nothing else.
  std::wstring Enter(std::wstring_view entry);

  /// Takes the lines of a booking as entries, one a line ("#" begins a comment line), and leaves
  /// its PNR active; stored, when the booking gives it a record locator. What an earlier booking
  /// set the scene with is forgotten. Throws BookingError and leaves no PNR active.
  void LoadBooking(std::wstring_view text);

  Faults faults;
  Listener listener;

  /// The PNR as the agent sees it, with its fares and documents: the active one, or the one that
  /// was active last; "" when there was none.
  std::wstring PnrText() const;
  /// The same of a stored PNR; "" when there is none under that locator.
  std::wstring StoredPnrText(std::wstring_view locator) const;
  bool HasActivePnr() const { return active_; }

  /// How many entries came in, those of bookings left out.
  int EntryCount() const { return entries_; }
  const std::vector<std::wstring>& Printed() const { return printed_; }
  const std::vector<std::wstring>& SentToBackOffice() const { return backOffice_; }
  const Queues& queues() const { return queues_; }

 private:
  struct PendingDocument {
    std::wstring locator;
    int mco;
    std::wstring number;
    int rereads;
  };
  /// What trainer's entries set, for one booking.
  struct Scene {
    std::wstring office = L"ARNAG2100";
    bool printerOn = true;
    bool listTst = false;
    bool listTsm = false;
    std::vector<PendingDocument> pending;
  };

  std::wstring Answer(std::wstring_view entry);
  /// Throws Refused. The answer without its display of the PNR when `display` becomes true.
  std::wstring Execute(std::wstring_view entry, bool& display);
  bool ExecuteDisplay(const std::vector<std::wstring>& words, std::wstring& answer);
  std::wstring ChangeElements(std::wstring_view entry);
  std::wstring UpdateTst(std::wstring_view entry);
  std::wstring Retrieve(const std::vector<std::wstring>& words);
  std::wstring Reread();
  std::wstring EndTransaction();
  std::wstring Ignore();
  std::wstring Print(const std::vector<std::wstring>& words);
  std::wstring SendToBackOffice(std::wstring_view entry);
  std::wstring PlaceOnQueue(const std::vector<std::wstring>& words);
  std::wstring Train(const std::vector<std::wstring>& words);
  void TrainList(const std::vector<std::wstring>& words);
  void TrainDocument(const std::vector<std::wstring>& words);

  Pnr& Active();
  const Pnr& Shown() const;
  void Store();
  void IssueDocuments();

  std::map<std::wstring, Pnr, std::less<>> stored_;
  Pnr pnr_;              ///< the working copy; after it was closed, the last one
  bool active_ = false;  ///< pnr_ can be worked on
  bool changed_ = false;
  bool known_ = false;  ///< there was a PNR
  int locators_ = 0;
  Scene scene_;
  Queues queues_;
  std::vector<std::wstring> printed_;
  std::vector<std::wstring> backOffice_;
  int entries_ = 0;
};

}  // namespace practice
