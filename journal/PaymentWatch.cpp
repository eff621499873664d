#include "journal/PaymentWatch.h"

#include <algorithm>

#include "common/Text.h"
#include "hostlib/Operations.h"

namespace journal {
namespace {

namespace operations = hostlib::operations;

constexpr std::wstring_view kPaymentKeys[] = {L"strKeyMCOFPElement", L"strKeyFPElementValue",
                                              L"strKeyFOPArray()", L"strTSMListFOPArray"};
constexpr std::wstring_view kPaymentControl = L"txtFormOfPayment";
/// A text of any element; only the builder that the bag goes to tells of which.
constexpr std::wstring_view kElementTextKey = L"strKeyText";

constexpr std::wstring_view kDisplayMarks[] = {L"FP ", L"FOP "};

struct Mark {
  std::size_t at;
  std::size_t end;
};

/// Behind the text when there is none.
Mark NextMark(std::wstring_view text, std::size_t from) {
  for (std::size_t at = text.find(L'F', from); at < text.size(); at = text.find(L'F', at + 1)) {
    if (at > 0 && common::IsLetter(text[at - 1])) continue;
    for (const std::wstring_view mark : kDisplayMarks) {
      if (text.substr(at).starts_with(mark)) return {at, at + mark.size()};
    }
  }
  return {text.size(), text.size()};
}

/// "7 CASH" as "CASH": a display may name the element that the value is from.
std::wstring_view WithoutNumber(std::wstring_view text) {
  const std::size_t digits = std::min(text.find_first_not_of(L"0123456789"), text.size());
  const bool isNumbered = digits > 0 && digits < text.size() && text[digits] == L' ';
  return isNumbered ? text.substr(digits + 1) : text;
}

std::wstring_view KeyOf(const hostlib::CallInfo& call) {
  const auto* key =
      call.arguments.empty() ? nullptr : call.arguments.front().If<std::wstring_view>();
  return key == nullptr ? std::wstring_view() : *key;
}

bool IsPaymentKey(std::wstring_view key) {
  return std::ranges::find(kPaymentKeys, key) != std::end(kPaymentKeys);
}

}  // namespace

bool HoldsPayment(std::wstring_view controlName) { return controlName == kPaymentControl; }

void PaymentWatch::Before(const hostlib::CallInfo& call) {
  if (Is(call.operation, operations::pnr_element_builder::kExecuteFP)) Declare(elementText_);
  const bool sets = Is(call.operation, operations::parameter_bag::kSetValue);
  if (!sets || call.arguments.size() != 2) return;
  const std::wstring_view key = KeyOf(call);
  if (key == kElementTextKey) elementText_ = hostlib::Value(call.arguments[1]);
  if (IsPaymentKey(key)) Declare(call.arguments[1]);
}

void PaymentWatch::After(const hostlib::CallInfo& call, const hostlib::Value& answer) {
  if (Is(call.operation, operations::parameter_bag::kGetValue)) {
    const bool isPayment = IsPaymentKey(KeyOf(call));
    listHoldsPayments_ = isPayment && answer.IsObject();
    if (isPayment) Declare(answer);
  } else if (call.object == operations::kList && listHoldsPayments_) {
    Declare(answer);
  }
}

void PaymentWatch::Display(std::wstring_view answer) {
  for (Mark mark = NextMark(answer, 0); mark.at < answer.size();) {
    const Mark next = NextMark(answer, mark.end);
    const std::wstring_view value = answer.substr(mark.end, next.at - mark.end);
    masking_.Declare(WithoutNumber(value.substr(0, value.find_first_of(L"\r\n,;["))));
    mark = next;
  }
}

void PaymentWatch::Declare(const hostlib::ValueView& value) {
  if (const auto* text = value.If<std::wstring_view>()) masking_.Declare(*text);
  if (const auto* texts = value.If<hostlib::TextArray>()) {
    for (const std::wstring& text : texts->items) masking_.Declare(text);
  }
}

}  // namespace journal
