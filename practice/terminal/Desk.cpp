#include "practice/terminal/Desk.h"

#include <algorithm>

#include "practice/host/Holdings.h"
#include "practice/library/PnrDisplayText.h"
#include "practice/terminal/Texts.h"

namespace practice::terminal {
namespace {

constexpr wchar_t kGarbage[] = L"#?*QX 00/00 %% ---";
// A transcript of this many characters is a long day's work; the oldest half goes then.
constexpr std::size_t kLongestTranscript = 1'000'000;

}  // namespace

Desk::Desk(Host& host) : host_(host) {
  host_.listener = [this](std::wstring_view entry, std::wstring_view answer) {
    Note(L"> " + std::wstring(entry) + L"\r\n" + std::wstring(answer) + L"\r\n\r\n");
  };
}

Desk::~Desk() { host_.listener = nullptr; }

void Desk::LoadBooking(std::wstring_view booking, std::wstring_view name) {
  booking_.clear();
  host_.LoadBooking(booking);
  booking_ = name;
  NoteHeaded(texts::kBookingOpened + booking_);
}

void Desk::Enter(std::wstring_view entry) {
  try {
    host_.Enter(entry);
  } catch (const SessionLost&) {
    Note(L"> " + std::wstring(entry) + L"\r\n" + texts::kNoAnswer + L"\r\n\r\n");
  }
}

void Desk::ShowPrinted() { NoteHeaded(texts::kPrinted, PrintedText(host_)); }

void Desk::ShowBackOffice() { NoteHeaded(texts::kBackOffice, BackOfficeText(host_)); }

void Desk::ShowQueues() { NoteHeaded(texts::kQueues, QueuesText(host_)); }

void Desk::RefuseEntry(int number, std::wstring_view reason) {
  host_.faults.refusals[host_.EntryCount() + number] = reason;
}

void Desk::GarbleNext() { host_.faults.garbage[Next()] = kGarbage; }

void Desk::DropSession(bool answerOnly) {
  host_.faults.dropFrom = Next();
  host_.faults.dropAnswerOnly = answerOnly;
}

void Desk::SlowDown(std::function<void()> wait) {
  host_.faults.slow = nullptr;
  if (wait) host_.faults.slow = [wait = std::move(wait)](int) { wait(); };
}

bool Desk::IssueDocument() {
  const auto pnr = ReadPnrDisplay(PnrText());
  if (!pnr) return false;
  const std::vector<const PnrLine*> mcos = pnr->All(L"MCO");
  const auto missing = std::find_if(mcos.begin(), mcos.end(), [](const PnrLine* mco) {
    return mco->text.find(L",FA ") == std::wstring::npos;
  });
  if (missing == mcos.end()) return false;
  const std::wstring number = std::to_wstring(missing - mcos.begin() + 1);
  Enter(L"TR FA " + number + L" 117-401234567" + number.back() + L" AFTER 1");
  return true;
}

void Desk::BehaveWell() { host_.faults = {}; }

void Desk::ForgetTranscript() {
  transcript_ = {};
  if (onForgotten) onForgotten();
}

std::wstring Desk::FaultText() const {
  const Faults& faults = host_.faults;
  if (faults.dropFrom > 0) return texts::kSessionLost;
  std::wstring text;
  const auto add = [&text](const std::wstring& fault) {
    if (!text.empty()) text += L", ";
    text += fault;
  };
  for (const auto& [entry, reason] : faults.refusals) {
    const int fromNow = entry - host_.EntryCount();
    if (fromNow == 1) add(texts::kRefusesNext);
    if (fromNow > 1) add(texts::kRefusesLater + std::to_wstring(fromNow) + texts::kFromNow);
  }
  if (faults.garbage.contains(Next())) add(texts::kGarblesNext);
  if (faults.slow) add(texts::kIsSlow);
  return text;
}

void Desk::NoteHeaded(std::wstring_view heading, const std::wstring& text) {
  Note(L"--- " + std::wstring(heading) + L" ---\r\n" + text + (text.empty() ? L"" : L"\r\n") +
       L"\r\n");
}

void Desk::Note(std::wstring text) {
  if (transcript_.size() > kLongestTranscript) transcript_.erase(0, kLongestTranscript / 2);
  transcript_ += text;
  if (onTranscript) onTranscript(text);
}

}  // namespace practice::terminal
