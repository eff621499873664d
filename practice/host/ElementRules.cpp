#include "practice/host/ElementRules.h"

#include <algorithm>
#include <array>

#include "common/Text.h"
#include "practice/host/Syntax.h"

namespace practice {
namespace {

using namespace syntax;
using common::Like;

constexpr std::size_t kLongestText = 200;

void Demand(bool holds, std::wstring_view why) {
  if (!holds) throw Refused{std::wstring(why)};
}

// SMITH/ANNA MRS(INFSMITH/BABY)
void CheckName(std::wstring_view text) {
  const std::size_t bracket = text.find(L'(');
  Demand(IsPersonName(text.substr(0, bracket)), L"NAME: LAST/FIRST");
  if (bracket == text.npos || text.substr(bracket) == L"(CHD)") return;
  const std::wstring_view infant = text.substr(bracket);
  Demand(infant.size() > 5 && infant.starts_with(L"(INF") && infant.ends_with(L")") &&
             IsPersonName(infant.substr(4, infant.size() - 5)),
         L"INFANT: (INFLAST/FIRST)");
}

bool IsClass(std::wstring_view word) { return Like(word, L"[A-Z]"); }
bool IsStatus(std::wstring_view word) {
  return Like(word, L"[A-Z][A-Z]#") || Like(word, L"[A-Z][A-Z]##");
}

// SK1234 Y 15MAR07 ARN CPH HK1 [0700 0810]  or  SK OPEN Y [15MAR07] ARN CPH
void CheckSegment(std::wstring_view text) {
  const std::vector<std::wstring> words = Words(text);
  constexpr std::wstring_view kForm =
      L"SEGMENT: SK1234 Y 15MAR07 ARN CPH HK1 [0700 0810] OR SK OPEN Y [15MAR07] ARN CPH";
  const std::size_t count = words.size();
  if (count >= 2 && words[1] == L"OPEN") {
    const std::size_t date = count == 6 ? 1 : 0;
    Demand(count == 5 + date && IsAirline(words[0]) && IsClass(words[2]) &&
               (date == 0 || IsDate(words[3])) && IsCity(words[3 + date]) &&
               IsCity(words[4 + date]),
           kForm);
    return;
  }
  Demand((count == 6 || count == 8) && IsFlight(words[0]) && IsClass(words[1]) &&
             IsDate(words[2]) && IsCity(words[3]) && IsCity(words[4]) && IsStatus(words[5]),
         kForm);
  Demand(count == 6 || (Like(words[6], L"####") && Like(words[7], L"####")), kForm);
}

void CheckCommission(std::wstring_view text) {
  std::wstring_view amount = text;
  while (Like(amount.substr(0, 3), L"[*][A-Z][*]")) amount.remove_prefix(3);
  if (amount.starts_with(L"*")) amount.remove_prefix(1);
  if (amount.ends_with(L"A") || amount.ends_with(L"P")) amount.remove_suffix(1);
  Demand(IsDecimal(amount), L"COMMISSION: 10, 10.50, 100A OR *C*10");
}

void CheckPayment(std::wstring_view text) {
  std::wstring_view form = text;
  if (form.starts_with(L"O/")) form.remove_prefix(2);
  if (form.starts_with(L"PT/")) form.remove_prefix(3);
  Demand(Like(form, L"[A-Z]*"), L"FORM OF PAYMENT: [O/][PT/]CASH");
}

// SK,FM *C*10,FP CASH,FA 117-4012345678
void CheckMco(std::wstring_view text) {
  const std::vector<std::wstring> fields = Split(text, L',');
  Demand(IsAirline(fields[0]) || fields[0] == L"--", L"MCO: AIRLINE, OR -- FOR NONE");
  std::size_t last = 0;
  constexpr std::array<std::wstring_view, 3> kNames = {L"FM", L"FP", L"FA"};
  for (std::size_t i = 1; i < fields.size(); ++i) {
    const auto* name = std::find(kNames.begin(), kNames.end(), fields[i].substr(0, 2));
    Demand(name != kNames.end() && fields[i].substr(2, 1) == L" ", L"MCO: FM, FP, FA");
    const std::size_t place = static_cast<std::size_t>(name - kNames.begin()) + 1;
    Demand(place > last, L"MCO: FM, FP, FA, EACH ONCE, IN THIS ORDER");
    last = place;
    const std::wstring value = fields[i].substr(3);
    if (place == 1) CheckCommission(value);
    if (place == 2) CheckPayment(value);
    if (place == 3) Demand(IsDocument(value), L"DOCUMENT: 117-4012345678");
  }
}

// OK, TL 10MAR07 or XL 10MAR07, then /OFFICE, /TIME, /Q...
void CheckTicketing(std::wstring_view text) {
  const std::vector<std::wstring> fields = Split(text, L'/');
  const std::vector<std::wstring> words = Split(fields[0], L' ');
  if (words[0] == L"TL" || words[0] == L"XL") {
    Demand(words.size() == 2 && IsDate(words[1]), L"TICKETING: TL AND XL WANT A DATE");
  } else {
    Demand(words.size() == 1 && words[0] == L"OK", L"TICKETING: OK, TL OR XL");
  }
  for (std::size_t i = 1; i < fields.size(); ++i) {
    Demand(IsOffice(fields[i]) || Like(fields[i], L"####") || Like(fields[i], L"Q*"),
           L"TICKETING: /OFFICE, /TIME OR /Q");
  }
}

// NET SEK800 SELL 1000 TOUR IT5SK1, at least one of them
void CheckFare(std::wstring_view text) {
  const std::vector<std::wstring> words = Words(text);
  constexpr std::array<std::wstring_view, 3> kNames = {L"NET", L"SELL", L"TOUR"};
  Demand(!words.empty() && words.size() % 2 == 0, L"FARE: NET, SELL, TOUR");
  std::size_t last = 0;
  for (std::size_t i = 0; i < words.size(); i += 2) {
    const auto* name = std::find(kNames.begin(), kNames.end(), words[i]);
    const std::size_t place = static_cast<std::size_t>(name - kNames.begin()) + 1;
    Demand(name != kNames.end() && place > last, L"FARE: NET, SELL, TOUR, IN THIS ORDER");
    Demand(place == 3 || IsAmount(words[i + 1]) || IsDecimal(words[i + 1]),
           L"FARE: SEK1000 OR 1000");
    last = place;
  }
}

// 117-4012345678 STO 80246878
void CheckFareOrder(std::wstring_view text) {
  const std::vector<std::wstring> words = Split(text, L' ');
  Demand(
      words.size() == 3 && IsDocument(words[0]) && IsCity(words[1]) && Like(words[2], L"########"),
      L"FO: DOCUMENT, CITY, IATA NUMBER");
}

void CheckOption(std::wstring_view text) {
  Demand(IsDate(text.substr(0, text.find(L' '))), L"OPTION: DATE, TEXT");
}

void CheckService(std::wstring_view text) {
  Demand(IsAirline(text.substr(0, text.find(L' '))), L"OSI: AIRLINE, TEXT");
}

void CheckAnyText(std::wstring_view text) { Demand(!text.empty(), L"NO TEXT"); }

}  // namespace

void CheckText(Kind kind, std::wstring_view text) {
  const bool printable = std::all_of(text.begin(), text.end(), [](wchar_t c) { return c >= L' '; });
  Demand(printable && text.find_first_of(L"[];") == text.npos,
         L"CHARACTERS [ ] ; AND CONTROL CHARACTERS ARE NOT FOR TEXTS");
  Demand(text.size() <= kLongestText, L"TEXT IS TOO LONG");
  switch (kind) {
    case Kind::kName:
      return CheckName(text);
    case Kind::kSegment:
      return CheckSegment(text);
    case Kind::kMco:
      return CheckMco(text);
    case Kind::kTicketing:
      return CheckTicketing(text);
    case Kind::kPayment:
      return CheckPayment(text);
    case Kind::kCommission:
      return CheckCommission(text);
    case Kind::kCarrier:
      return Demand(IsAirline(text), L"CARRIER: AIRLINE");
    case Kind::kFare:
      return CheckFare(text);
    case Kind::kDocument:
      return Demand(IsDocument(text), L"DOCUMENT: 117-4012345678");
    case Kind::kFareOrder:
      return CheckFareOrder(text);
    case Kind::kOption:
      return CheckOption(text);
    case Kind::kService:
      return CheckService(text);
    case Kind::kAddress:
    case Kind::kRemark:
      return CheckAnyText(text);
  }
}

bool TakesAssociation(Kind kind) {
  return kind != Kind::kName && kind != Kind::kSegment && kind != Kind::kTicketing;
}

SegmentParts PartsOf(std::wstring_view segmentText) {
  const std::vector<std::wstring> words = Words(segmentText);
  if (words.size() < 5) return {};
  if (words[1] != L"OPEN") return {words[0], words[2], words[3], words[4]};
  const std::wstring flight = words[0] + words[1];
  if (words.size() == 5) return {flight, {}, words[3], words[4]};
  return {flight, words[3], words[4], words[5]};
}

std::wstring McoField(std::wstring_view mcoText, std::wstring_view name) {
  const std::vector<std::wstring> fields = Split(mcoText, L',');
  for (std::size_t i = 1; i < fields.size(); ++i) {
    if (fields[i].starts_with(std::wstring(name) + L" ")) return fields[i].substr(3);
  }
  return {};
}

}  // namespace practice
