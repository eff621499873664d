#include "journal/Writer.h"

#include <algorithm>

#include "common/Text.h"
#include "journal/Digits.h"
#include "journal/FileName.h"

namespace journal {
namespace {

constexpr std::wstring_view kLineEnd = L"\r\n";
constexpr std::wstring_view kTextMark = L"    | ";
constexpr int kMostOfOneName = 100;

std::wstring TimeText(std::chrono::milliseconds time) {
  const std::chrono::hh_mm_ss parts(time);
  return Digits(parts.hours().count(), 2) + L":" + Digits(parts.minutes().count(), 2) + L":" +
         Digits(parts.seconds().count(), 2) + L"." + Digits(parts.subseconds().count(), 3);
}

bool IsControl(wchar_t character) {
  const bool isC1 = character >= 0x7F && character < 0xA0;
  return (character < L' ' && character != L'\t') || isC1 || character == 0x2028 ||
         character == 0x2029;
}

std::wstring Printable(std::wstring_view text) {
  std::wstring printable(text);
  std::ranges::replace_if(printable, IsControl, L'\uFFFD');
  return printable;
}

/// The text's lines, each marked as not ours.
std::wstring Marked(std::wstring_view text) {
  std::wstring marked;
  for (std::size_t from = 0;;) {
    const std::size_t end = std::min(text.find_first_of(L"\r\n", from), text.size());
    marked.append(kTextMark).append(Printable(text.substr(from, end - from))).append(kLineEnd);
    if (end == text.size()) return marked;
    from = end + (text.substr(end).starts_with(kLineEnd) ? kLineEnd.size() : 1);
    if (from == text.size()) return marked;
  }
}

}  // namespace

std::wstring Seconds(std::chrono::milliseconds time) {
  return Digits(time.count() / 1000, 1) + L"." + Digits(time.count() % 1000, 3) + L" s";
}

Writer::Writer(Folder& folder, const Clock& clock)
    : folder_(folder), clock_(clock), start_(clock.Now()) {}

void Writer::Open(std::wstring_view version) {
  Named({}, [this](std::wstring_view name) { return folder_.CreateNew(name, file_); });
  std::wstring heading = L"PTA_QX ";
  heading.append(version).append(kLineEnd);
  heading.append(L"Run of ").append(DayText(start_.day)).append(kLineEnd).append(kLineEnd);
  Append(heading);
}

void Writer::Write(std::wstring_view words) {
  if (file_ != nullptr) Append(Line(words).append(kLineEnd));
}

void Writer::Write(std::wstring_view words, std::wstring_view text) {
  if (file_ == nullptr) return;
  Append(Line(words).append(L":").append(kLineEnd).append(Marked(masking_.Masked(text))));
}

std::wstring Writer::Line(std::wstring_view words) const {
  return TimeText(clock_.Now().time) + L" " + Printable(words);
}

void Writer::Secure() {
  if (file_ != nullptr) file_->Flush();
}

void Writer::NameAfter(std::wstring_view locator) {
  if (!locator_.empty() || file_ == nullptr) return;
  locator_ = LocatorForName(locator);
  if (!locator_.empty()) Rename();
}

void Writer::Finish() {
  if (file_ != nullptr && !locator_.empty() && !named_) Rename();
}

void Writer::Rename() {
  named_ = Named(locator_, [this](std::wstring_view name) { return file_->Rename(name); });
}

// A folder out of reach may take seconds to say so: it is asked once.
template <typename Try>
bool Writer::Named(std::wstring_view locator, const Try& tryName) const {
  Naming naming = Naming::kTaken;
  for (int number = 1; naming == Naming::kTaken && number <= kMostOfOneName; ++number) {
    naming = tryName(FileName(start_, locator, number));
  }
  return naming == Naming::kDone;
}

// One write a line: two programs never mix theirs, and no line is there by halves, but for the last
// one of a disk that is full: what came behind half a line would pass for its end.
void Writer::Append(std::wstring_view text) {
  if (file_ != nullptr && !file_->Append(common::ToUtf8(text))) file_ = nullptr;
}

}  // namespace journal
