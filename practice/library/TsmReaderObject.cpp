#include "common/Numbers.h"
#include "practice/host/Syntax.h"
#include "practice/library/Objects.h"

namespace practice::objects {
namespace {

using hostlib::Arguments;
using hostlib::DoubleArray;
using hostlib::IntegerArray;
using hostlib::ObjectPtr;
using hostlib::TextArray;
using hostlib::Value;
using Lines = std::vector<std::wstring>;

constexpr std::size_t kListFields = 8;
constexpr int kHighestNumber = 999;

bool IsSmall(const std::wstring& number) {
  return syntax::IsNumber(number) && syntax::NumberIn(number) <= kHighestNumber;
}

std::int16_t Small(const std::wstring& number) {
  return static_cast<std::int16_t>(syntax::NumberIn(number));
}

/// The list's columns, a row a TSM.
struct Columns {
  IntegerArray m;
  IntegerArray p;
  TextArray r;
  TextArray l;
  TextArray name;
  TextArray currency;
  DoubleArray amount;
  TextArray payment;
};

// "2,1,R,L,SMITH/JOHN MR,SEK,1160,CASH"
bool AddRow(Columns& columns, const std::wstring& line) {
  const Lines fields = syntax::Split(line, L',');
  if (fields.size() != kListFields || !IsSmall(fields[0]) || !IsSmall(fields[1])) return false;
  columns.m.items.push_back(Small(fields[0]));
  columns.p.items.push_back(Small(fields[1]));
  columns.r.items.push_back(fields[2]);
  columns.l.items.push_back(fields[3]);
  columns.name.items.push_back(fields[4]);
  columns.currency.items.push_back(fields[5]);
  columns.amount.items.push_back(common::HostNumber(fields[6]));
  columns.payment.items.push_back(fields[7]);
  return true;
}

class TsmReaderObject : public PracticeObject {
 public:
  explicit TsmReaderObject(Workshop& workshop)
      : PracticeObject(hostlib::operations::tsm_display_reader::kClass, &workshop.lastError),
        workshop_(workshop) {
    using namespace hostlib::operations::tsm_display_reader;
    On(kBuildTQMEntry, [](const Arguments& a) { return Value(BuildEntry(BagIn(a[0]))); });
    On(kParseTQMResponse, [this](const Arguments& a) {
      BagIn(a[1]);
      return Parse(a[0].Text());
    });
  }

 private:
  static std::wstring BuildEntry(const ParameterBagObject& bag) {
    std::wstring entry = L"TQM";
    if (bag.Has(L"strNoTSM")) {
      entry += L" " + std::to_wstring(bag.Get(L"strNoTSM").Integer());
    }
    if (bag.Get(L"blnKeyRedisplayPNR").Flag()) entry += L" RT";
    return entry;
  }

  Value Parse(const std::wstring& response) {
    const auto bag = workshop_.MakeBag();
    bag->Set(L"blnKeyDisplayOK", true);
    bag->Set(L"blnKeyTSMFound", false);
    bag->Set(L"blnMCOFeeFound", false);
    bag->Set(L"dblMCOFee", 0.0);
    if (const auto list = display_lines::DisplayIn(response, L"TSM LIST ", L"END OF LIST")) {
      if (ReadList(*list, *bag)) return ObjectPtr(bag);
    } else if (const auto tsm = display_lines::DisplayIn(response, L"TSM ", L"END OF TSM")) {
      ReadOne(*tsm, *bag);
      return ObjectPtr(bag);
    }
    bag->Set(L"blnKeyDisplayOK", false);
    bag->Set(L"strKeyErrorResponse", display_lines::FirstLine(response));
    return ObjectPtr(bag);
  }

  static void ReadOne(const Lines& lines, ParameterBagObject& bag) {
    const std::wstring fee = display_lines::ValueOf(lines, L"FEE");
    bag.Set(L"blnKeyTSMFound", true);
    bag.Set(L"blnMCOFeeFound", !fee.empty());
    bag.Set(L"dblMCOFee", common::HostNumber(fee));
    if (fee.empty()) bag.Set(L"strKeyErrorResponse", lines.front() + L" HAS NO FEE");
  }

  bool ReadList(const Lines& lines, ParameterBagObject& bag) {
    Columns columns;
    for (std::size_t i = 1; i < lines.size(); ++i) {
      if (!AddRow(columns, lines[i])) return false;
    }
    bag.Set(L"intNoTSM", static_cast<std::int16_t>(columns.m.items.size()));
    bag.Set(L"intTSMListMArray", workshop_.MakeList(columns.m));
    bag.Set(L"intTSMListPArray", workshop_.MakeList(columns.p));
    bag.Set(L"strTSMListRArray", workshop_.MakeList(columns.r));
    bag.Set(L"strTSMListLArray", workshop_.MakeList(columns.l));
    bag.Set(L"strTSMListNameArray", workshop_.MakeList(columns.name));
    bag.Set(L"strTSMListCurrencyArray", workshop_.MakeList(columns.currency));
    bag.Set(L"dblTSMListAmountArray", workshop_.MakeList(columns.amount));
    bag.Set(L"strTSMListFOPArray", workshop_.MakeList(columns.payment));
    return true;
  }

  Workshop& workshop_;
};

}  // namespace

ObjectPtr MakeTsmDisplayReader(Workshop& workshop) {
  return workshop.Make<TsmReaderObject>(workshop);
}

}  // namespace practice::objects
