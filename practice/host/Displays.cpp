#include "practice/host/Displays.h"

#include "practice/host/AssociationText.h"
#include "practice/host/ElementRules.h"
#include "practice/host/Syntax.h"

namespace practice::displays {
namespace {

constexpr std::size_t kPaymentColumn = 26;

class Lines {
 public:
  void Add(std::wstring line) { lines_.push_back(std::move(line)); }
  /// Only with a value.
  void Add(std::wstring_view label, const std::wstring& value) {
    if (!value.empty()) Add(std::wstring(label) + L" " + value);
  }
  std::wstring Text() const { return syntax::Join(lines_, kLineEnd); }

 private:
  std::vector<std::wstring> lines_;
};

std::wstring ElementLine(const Pnr& pnr, const Element& element, int number) {
  if (element.kind == Kind::kName) return std::to_wstring(number) + L"." + element.text;
  return std::to_wstring(number) + L" " + std::wstring(CodeOf(element.kind)) + L" " + element.text +
         AssociationText(pnr, element.association);
}

// With the passengers always named, also when the TST is for all.
std::wstring TstHead(const Pnr& pnr, const Tst& tst) {
  Association association = tst.association;
  association.passengers = PassengersOf(pnr, tst);
  return std::to_wstring(tst.number) + AssociationText(pnr, association);
}

std::wstring Itinerary(const Pnr& pnr, const Tst& tst) {
  std::wstring text;
  std::wstring at;
  for (const Element* segment : SegmentsOf(pnr, tst)) {
    const SegmentParts parts = PartsOf(segment->text);
    if (parts.from != at) text += (text.empty() ? L"" : L"//") + parts.from;
    text += L"-" + parts.to;
    at = parts.to;
  }
  return text;
}

void AddNames(Lines& lines, const Pnr& pnr, const Tst& tst) {
  const bool infant = tst.association.type == Association::Type::kInfant;
  for (const int id : PassengersOf(pnr, tst)) {
    const int number = pnr.NumberOf(id);
    const std::wstring& name = pnr.elements[static_cast<std::size_t>(number) - 1].text;
    lines.Add(L"NAME " + std::to_wstring(number) + L"." + name.substr(0, name.find(L'(')) +
              (infant ? L"(INF)" : L""));
  }
}

void AddLinked(Lines& lines, const Pnr& pnr, const Tst& tst, Kind kind) {
  const Element* element = LinkedElement(pnr, tst, kind);
  if (element == nullptr) return;
  lines.Add(std::wstring(CodeOf(kind)) + L" " + std::to_wstring(pnr.NumberOf(element->id)),
            element->text);
}

std::wstring PaymentColumn(const Pnr& pnr, const Tst& tst) {
  std::wstring payment = tst.payment;
  if (payment.empty()) {
    const Element* element = LinkedElement(pnr, tst, Kind::kPayment);
    if (element != nullptr) payment = element->text;
  }
  return payment.substr(0, kPaymentColumn);
}

std::wstring PassengerName(const Pnr& pnr, const Tsm& tsm) {
  const int number = pnr.NumberOf(tsm.passenger);
  const std::wstring& name = pnr.elements[static_cast<std::size_t>(number) - 1].text;
  return name.substr(0, name.find(L'('));
}

std::wstring TsmLine(const Pnr& pnr, const Tsm& tsm) {
  return syntax::Join(
      {std::to_wstring(tsm.number), std::to_wstring(pnr.NumberOf(tsm.passenger)), tsm.r, tsm.l,
       PassengerName(pnr, tsm), tsm.amount.substr(0, 3), tsm.amount.substr(3), tsm.payment},
      L",");
}

}  // namespace

std::wstring PnrDisplay(const Pnr& pnr) {
  Lines lines;
  lines.Add(L"PNR " + (pnr.locator.empty() ? L"------" : pnr.locator) + L" OFFICE " + pnr.office);
  int number = 0;
  for (const Element& element : pnr.elements) lines.Add(ElementLine(pnr, element, ++number));
  lines.Add(L"END OF PNR");
  return lines.Text();
}

std::wstring TstOverview(const Pnr& pnr, bool alwaysList) {
  if (pnr.tsts.empty()) return L"NO ACTIVE TST";
  if (pnr.tsts.size() == 1 && !alwaysList) return TstDisplay(pnr, pnr.tsts.front());
  Lines lines;
  lines.Add(L"TST LIST " + std::to_wstring(pnr.tsts.size()));
  for (const Tst& tst : pnr.tsts) lines.Add(TstHead(pnr, tst) + L" " + PaymentColumn(pnr, tst));
  lines.Add(L"END OF LIST");
  return lines.Text();
}

std::wstring TstDisplay(const Pnr& pnr, const Tst& tst) {
  Lines lines;
  lines.Add(L"TST " + TstHead(pnr, tst));
  AddNames(lines, pnr, tst);
  const std::vector<const Element*> segments = SegmentsOf(pnr, tst);
  if (!segments.empty()) {
    const SegmentParts first = PartsOf(segments.front()->text);
    lines.Add(L"FLIGHT " + first.flight);
    lines.Add(L"DATE", first.date);
  }
  lines.Add(L"ITINERARY", Itinerary(pnr, tst));
  lines.Add(L"NVA", tst.notValidAfter);
  lines.Add(L"FARE " + tst.fare);
  lines.Add(L"IND", tst.indicator);
  lines.Add(L"EQUIV", tst.equivalent);
  for (const std::wstring& tax : tst.taxes) lines.Add(L"TAX " + tax);
  lines.Add(L"XF", tst.xf);
  lines.Add(L"TOTAL", tst.total);
  lines.Add(L"SALES", tst.sales);
  lines.Add(L"CALC", tst.calculation);
  lines.Add(L"BASIS", tst.basis);
  AddLinked(lines, pnr, tst, Kind::kCommission);
  AddLinked(lines, pnr, tst, Kind::kPayment);
  AddLinked(lines, pnr, tst, Kind::kCarrier);
  if (tst.reissue) lines.Add(L"REISSUE");
  if (tst.pta) lines.Add(L"PTA");
  lines.Add(L"END OF TST");
  return lines.Text();
}

std::wstring TsmOverview(const Pnr& pnr, bool alwaysList) {
  if (pnr.tsms.size() == 1 && !alwaysList) return TsmDisplay(pnr, pnr.tsms.front());
  Lines lines;
  lines.Add(L"TSM LIST " + std::to_wstring(pnr.tsms.size()));
  for (const Tsm& tsm : pnr.tsms) lines.Add(TsmLine(pnr, tsm));
  lines.Add(L"END OF LIST");
  return lines.Text();
}

std::wstring TsmDisplay(const Pnr& pnr, const Tsm& tsm) {
  Lines lines;
  lines.Add(L"TSM " + std::to_wstring(tsm.number));
  lines.Add(L"PASSENGER " + std::to_wstring(pnr.NumberOf(tsm.passenger)) + L"." +
            PassengerName(pnr, tsm));
  lines.Add(L"R", tsm.r);
  lines.Add(L"L", tsm.l);
  lines.Add(L"AMOUNT " + tsm.amount);
  lines.Add(L"FOP", tsm.payment);
  lines.Add(L"FEE", tsm.fee);
  lines.Add(L"END OF TSM");
  return lines.Text();
}

std::wstring OfficeDisplay(std::wstring_view office) {
  Lines lines;
  lines.Add(L"OFFICE " + std::wstring(office));
  lines.Add(L"CITY " + std::wstring(office.substr(0, 3)));
  lines.Add(L"END OF OFFICE");
  return lines.Text();
}

std::wstring WholePnr(const Pnr& pnr) {
  Lines lines;
  lines.Add(PnrDisplay(pnr));
  for (const Tst& tst : pnr.tsts) lines.Add(TstDisplay(pnr, tst));
  for (const Tsm& tsm : pnr.tsms) lines.Add(TsmDisplay(pnr, tsm));
  return lines.Text();
}

}  // namespace practice::displays
