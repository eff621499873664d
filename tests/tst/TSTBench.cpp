#include "tests/tst/TSTBench.h"

#include "practice/library/ParameterBagObject.h"

namespace tst {
namespace {

using hostlib::Arguments;
using hostlib::TextArray;
using hostlib::Value;
using practice::BagIn;
using practice::ParameterBagObject;
namespace operations = hostlib::operations;

const std::wstring kListShown = L"TQT SHOWN";

std::wstring TSTShown(const std::wstring& number) { return L"TQT/T" + number + L" SHOWN"; }

void FillFare(ParameterBagObject& bag, const ShownTST& tst) {
  bag.Set(L"strKeyTSTNum", tst.number);
  bag.Set(L"strKeyFare", tst.fare);
  bag.Set(L"strKeyFareIndicator", tst.fareIndicator);
  bag.Set(L"strKeyEquivFare", tst.equivalentFare);
  bag.Set(L"strKeyXFTax", tst.xfTax);
  bag.Set(L"strKeyTotalFare", tst.totalFare);
  bag.Set(L"strKeyFareCalc", tst.fareCalc);
  bag.Set(L"blnKeyReissue", tst.isReissue);
  bag.Set(L"strKeySalesIndicator", tst.salesIndicator);
  if (!tst.taxes.empty()) bag.Set(L"strKeyTaxArray()", TextArray{.items = tst.taxes});
}

void FillGeneral(ParameterBagObject& bag, const ShownTST& tst) {
  bag.Set(L"strKeyFirstTravelDate", tst.firstTravelDate);
  bag.Set(L"strKeyFirstFlightNo", tst.firstFlightNo);
  bag.Set(L"strKeyNotValidAfter", tst.notValidAfter);
  bag.Set(L"strKeyItinerary", tst.itinerary);
  bag.Set(L"strKeyAllFareBasis", tst.fareBasis);
}

void FillElement(ParameterBagObject& bag, const std::wstring& kind, std::int16_t number,
                 const std::wstring& text) {
  if (text.empty()) return;
  bag.Set(L"intKey" + kind + L"ElementNumber", number);
  bag.Set(L"strKey" + kind + L"ElementValue", text);
}

void FillFareElements(ParameterBagObject& bag, const ShownTST& tst) {
  FillElement(bag, L"FM", 10, tst.fm);
  FillElement(bag, L"FP", 11, tst.fp);
  FillElement(bag, L"FV", 12, tst.fv);
}

}  // namespace

TSTBench::TSTBench() {
  settings.strSymbol = L",";
  scripted.Answer(operations::terminal_session::kSendEntry, L"DONE");
  scripted.Answer(operations::terminal_session::kSendCommand, L"DONE");
  scripted.On(operations::terminal_session::kSendDisplay,
              [](const Arguments& a) { return Value(a[0].Text() + L" SHOWN"); });
  ScriptList();
  ScriptDetails();
  ScriptNames();
}

void TSTBench::ScriptList() {
  using namespace operations::tst_list_request;
  scripted.Answer(kBuildListCommand, L"TQT");
  scripted.Answer(kBuildPricingCommand, L"TQTP");
  scripted.On(kBuildDisplayCommand, [](const Arguments& a) {
    const std::wstring number = BagIn(a[0]).Get(L"strKeyTSTNum").Text();
    return Value(number.empty() ? L"TQT" : L"TQT/T" + number);
  });
  scripted.On(kReadResponse, [this](const Arguments& a) {
    const auto found = answers_.find(a[0].Text());
    return Value(found == answers_.end() ? scripted.Bag() : found->second);
  });
}

void TSTBench::ScriptDetails() {
  using namespace operations::tst_detail_request;
  const auto fill = [this](const hostlib::Operation& operation, auto&& with) {
    scripted.On(operation, [this, with](const Arguments& a) {
      with(BagIn(a[0]), shown.at(a[1].Text()));
      return Value();
    });
  };
  fill(kReadNames,
       [](ParameterBagObject& bag, const ShownTST& tst) { bag.Set(L"strKeyTSTNames", tst.names); });
  fill(kReadGeneral, FillGeneral);
  fill(kReadFare, FillFare);
  fill(kReadFareElements, FillFareElements);
}

void TSTBench::ScriptNames() {
  using namespace operations::pnr_reader;
  scripted.On(kCountNameElements,
              [this](const Arguments&) { return static_cast<std::int16_t>(pnrNames.size()); });
  scripted.Answer(kCountFSElements, std::int16_t{0});
  scripted.On(kGetNameElement, [this](const Arguments& a) {
    ParameterBagObject& bag = BagIn(a[0]);
    const std::int16_t index = bag.Get(L"intKeyIndex").Integer();
    bag.Set(L"strKeyElement", pnrNames.at(static_cast<std::size_t>(index)));
    bag.Set(L"strKeyElementNr", static_cast<std::int16_t>(index + 1));
    return Value();
  });
}

void TSTBench::HasOneTST(const ShownTST& tst) {
  shown[kListShown] = tst;
  Answers(kListShown,
          scripted.Bag(
              {{L"blnKeyTST", true}, {L"blnKeyTSTList", false}, {L"strKeyTSTNum", tst.number}}));
}

void TSTBench::HasList(const std::vector<ListedTST>& rows) {
  TextArray numbers{.items = {}, .lowerBound = 1};
  TextArray persons = numbers;
  TextArray fops = numbers;
  TextArray segments = numbers;
  for (const ListedTST& row : rows) {
    numbers.items.push_back(row.number);
    persons.items.push_back(row.persons);
    fops.items.push_back(row.fop);
    segments.items.push_back(row.segment);
    if (!shown.contains(TSTShown(row.number))) Shows({.number = row.number});
  }
  Answers(kListShown, scripted.Bag({{L"blnKeyTST", true},
                                    {L"blnKeyTSTList", true},
                                    {L"intKeyNoOfTST", static_cast<std::int16_t>(rows.size())},
                                    {L"strKeyTSTSegment()", segments},
                                    {L"strKeyPersonNbrArray()", persons},
                                    {L"strKeyTSTNumArray()", numbers},
                                    {L"strKeyFOPArray()", fops}}));
}

void TSTBench::Shows(const ShownTST& tst) {
  shown[TSTShown(tst.number)] = tst;
  Answers(TSTShown(tst.number),
          scripted.Bag(
              {{L"blnKeyTST", true}, {L"blnKeyTSTList", false}, {L"strKeyTSTNum", tst.number}}));
}

void TSTBench::Answers(const std::wstring& response, hostlib::ObjectPtr bag) {
  answers_.insert_or_assign(response, std::move(bag));
}

Lines TSTBench::ReportedBoxes() const {
  const std::wstring start = L"ScriptErrorReporter.1.18 ShowError(";
  Lines boxes;
  for (const std::wstring& line : recorder.lines()) {
    if (line.starts_with(L"ScriptErrorReporter.1.11")) boxes.push_back(L"last error");
    if (!line.starts_with(start)) continue;
    const std::size_t text = line.find(L"\", \"") + 4;
    const std::size_t end = line.rfind(L"\", ");
    const std::wstring style = line.substr(end + 3, line.size() - end - 4);
    boxes.push_back(style + L" " + line.substr(text, end - text));
  }
  return boxes;
}

Lines TSTBench::OwnBoxes() const {
  Lines boxes;
  for (const std::wstring& line : desktop.log) {
    if (line.starts_with(L"box ")) boxes.push_back(line);
  }
  return boxes;
}

}  // namespace tst
