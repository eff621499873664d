#pragma once

#include <optional>
#include <vector>

#include "hostlib/Interposer.h"
#include "journal/EntryTable.h"
#include "journal/Writer.h"

namespace journal {

/// The entries of a run: numbers them, writes each before it is sent, its answer afterwards, and
/// its state: accepted, refused, unknown when the call broke off, or not judged.
///
/// The library gives most answers as they came from the host; what they mean comes out only when
/// the program has them read. Until then an entry's state is open; when nothing has settled it
/// until the next entry is written or the run ends, nobody has judged what the answer says.
class EntryLog {
 public:
  explicit EntryLog(Writer& writer) : writer_(writer) {}

  /// Writes down what is about to be sent, and gives its number.
  int Begin(const hostlib::CallInfo& call);
  void Answered(int number, const EntryOperation& operation, const hostlib::Value& answer,
                std::chrono::milliseconds time);
  /// The library answered with a failure, was gone, or went away inside the call.
  void Failed(int number, const EntryOperation& operation, const hostlib::LibraryError& error,
              std::chrono::milliseconds time);
  /// The call was left in any other way.
  void BrokenOff(int number, std::chrono::milliseconds time);

  /// Any other call of the library that came back: it may tell what became of the last entry.
  void Follow(const hostlib::CallInfo& call, const hostlib::Value& answer);

  /// Settles what is open and writes how many entries there were and which were not accepted.
  void Finish();

 private:
  /// An entry that was answered, and whose state is not known yet.
  struct Open {
    int number;
    std::wstring answer;
    const AnswerReader* reader = nullptr;  ///< what has read the answer, if anything has
    std::vector<std::wstring_view> falseFlags;
  };

  void StartReading(const hostlib::CallInfo& call);
  void ReadFlag(const hostlib::CallInfo& call, const hostlib::Value& answer);
  void Settle();
  void WriteState(int number, std::wstring_view state, std::wstring_view remark);
  void WriteState(int number, std::wstring_view state, std::wstring_view remark,
                  std::wstring_view text);
  void Count(int number, std::wstring_view state);

  Writer& writer_;
  int count_ = 0;
  std::vector<int> refused_;
  std::vector<int> unknown_;
  std::vector<int> notJudged_;
  int accepted_ = 0;
  std::optional<Open> open_;
};

/// "Session lost (0x80040903)".
std::wstring FailureText(const hostlib::LibraryError& error);

}  // namespace journal
