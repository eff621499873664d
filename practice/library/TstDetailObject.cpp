#include "practice/host/Syntax.h"
#include "practice/library/Objects.h"

namespace practice::objects {
namespace {

using display_lines::ValueOf;
using hostlib::Arguments;
using hostlib::Operation;
using hostlib::TextArray;
using hostlib::Value;
using Lines = std::vector<std::wstring>;
namespace detail = hostlib::operations::tst_detail_request;

constexpr int kHighestLine = 999;

Lines TstLines(const std::wstring& response) {
  auto lines = display_lines::DisplayIn(response, L"TST ", L"END OF TST");
  if (!lines) RaiseFailure(kNoDisplay, L"The answer is no TST display");
  return std::move(*lines);
}

void ReadFare(const Lines& lines, ParameterBagObject& bag) {
  bag.Set(L"strKeyTSTNum", display_lines::FirstWord(ValueOf(lines, L"TST")));
  bag.Set(L"strKeyFare", ValueOf(lines, L"FARE"));
  bag.Set(L"strKeyFareIndicator", ValueOf(lines, L"IND"));
  bag.Set(L"strKeyEquivFare", ValueOf(lines, L"EQUIV"));
  bag.Set(L"strKeyXFTax", ValueOf(lines, L"XF"));
  bag.Set(L"strKeyTotalFare", ValueOf(lines, L"TOTAL"));
  bag.Set(L"strKeyFareCalc", ValueOf(lines, L"CALC"));
  // What the PTA was written for once can only be written again as a reissue.
  bag.Set(L"blnKeyReissue",
          display_lines::HasLine(lines, L"REISSUE") || display_lines::HasLine(lines, L"PTA"));
  bag.Set(L"strKeySalesIndicator", ValueOf(lines, L"SALES"));
  const Lines taxes = display_lines::ValuesOf(lines, L"TAX");
  if (!taxes.empty()) bag.Set(L"strKeyTaxArray()", TextArray{taxes, 0});
}

// "FP 7 CASH"; without such a line both keys stay unset.
void ReadLinked(const Lines& lines, ParameterBagObject& bag, const std::wstring& code) {
  const std::wstring value = ValueOf(lines, code);
  const std::size_t blank = value.find(L' ');
  const int number = syntax::NumberIn(value.substr(0, blank));
  if (number < 0 || number > kHighestLine || blank == value.npos) return;
  bag.Set(L"intKey" + code + L"ElementNumber", static_cast<std::int16_t>(number));
  bag.Set(L"strKey" + code + L"ElementValue", value.substr(blank + 1));
}

void ReadFareElements(const Lines& lines, ParameterBagObject& bag) {
  ReadLinked(lines, bag, L"FM");
  ReadLinked(lines, bag, L"FP");
  ReadLinked(lines, bag, L"FV");
}

void ReadGeneral(const Lines& lines, ParameterBagObject& bag) {
  bag.Set(L"strKeyFirstTravelDate", ValueOf(lines, L"DATE"));
  bag.Set(L"strKeyFirstFlightNo", ValueOf(lines, L"FLIGHT"));
  bag.Set(L"strKeyNotValidAfter", ValueOf(lines, L"NVA"));
  bag.Set(L"strKeyItinerary", ValueOf(lines, L"ITINERARY"));
  bag.Set(L"strKeyAllFareBasis", ValueOf(lines, L"BASIS"));
}

void ReadNames(const Lines& lines, ParameterBagObject& bag) {
  bag.Set(L"strKeyTSTNames", syntax::Join(display_lines::ValuesOf(lines, L"NAME"), L";"));
}

/// Reads groups of values out of one TST display.
class TstDetailObject : public PracticeObject {
 public:
  explicit TstDetailObject(Workshop& workshop)
      : PracticeObject(detail::kClass, &workshop.lastError) {
    Read(detail::kReadFare, ReadFare);
    Read(detail::kReadFareElements, ReadFareElements);
    Read(detail::kReadGeneral, ReadGeneral);
    Read(detail::kReadNames, ReadNames);
  }

 private:
  void Read(const Operation& operation, void (*reader)(const Lines&, ParameterBagObject&)) {
    On(operation, [reader](const Arguments& a) {
      reader(TstLines(a[1].Text()), BagIn(a[0]));
      return Value();
    });
  }
};

}  // namespace

hostlib::ObjectPtr MakeTstDetailRequest(Workshop& workshop) {
  return workshop.Make<TstDetailObject>(workshop);
}

}  // namespace practice::objects
