#include "hostlib/com/Failures.h"

#include "hostlib/com/CallOutcome.h"

namespace hostlib::com {
namespace {

constexpr const wchar_t* kSource = L"hostlib";

std::wstring Hexadecimal(HRESULT result) {
  std::wstring text = L"0x";
  for (int shift = 28; shift >= 0; shift -= 4) {
    text += L"0123456789ABCDEF"[(static_cast<std::uint32_t>(result) >> shift) & 15U];
  }
  return text;
}

// The boxes of the procedures have no room for it; the journal and the box of a failure that nobody
// expected show a failure's own words.
const wchar_t* WordsFor(LibraryError::Outcome outcome) {
  switch (outcome) {
    case LibraryError::Outcome::kNotSent:
      return L" (the call was not made)";
    case LibraryError::Outcome::kInterrupted:
      return L" (the call broke off: it may have been carried out)";
    default:
      return L"";
  }
}

std::wstring TextIn(BSTR text) { return {text == nullptr ? L"" : text, SysStringLen(text)}; }

std::wstring Words(const std::wstring& what, HRESULT result) {
  return what.empty() ? TextOf(result) : what + L": " + TextOf(result);
}

}  // namespace

std::wstring TextOf(HRESULT result) {
  wchar_t text[512];
  const DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                                      nullptr, static_cast<DWORD>(result), 0, text,
                                      static_cast<DWORD>(std::size(text)), nullptr);
  std::wstring words(text, length);
  while (!words.empty() && (words.back() == L'\n' || words.back() == L'\r' || words.back() == L' '))
    words.pop_back();
  return words.empty() ? L"Error " + Hexadecimal(result) : words;
}

void ThrowLinkError(HRESULT result, const std::wstring& what) {
  const LibraryError::Outcome outcome = OutcomeOf(static_cast<std::uint32_t>(result));
  throw LibraryError(result, kSource, Words(what, result) + WordsFor(outcome), outcome);
}

bool IsAnswered(HRESULT result) {
  CheckLink(result);
  return SUCCEEDED(result);
}

void CheckLink(HRESULT result) {
  const bool hasLink =
      OutcomeOf(static_cast<std::uint32_t>(result)) == LibraryError::Outcome::kRefused;
  if (!hasLink) CheckAnswered(result);
}

void CheckAnswered(HRESULT result) { CheckBeforeCall(result, L""); }

void CheckBeforeCall(HRESULT result, const std::wstring& what) {
  if (SUCCEEDED(result)) return;
  constexpr auto kOutcome = LibraryError::Outcome::kNotSent;
  throw LibraryError(result, kSource, Words(what, result) + WordsFor(kOutcome), kOutcome);
}

bool IsOfTheLink(const LibraryError& error) {
  return OutcomeOf(static_cast<std::uint32_t>(error.number())) != LibraryError::Outcome::kRefused;
}

void ThrowMismatch(const std::wstring& detail) {
  throw LibraryError(DISP_E_TYPEMISMATCH, kSource, L"Type mismatch: " + detail);
}

ExceptionInfo::~ExceptionInfo() {
  SysFreeString(info_.bstrSource);
  SysFreeString(info_.bstrDescription);
  SysFreeString(info_.bstrHelpFile);
}

LibraryError ExceptionInfo::Error() {
  if (info_.pfnDeferredFillIn != nullptr) {
    info_.pfnDeferredFillIn(&info_);
    info_.pfnDeferredFillIn = nullptr;
  }
  const std::int32_t number = info_.scode != 0 ? info_.scode : info_.wCode;
  std::wstring text = TextIn(info_.bstrDescription);
  if (text.empty()) text = TextOf(number);
  return LibraryError(number, TextIn(info_.bstrSource), std::move(text));
}

}  // namespace hostlib::com
