#include "journal/EntryLog.h"

#include <algorithm>

#include "common/Numbers.h"

namespace journal {
namespace {

constexpr std::wstring_view kAccepted = L"accepted";
constexpr std::wstring_view kRefused = L"refused";
constexpr std::wstring_view kUnknown = L"unknown";
constexpr std::wstring_view kNotJudged = L"not judged";

std::wstring EntryWords(int number) { return L"Entry " + common::NumberText(number); }

std::wstring After(std::chrono::milliseconds time) { return L" after " + Seconds(time); }

std::wstring Numbers(const std::vector<int>& numbers) {
  std::wstring words;
  for (const int number : numbers) {
    if (!words.empty()) words += L", ";
    words += common::NumberText(number);
  }
  return words;
}

std::wstring CountText(const std::vector<int>& numbers) {
  return common::NumberText(static_cast<std::int32_t>(numbers.size()));
}

/// A text as it came, anything else in the words of a transcript.
std::wstring AnswerText(const hostlib::ValueView& answer) {
  const auto* text = answer.If<std::wstring_view>();
  return text != nullptr ? std::wstring(*text) : hostlib::Describe(answer);
}

}  // namespace

std::wstring FailureText(const hostlib::LibraryError& error) {
  constexpr std::wstring_view kHexDigits = L"0123456789ABCDEF";
  const auto bits = static_cast<std::uint32_t>(error.number());
  std::wstring number = L"0x";
  for (unsigned shift = 32; shift > 0; shift -= 4) number += kHexDigits[bits >> (shift - 4) & 0xF];
  return error.description() + L" (" + number + L")";
}

int EntryLog::Begin(const hostlib::CallInfo& call) {
  Settle();
  const int number = ++count_;
  const std::wstring words = EntryWords(number) + L" by " + std::wstring(call.operation->name);
  if (call.arguments.empty()) {
    writer_.Write(words);
  } else {
    writer_.Write(words, AnswerText(call.arguments.front()));
  }
  writer_.Secure();
  return number;
}

void EntryLog::Answered(int number, const EntryOperation& operation, const hostlib::Value& answer,
                        std::chrono::milliseconds time) {
  if (operation.verdict == Verdict::kByReturning) {
    WriteState(number, kAccepted, After(time));
  } else if (operation.verdict == Verdict::kByAnswer && answer.If<bool>() != nullptr) {
    WriteState(number, answer.Flag() ? kAccepted : kRefused, After(time));
  } else {
    const std::wstring text = AnswerText(answer);
    writer_.Write(EntryWords(number) + L" answered" + After(time), text);
    open_ = Open{number, text, nullptr, {}};
  }
}

void EntryLog::Failed(int number, const EntryOperation& operation,
                      const hostlib::LibraryError& error, std::chrono::milliseconds time) {
  const std::wstring text = FailureText(error);
  switch (error.outcome()) {
    case hostlib::LibraryError::Outcome::kRefused:
      // A library that hands the host's words over, good or bad, has failed before it had them.
      if (operation.verdict == Verdict::kByReturning) {
        WriteState(number, kRefused, After(time), text);
      } else {
        WriteState(number, kUnknown, After(time) + L", without an answer", text);
      }
      break;
    case hostlib::LibraryError::Outcome::kNotSent:
      WriteState(number, kRefused, After(time) + L", it was not sent", text);
      break;
    case hostlib::LibraryError::Outcome::kInterrupted:
      WriteState(number, kUnknown, After(time) + L", the call broke off", text);
      break;
  }
}

void EntryLog::BrokenOff(int number, std::chrono::milliseconds time) {
  WriteState(number, kUnknown, After(time) + L", the call broke off");
}

void EntryLog::Follow(const hostlib::CallInfo& call, const hostlib::Value& answer) {
  if (!open_) return;
  StartReading(call);
  ReadFlag(call, answer);
}

// Which answer is read shows in the text alone; another one's flags must not settle this entry.
void EntryLog::StartReading(const hostlib::CallInfo& call) {
  const AnswerReader* reader = FindAnswerReader(call.operation);
  if (reader == nullptr) return;
  const auto* text =
      call.arguments.empty() ? nullptr : call.arguments.front().If<std::wstring_view>();
  open_->reader = text != nullptr && *text == open_->answer ? reader : nullptr;
  open_->falseFlags.clear();
}

void EntryLog::ReadFlag(const hostlib::CallInfo& call, const hostlib::Value& answer) {
  const bool isRead =
      open_->reader != nullptr && Is(call.operation, hostlib::operations::parameter_bag::kGetValue);
  const auto* key = isRead ? call.arguments.front().If<std::wstring_view>() : nullptr;
  if (key == nullptr || answer.If<bool>() == nullptr) return;
  const auto& flags = open_->reader->flags;
  const auto* flag = std::ranges::find(flags, *key);
  if (flag == std::end(flags)) return;
  if (answer.Flag()) {
    WriteState(open_->number, kAccepted, L"");
    open_.reset();
    return;
  }
  if (std::ranges::find(open_->falseFlags, *flag) != open_->falseFlags.end()) return;
  open_->falseFlags.push_back(*flag);
  const auto wanted = static_cast<std::size_t>(
      std::ranges::count_if(flags, [](std::wstring_view one) { return !one.empty(); }));
  if (open_->falseFlags.size() < wanted) return;
  WriteState(open_->number, kRefused, L", as the library reads its answer");
  open_.reset();
}

void EntryLog::Settle() {
  if (!open_) return;
  WriteState(open_->number, kNotJudged, L"");
  open_.reset();
}

void EntryLog::WriteState(int number, std::wstring_view state, std::wstring_view remark) {
  Count(number, state);
  std::wstring words = EntryWords(number) + L" ";
  writer_.Write(words.append(state).append(remark));
}

void EntryLog::WriteState(int number, std::wstring_view state, std::wstring_view remark,
                          std::wstring_view text) {
  Count(number, state);
  std::wstring words = EntryWords(number) + L" ";
  writer_.Write(words.append(state).append(remark), text);
}

void EntryLog::Count(int number, std::wstring_view state) {
  if (state == kAccepted) ++accepted_;
  if (state == kRefused) refused_.push_back(number);
  if (state == kUnknown) unknown_.push_back(number);
  if (state == kNotJudged) notJudged_.push_back(number);
  std::wstring step = L"entry " + common::NumberText(number) + L" ";
  writer_.Remember(step.append(state));
}

void EntryLog::Finish() {
  Settle();
  writer_.Write(L"Entries: " + common::NumberText(count_) + L", accepted " +
                common::NumberText(accepted_) + L", refused " + CountText(refused_) +
                L", unknown " + CountText(unknown_) + L", not judged " + CountText(notJudged_));
  if (!refused_.empty()) writer_.Write(L"Refused: " + Numbers(refused_));
  if (!unknown_.empty()) writer_.Write(L"Unknown: " + Numbers(unknown_));
  if (!notJudged_.empty()) writer_.Write(L"Not judged: " + Numbers(notJudged_));
}

}  // namespace journal
