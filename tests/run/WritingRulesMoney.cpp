#include <algorithm>
#include <cmath>
#include <cwchar>

#include "common/Text.h"
#include "tests/run/WritingRules.h"

// The money that the remarks tell of.
namespace run {
namespace {

// At most 15 digits, no zeros at the end.
std::wstring Plain(double number, const std::string& decimal) {
  wchar_t buffer[64];
  std::swprintf(buffer, 64, L"%.15g", number);
  return common::Replace(buffer, L".", common::FromUtf8(decimal));
}

long Whole(const std::wstring& amount) { return std::wcstol(amount.c_str() + 3, nullptr, 10); }

}  // namespace

double WritingRules::Fee() const { return std::wcstod(booking_.feeText.c_str(), nullptr); }

std::wstring WritingRules::FeePart() const {
  return Fee() == 0 ? L"" : L" + SEK" + Plain(Fee(), ".") + L"XP";
}

long WritingRules::Sum(std::wstring ModelFare::*amount) const {
  long sum = 0;
  for (const Fare& fare : fares_) sum += Whole(At(fare).*amount) * fare.count;
  return sum;
}

std::vector<std::pair<std::wstring, long>> WritingRules::Taxes() const {
  std::vector<std::pair<std::wstring, long>> taxes;
  for (const Fare& fare : fares_) {
    for (const std::wstring& tax : At(fare).taxes) {
      const std::wstring code = tax.substr(tax.find_last_of(L"0123456789") + 1);
      const auto held = std::find_if(taxes.begin(), taxes.end(),
                                     [&code](const auto& one) { return one.first == code; });
      if (held == taxes.end()) {
        taxes.emplace_back(code, Whole(tax) * fare.count);
      } else {
        held->second += Whole(tax) * fare.count;
      }
    }
  }
  return taxes;
}

std::wstring WritingRules::ProposedTotal() const {
  const ModelFare& first = At(fares_.front());
  std::wstring text = first.fare.substr(0, 3) + std::to_wstring(Sum(&ModelFare::fare));
  if (!first.equivalent.empty()) {
    text += L"/EQUIV SEK" + std::to_wstring(Sum(&ModelFare::equivalent));
  }
  std::wstring taxes;
  for (const auto& [code, amount] : Taxes()) {
    taxes += (taxes.empty() ? L"/TAX SEK" : L", SEK") + std::to_wstring(amount) + code;
  }
  return text + taxes;
}

std::wstring WritingRules::Money() const {
  int count = 0;
  for (const Fare& fare : fares_) count += fare.count;
  double tax = 0;
  double vat = 0;
  for (const auto& [code, amount] : Taxes()) {
    const bool isVAT = settings_.country == L"SE" && code == L"XSGO";
    (isVAT ? vat : tax) += static_cast<double>(amount) / count;
  }
  const auto group = [this](const std::wstring& name, double amount) {
    return amount == 0 ? L"" : name + Plain(amount, settings_.decimal);
  };
  const double fare = static_cast<double>(Sum(&ModelFare::total)) / count;
  const std::wstring fee =
      Fee() == 0
          ? L""
          : L",PTA:" + Plain(count > 1 ? std::floor(Fee() / count) : Fee(), settings_.decimal);
  return L"*FARE:" + Plain(fare, settings_.decimal) + group(L",TAX:", tax) + fee +
         group(L",VAT:", vat);
}

}  // namespace run
