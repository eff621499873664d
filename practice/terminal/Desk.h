#pragma once

#include <functional>
#include <string>

#include "practice/host/Host.h"

namespace practice::terminal {

/// The trainer's desk: opens bookings, types entries, makes the host misbehave, and keeps the
/// transcript of all that the host was asked and answered.
class Desk {
 public:
  explicit Desk(Host& host);
  ~Desk();
  Desk(const Desk&) = delete;
  Desk& operator=(const Desk&) = delete;

  /// Throws BookingError.
  void LoadBooking(std::wstring_view booking, std::wstring_view name);
  /// An entry as the agent types it; the answer goes into the transcript, as every other.
  void Enter(std::wstring_view entry);

  // What the host holds, into the transcript.
  void ShowPrinted();
  void ShowBackOffice();
  void ShowQueues();

  // Misbehaviour: of the next entry, or from it on. A new one leaves the earlier ones.
  /// The next entry is number 1.
  void RefuseEntry(int number, std::wstring_view reason);
  void GarbleNext();
  /// The session is lost at the next entry; it may be the answer alone that is lost.
  void DropSession(bool answerOnly);
  /// `wait` is called before every entry; null: no more.
  void SlowDown(std::function<void()> wait);
  bool IsSlow() const { return static_cast<bool>(host_.faults.slow); }
  /// The first MCO without a document gets one when the PNR is read again. False when every MCO
  /// has one, or there is no PNR.
  bool IssueDocument();
  void BehaveWell();

  /// The entries that have arrived so far, the one that waits for its answer included.
  int EntryCount() const { return host_.EntryCount(); }
  std::wstring PnrText() const { return host_.PnrText(); }
  const std::wstring& transcript() const { return transcript_; }
  /// An empty one, which takes no more memory than at the start.
  void ForgetTranscript();
  const std::wstring& booking() const { return booking_; }
  /// What the host was told to do wrong; "" when nothing.
  std::wstring FaultText() const;

  /// Told what came to the transcript.
  std::function<void(std::wstring_view added)> onTranscript;
  /// Told when nothing of it is left.
  std::function<void()> onForgotten;

 private:
  void Note(std::wstring text);
  void NoteHeaded(std::wstring_view heading, const std::wstring& text = {});
  int Next() const { return host_.EntryCount() + 1; }

  Host& host_;
  std::wstring transcript_;
  std::wstring booking_;
};

}  // namespace practice::terminal
