#pragma once

#include "journal/EntryLog.h"
#include "journal/PaymentFields.h"
#include "journal/PaymentWatch.h"

namespace journal {

/// Sees the library's calls and writes down what the journal is about: the entries, the messages
/// that the library shows, the calls that fail, the office and the booking. It answers nothing
/// itself and makes no call of its own.
class JournalHook : public hostlib::CallHook {
 public:
  JournalHook(Writer& writer, const Clock& clock, PaymentFields& fields)
      : writer_(writer),
        clock_(clock),
        fields_(fields),
        entries_(writer),
        payments_(writer.masking()) {}

  hostlib::Value OnCall(const hostlib::CallInfo& call,
                        const std::function<hostlib::Value()>& proceed) override;
  /// An object could not be made.
  void NotMade(std::wstring_view className, const hostlib::LibraryError& error);
  void Finish() { entries_.Finish(); }

 private:
  hostlib::Value Send(const EntryOperation& operation, const hostlib::CallInfo& call,
                      const std::function<hostlib::Value()>& proceed);
  hostlib::Value Pass(const hostlib::CallInfo& call,
                      const std::function<hostlib::Value()>& proceed);
  void Before(const hostlib::CallInfo& call);
  void After(const hostlib::CallInfo& call, const hostlib::Value& answer);
  void Failed(const hostlib::CallInfo& call, const hostlib::LibraryError& error);
  void NoteOffice(const hostlib::CallInfo& call, const hostlib::Value& answer);
  /// A value from elsewhere as it may stand in a line of ours.
  std::wstring Quoted(const hostlib::ValueView& value) const;

  Writer& writer_;
  const Clock& clock_;
  PaymentFields& fields_;
  EntryLog entries_;
  PaymentWatch payments_;
  std::wstring lastFailure_;
};

}  // namespace journal
