#include "practice/library/ScriptGlobalObject.h"

#include <array>
#include <vector>

#include "common/Numbers.h"
#include "common/Text.h"

namespace practice {
namespace {

using hostlib::Arguments;
using hostlib::ValueView;
using std::chrono::day;
using std::chrono::month;
using std::chrono::year;
using std::chrono::year_month_day;

constexpr auto kNoDate = static_cast<std::int32_t>(0x80040901);
constexpr auto kNoText = static_cast<std::int32_t>(0x80020005);
constexpr std::array<std::wstring_view, 12> kMonths = {
    L"JAN", L"FEB", L"MAR", L"APR", L"MAY", L"JUN", L"JUL", L"AUG", L"SEP", L"OCT", L"NOV", L"DEC"};

[[noreturn]] void NoDate(const std::wstring& text) {
  throw hostlib::LibraryError(kNoDate, L"Practice library", L"\"" + text + L"\" is no date");
}

std::wstring Field(const std::wstring& text, int number, const std::wstring& delimiter) {
  std::size_t from = 0;
  for (int n = 1;; ++n) {
    const std::size_t end = delimiter.empty() ? text.npos : text.find(delimiter, from);
    if (n == number) return text.substr(from, end == text.npos ? end : end - from);
    if (end == text.npos) return {};
    from = end + delimiter.size();
  }
}

std::wstring TwoDigits(unsigned number) {
  const std::wstring digits = std::to_wstring(number);
  return digits.size() < 2 ? L"0" + digits : digits;
}

std::wstring HostDateToText(const std::wstring& hostDate) {
  if (!common::Like(hostDate, L"##[A-Z][A-Z][A-Z]##")) NoDate(hostDate);
  for (std::size_t i = 0; i < kMonths.size(); ++i) {
    if (hostDate.compare(2, 3, kMonths[i]) != 0) continue;
    const year_month_day date{year(2000 + std::stoi(hostDate.substr(5))),
                              month(static_cast<unsigned>(i) + 1),
                              day(static_cast<unsigned>(std::stoi(hostDate.substr(0, 2))))};
    if (!date.ok()) break;
    return hostDate.substr(0, 2) + L" " + TwoDigits(static_cast<unsigned>(i) + 1) + L" " +
           hostDate.substr(5);
  }
  NoDate(hostDate);
}

std::wstring TextToHostDate(const platform::Platform& platform, const std::wstring& text) {
  const auto date = platform.ReadShortDate(text);
  if (!date) NoDate(text);
  return TwoDigits(static_cast<unsigned>(date->day())) +
         std::wstring(kMonths[static_cast<unsigned>(date->month()) - 1]) +
         TwoDigits(static_cast<unsigned>(static_cast<int>(date->year())) % 100);
}

std::wstring ToText(const ValueView& value) {
  if (value.IsEmpty()) return {};
  if (const auto* flag = value.If<bool>()) return *flag ? L"True" : L"False";
  if (value.IsObject() || value.IsArray() || value.IsMissing()) {
    throw hostlib::LibraryError(kNoText, L"Practice library",
                                std::wstring(value.Kind()) + L" is no text");
  }
  if (const auto* text = value.If<std::wstring_view>()) return std::wstring(*text);
  if (const auto* number = value.If<double>()) return common::HostNumberText(*number);
  return std::to_wstring(value.Long());
}

bool ToBoolean(const ValueView& value) {
  if (const auto* text = value.If<std::wstring_view>()) return *text == L"True";
  if (value.If<std::int16_t>() != nullptr || value.If<std::int32_t>() != nullptr) {
    return value.Long() != 0;
  }
  return value.Flag();
}

bool IsElementNumbers(const std::wstring& list) {
  for (int n = 1; n == 1 || !Field(list, n, L",").empty(); ++n) {
    const std::wstring piece = Field(list, n, L",");
    if (piece.empty() || piece.size() > 3) return false;
    for (const wchar_t c : piece) {
      if (!common::IsDigit(c)) return false;
    }
  }
  return list.back() != L',' && !common::Contains(list, L",,");
}

std::wstring FormatAssociation(const std::wstring& list) {
  if (list.empty() || !IsElementNumbers(list)) return list;
  std::vector<int> numbers;
  for (int n = 1; !Field(list, n, L",").empty(); ++n) {
    numbers.push_back(std::stoi(Field(list, n, L",")));
  }
  std::wstring result;
  for (std::size_t first = 0; first < numbers.size();) {
    std::size_t last = first;
    while (last + 1 < numbers.size() && numbers[last + 1] == numbers[last] + 1) ++last;
    if (last - first < 2) last = first;
    if (!result.empty()) result += L",";
    result += std::to_wstring(numbers[first]);
    if (last > first) result += L"-" + std::to_wstring(numbers[last]);
    first = last + 1;
  }
  return result;
}

}  // namespace

ScriptGlobalObject::ScriptGlobalObject(const platform::Platform& platform, OnAttach onAttach,
                                       LastError* lastError)
    : PracticeObject(hostlib::operations::script_global::kClass, lastError) {
  using namespace hostlib::operations::script_global;
  On(kGetField, [](const Arguments& a) { return Field(a[0].Text(), a[1].Long(), a[2].Text()); });
  On(kHostDateToText, [](const Arguments& a) { return HostDateToText(a[0].Text()); });
  On(kTextToHostDate,
     [&platform](const Arguments& a) { return TextToHostDate(platform, a[0].Text()); });
  On(kToText, [](const Arguments& a) { return ToText(a[0]); });
  On(kToBoolean, [](const Arguments& a) { return ToBoolean(a[0]); });
  On(kAttach, [onAttach = std::move(onAttach), lastError](const Arguments& a) {
    const AttachedProgram program = ReadAttachedProgram(a[0], a[1]);
    // What the program did not answer is no failure of the library.
    if (lastError != nullptr) *lastError = {};
    return onAttach(program);
  });
  On(kFormatAssociation, [](const Arguments& a) { return FormatAssociation(a[0].Text()); });
}

}  // namespace practice
