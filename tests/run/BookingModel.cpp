#include "tests/run/BookingModel.h"

#include <algorithm>
#include <array>

namespace run {
namespace {

// In the order of the display.
constexpr std::array<const wchar_t*, 12> kCodes = {L"NM", L"SG", L"MCO", L"TK", L"AP", L"FP",
                                                   L"FM", L"FV", L"FO",  L"OP", L"RM", L"OS"};
constexpr std::wstring_view kCalculation = L"STO SK CPH SK STO END";

const std::vector<ModelLine>& LinesOf(const BookingModel& model, const std::wstring& code) {
  static const std::vector<ModelLine> kNone;
  const auto found = model.lines.find(code);
  return found == model.lines.end() ? kNone : found->second;
}

bool HoldsFor(const ModelAssociation& whom, const ModelFare& fare) {
  const bool infant = fare.whom.type == L"INF";
  if (whom.type == L"INF" && !infant) return false;
  if (whom.type == L"PAX" && infant) return false;
  if (whom.segments && !fare.whom.segments) return false;
  return whom.passengers.empty() ||
         std::all_of(fare.whom.passengers.begin(), fare.whom.passengers.end(), [&](int number) {
           return std::find(whom.passengers.begin(), whom.passengers.end(), number) !=
                  whom.passengers.end();
         });
}

bool IsForAll(const ModelAssociation& whom) {
  return whom.type.empty() && whom.passengers.empty() && !whom.segments;
}

std::wstring Optional(const std::wstring& label, const std::wstring& value) {
  return value.empty() ? std::wstring() : label + L" " + value + L"\n";
}

std::wstring FareAsEntry(const BookingModel& model, const ModelFare& fare) {
  std::wstring entry = L"TS FARE " + fare.fare;
  const auto add = [&entry](const std::wstring& label, const std::wstring& value) {
    if (!value.empty()) entry += L"," + label + L" " + value;
  };
  add(L"IND", fare.indicator);
  add(L"EQUIV", fare.equivalent);
  for (const std::wstring& tax : fare.taxes) add(L"TAX", tax);
  add(L"XF", fare.xf);
  add(L"TOTAL", fare.total);
  add(L"SALES", L"SITI");
  add(L"CALC", std::wstring(kCalculation));
  add(L"NVA", fare.notValidAfter);
  add(L"FOP", L"ANY");
  if (fare.pta) entry += L",PTA";
  return entry + model.AssociationText(fare.whom) + L"\n";
}

std::wstring NameAsShown(const BookingModel& model, int passenger, bool infant) {
  const std::wstring& name = LinesOf(model, L"NM")[static_cast<std::size_t>(passenger) - 1].text;
  return std::to_wstring(passenger) + L"." + name.substr(0, name.find(L'(')) +
         (infant ? L"(INF)" : L"");
}

std::wstring LinkedAsShown(const BookingModel& model, const ModelFare& fare,
                           const std::wstring& code) {
  const int index = model.Linked(code, fare);
  if (index < 0) return {};
  return code + L" " + std::to_wstring(model.NumberOf(code, static_cast<std::size_t>(index))) +
         L" " + model.LinkedText(code, fare) + L"\n";
}

std::wstring FareAsShown(const BookingModel& model, const ModelFare& fare, int number) {
  std::wstring text = L"TST " + std::to_wstring(number) + model.AssociationText(fare.whom) + L"\n";
  for (const int passenger : fare.whom.passengers) {
    text += L"NAME " + NameAsShown(model, passenger, fare.whom.type == L"INF") + L"\n";
  }
  text += L"FLIGHT SK1234\nDATE 15MAR07\nITINERARY ARN-CPH-ARN\n";
  text += Optional(L"NVA", fare.notValidAfter) + Optional(L"FARE", fare.fare) +
          Optional(L"IND", fare.indicator) + Optional(L"EQUIV", fare.equivalent);
  for (const std::wstring& tax : fare.taxes) text += L"TAX " + tax + L"\n";
  text += Optional(L"XF", fare.xf) + Optional(L"TOTAL", fare.total) + L"SALES SITI\nCALC " +
          std::wstring(kCalculation) + L"\n";
  for (const wchar_t* code : {L"FM", L"FP", L"FV"}) text += LinkedAsShown(model, fare, code);
  return text + (fare.pta ? L"PTA\n" : L"") + L"END OF TST\n";
}

}  // namespace

std::wstring NumberList(const std::vector<int>& numbers, int shortest) {
  std::wstring text;
  for (std::size_t i = 0; i < numbers.size();) {
    std::size_t run = 1;
    while (i + run < numbers.size() && numbers[i + run] == numbers[i] + static_cast<int>(run)) {
      ++run;
    }
    const bool isShortened = run >= static_cast<std::size_t>(shortest);
    if (!isShortened) run = 1;
    text += (text.empty() ? L"" : L",") + std::to_wstring(numbers[i]);
    if (isShortened) text += L"-" + std::to_wstring(numbers[i + run - 1]);
    i += run;
  }
  return text;
}

int BookingModel::NumberOf(const std::wstring& code, std::size_t index) const {
  int number = static_cast<int>(index) + 1;
  for (const std::wstring before : kCodes) {
    if (before == code) return number;
    number += static_cast<int>(LinesOf(*this, before).size());
  }
  return 0;
}

bool BookingModel::HasInfant(int passenger) const {
  return LinesOf(*this, L"NM")[static_cast<std::size_t>(passenger) - 1].text.find(L"(INF") !=
         std::wstring::npos;
}

int BookingModel::CountInfants() const {
  int count = 0;
  for (std::size_t i = 0; i < LinesOf(*this, L"NM").size(); ++i) {
    if (HasInfant(static_cast<int>(i) + 1)) ++count;
  }
  return count;
}

int BookingModel::Linked(const std::wstring& code, const ModelFare& fare) const {
  const std::vector<ModelLine>& all = LinesOf(*this, code);
  int forAll = -1;
  for (std::size_t i = 0; i < all.size(); ++i) {
    if (!HoldsFor(all[i].whom, fare)) continue;
    if (!IsForAll(all[i].whom)) return static_cast<int>(i);
    if (forAll < 0) forAll = static_cast<int>(i);
  }
  return forAll;
}

std::wstring BookingModel::LinkedText(const std::wstring& code, const ModelFare& fare) const {
  const int index = Linked(code, fare);
  return index < 0 ? std::wstring() : LinesOf(*this, code)[static_cast<std::size_t>(index)].text;
}

std::wstring BookingModel::SegmentNumbers() const {
  const int first = NumberOf(L"SG", 0);
  return std::to_wstring(first) + L"-" + std::to_wstring(first + 1);
}

std::wstring BookingModel::AssociationText(const ModelAssociation& whom) const {
  std::wstring text;
  const auto add = [&text](const std::wstring& word) {
    text += (text.empty() ? L"" : L" ") + word;
  };
  if (!whom.type.empty()) add(whom.type);
  if (!whom.passengers.empty()) add(L"P" + NumberList(whom.passengers, 2));
  if (whom.segments) add(L"S" + SegmentNumbers());
  return text.empty() ? text : L" [" + text + L"]";
}

std::wstring BookingModel::AsBooking() const {
  std::wstring text;
  for (const std::wstring code : kCodes) {
    for (const ModelLine& line : LinesOf(*this, code)) {
      text += code + L" " + line.text + AssociationText(line.whom) + L"\n";
    }
  }
  for (const ModelFare& fare : fares) text += FareAsEntry(*this, fare);
  text += L"TM FEE " + feeText + L",AMOUNT SEK1 [P1]\nTR LOCATOR ABC123\n";
  return text;
}

std::wstring BookingModel::AsDisplay() const {
  std::wstring text = L"PNR ABC123 OFFICE ARNAG2100\n";
  int number = 0;
  for (const std::wstring code : kCodes) {
    for (const ModelLine& line : LinesOf(*this, code)) {
      text += std::to_wstring(++number) + (code == L"NM" ? L"." : L" " + code + L" ") + line.text +
              AssociationText(line.whom) + L"\n";
    }
  }
  text += L"END OF PNR\n";
  for (std::size_t i = 0; i < fares.size(); ++i) {
    text += FareAsShown(*this, fares[i], static_cast<int>(i) + 1);
  }
  return text + L"TSM 1\nPASSENGER " + NameAsShown(*this, 1, false) + L"\nAMOUNT SEK1\nFEE " +
         feeText + L"\nEND OF TSM";
}

}  // namespace run
