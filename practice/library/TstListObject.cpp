#include "practice/library/Objects.h"

namespace practice::objects {
namespace {

using hostlib::Arguments;
using hostlib::ObjectPtr;
using hostlib::TextArray;
using hostlib::Value;
using Lines = std::vector<std::wstring>;

class TstListObject : public PracticeObject {
 public:
  explicit TstListObject(Workshop& workshop)
      : PracticeObject(hostlib::operations::tst_list_request::kClass, &workshop.lastError),
        workshop_(workshop) {
    using namespace hostlib::operations::tst_list_request;
    On(kBuildListCommand, [](const Arguments&) { return Value(L"TQT"); });
    On(kBuildPricingCommand, [](const Arguments&) { return Value(L"TQTP"); });
    On(kBuildDisplayCommand, [](const Arguments& a) {
      const std::wstring number = BagIn(a[0]).Get(L"strKeyTSTNum").Text();
      return Value(number.empty() ? std::wstring(L"TQT") : L"TQT " + number);
    });
    On(kReadResponse, [this](const Arguments& a) { return Read(a[0].Text()); });
  }

 private:
  Value Read(const std::wstring& response) {
    const auto bag = workshop_.MakeBag();
    const auto list = display_lines::DisplayIn(response, L"TST LIST ", L"END OF LIST");
    const auto tst =
        list ? std::nullopt : display_lines::DisplayIn(response, L"TST ", L"END OF TST");
    bag->Set(L"blnKeyTST", list || tst);
    bag->Set(L"blnKeyTSTList", list.has_value());
    bag->Set(L"intKeyNoOfTST", static_cast<std::int16_t>(list ? list->size() - 1 : tst ? 1 : 0));
    if (list) ReadList(*list, *bag);
    if (tst)
      bag->Set(L"strKeyTSTNum", display_lines::FirstWord(display_lines::ValueOf(*tst, L"TST")));
    return ObjectPtr(bag);
  }

  // "2 [P1-3 S2-3] CASH"; rows count from 1.
  static void ReadList(const Lines& lines, ParameterBagObject& bag) {
    TextArray numbers{{}, 1};
    TextArray persons{{}, 1};
    TextArray segments{{}, 1};
    TextArray payments{{}, 1};
    for (std::size_t i = 1; i < lines.size(); ++i) {
      std::wstring line = lines[i];
      const auto association = display_lines::TakeAssociationWords(line);
      const std::size_t blank = line.find(L' ');
      numbers.items.push_back(line.substr(0, blank));
      persons.items.push_back(association.passengers);
      segments.items.push_back(association.segments);
      payments.items.push_back(blank == line.npos ? std::wstring() : line.substr(blank + 1));
    }
    bag.Set(L"strKeyTSTSegment()", std::move(segments));
    bag.Set(L"strKeyPersonNbrArray()", std::move(persons));
    bag.Set(L"strKeyTSTNumArray()", std::move(numbers));
    bag.Set(L"strKeyFOPArray()", std::move(payments));
  }

  Workshop& workshop_;
};

}  // namespace

ObjectPtr MakeTstListRequest(Workshop& workshop) { return workshop.Make<TstListObject>(workshop); }

}  // namespace practice::objects
