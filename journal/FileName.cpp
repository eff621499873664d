#include "journal/FileName.h"

#include <algorithm>

#include "common/Numbers.h"
#include "common/Text.h"
#include "journal/Digits.h"

namespace journal {
namespace {

constexpr std::wstring_view kStart = L"PTA_";
constexpr std::wstring_view kEnd = L".txt";
constexpr std::size_t kLongestLocator = 8;
constexpr std::chrono::days kKept{30};

bool IsLocatorCharacter(wchar_t character) {
  return common::IsLetter(character) || common::IsDigit(character);
}

int NumberIn(std::wstring_view digits) {
  int number = 0;
  for (const wchar_t digit : digits) number = number * 10 + (digit - L'0');
  return number;
}

/// A text that is taken from its beginning, piece by piece.
class Pieces {
 public:
  explicit Pieces(std::wstring_view text) : rest_(text) {}
  bool Take(std::wstring_view expected) {
    if (!rest_.starts_with(expected)) return false;
    rest_.remove_prefix(expected.size());
    return true;
  }
  std::optional<int> TakeNumber(std::size_t digits) {
    const std::wstring_view piece = rest_.substr(0, digits);
    const bool isNumber = piece.size() == digits && std::ranges::all_of(piece, common::IsDigit);
    if (!isNumber) return std::nullopt;
    rest_.remove_prefix(digits);
    return NumberIn(piece);
  }
  std::wstring_view TakeWhile(bool (*wanted)(wchar_t)) {
    const auto end = std::ranges::find_if_not(rest_, wanted);
    const std::wstring_view piece = rest_.substr(0, static_cast<std::size_t>(end - rest_.begin()));
    rest_.remove_prefix(piece.size());
    return piece;
  }
  bool IsEmpty() const { return rest_.empty(); }

 private:
  std::wstring_view rest_;
};

bool IsTail(Pieces pieces) {
  if (pieces.Take(L"_")) {
    const std::wstring_view locator = pieces.TakeWhile(IsLocatorCharacter);
    if (locator.empty() || locator.size() > kLongestLocator) return false;
  }
  if (pieces.Take(L"-") && pieces.TakeWhile(common::IsDigit).empty()) return false;
  return pieces.Take(kEnd) && pieces.IsEmpty();
}

}  // namespace

std::wstring FileName(const Moment& start, std::wstring_view locator, int number) {
  const std::chrono::hh_mm_ss time(start.time);
  std::wstring name(kStart);
  name += DayText(start.day) + L"_" + Digits(time.hours().count(), 2) +
          Digits(time.minutes().count(), 2) + Digits(time.seconds().count(), 2);
  if (!locator.empty()) name.append(L"_").append(locator);
  if (number > 1) name += L"-" + common::NumberText(number);
  return name.append(kEnd);
}

std::wstring_view LocatorForName(std::wstring_view locator) {
  const bool fits =
      locator.size() <= kLongestLocator && std::ranges::all_of(locator, IsLocatorCharacter);
  return fits ? locator : std::wstring_view();
}

std::optional<std::chrono::year_month_day> DayIn(std::wstring_view name) {
  Pieces pieces(name);
  if (!pieces.Take(kStart)) return std::nullopt;
  const auto year = pieces.TakeNumber(4);
  if (!year || !pieces.Take(L"-")) return std::nullopt;
  const auto month = pieces.TakeNumber(2);
  if (!month || !pieces.Take(L"-")) return std::nullopt;
  const auto day = pieces.TakeNumber(2);
  if (!day || !pieces.Take(L"_")) return std::nullopt;
  if (!pieces.TakeNumber(6) || !IsTail(pieces)) return std::nullopt;
  const std::chrono::year_month_day date{std::chrono::year(*year),
                                         std::chrono::month(static_cast<unsigned>(*month)),
                                         std::chrono::day(static_cast<unsigned>(*day))};
  if (!date.ok()) return std::nullopt;
  return date;
}

void RemoveOldFiles(Folder& folder, std::chrono::year_month_day today) {
  for (const std::wstring& name : folder.Names()) {
    const auto day = DayIn(name);
    if (day && std::chrono::sys_days(today) - std::chrono::sys_days(*day) > kKept) {
      folder.Remove(name);
    }
  }
}

}  // namespace journal
