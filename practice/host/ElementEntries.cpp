#include "practice/host/ElementEntries.h"

#include <algorithm>

#include "common/Text.h"
#include "practice/host/AssociationText.h"
#include "practice/host/ElementRules.h"
#include "practice/host/FareEntries.h"
#include "practice/host/Syntax.h"

namespace practice {
namespace {

std::wstring CodeIn(std::wstring_view entry) {
  return std::wstring(entry.substr(0, entry.find(L' ')));
}

// What follows the code and its blank; blanks that belong to the text stay.
std::wstring TextIn(std::wstring_view entry) {
  const std::size_t blank = entry.find(L' ');
  return blank == entry.npos ? std::wstring() : std::wstring(entry.substr(blank + 1));
}

void Put(Pnr& pnr, Element& element, std::wstring text, bool keepAssociation) {
  auto association = TakeAssociation(pnr, text);
  if (association && !TakesAssociation(element.kind)) {
    throw Refused{L"NO ASSOCIATION FOR " + std::wstring(CodeOf(element.kind))};
  }
  if (association) {
    element.association = std::move(*association);
  } else if (!keepAssociation) {
    element.association = {};
  }
  // A remark is kept as it was written, blanks and all.
  element.text = element.kind == Kind::kRemark ? text : common::Trim(text);
  CheckText(element.kind, element.text);
  const std::size_t length = CodeOf(element.kind).size() + 1 + element.text.size() +
                             AssociationText(pnr, element.association).size();
  if (element.kind == Kind::kRemark && length > kLongestRemark) {
    throw Refused{L"REMARK IS LONGER THAN " + std::to_wstring(kLongestRemark)};
  }
}

void Create(Pnr& pnr, Kind kind, std::wstring text) {
  Element element;
  element.kind = kind;
  Put(pnr, element, std::move(text), false);
  pnr.Add(std::move(element));
}

void Change(Pnr& pnr, std::wstring_view rest) {
  const int number = syntax::NumberIn(CodeIn(rest));
  if (number < 0) throw Refused{L"CH WANTS AN ELEMENT NUMBER"};
  Put(pnr, pnr.At(number), TextIn(rest), true);
}

void RemoveElement(Pnr& pnr, int number) {
  const Element& element = pnr.At(number);
  if (pnr.IsInUse(element.id)) {
    throw Refused{L"ELEMENT " + std::to_wstring(number) + L" IS ASSOCIATED"};
  }
  pnr.elements.erase(pnr.elements.begin() + number - 1);
}

template <typename Record>
void RemoveRecord(std::vector<Record>& records, const Record& record) {
  std::erase_if(records, [number = record.number](const Record& r) { return r.number == number; });
}

void Remove(Pnr& pnr, const std::vector<std::wstring>& words) {
  const int number = syntax::NumberIn(words.back());
  if (words.size() == 3 && words[1] == L"TST") return RemoveRecord(pnr.tsts, pnr.TstAt(number));
  if (words.size() == 3 && words[1] == L"TSM") return RemoveRecord(pnr.tsms, pnr.TsmAt(number));
  if (words.size() != 2 || number < 0) throw Refused{L"DEL WANTS A NUMBER, TST OR TSM"};
  RemoveElement(pnr, number);
}

}  // namespace

bool IsElementEntry(std::wstring_view entry) {
  const std::wstring code = CodeIn(entry);
  return KindOf(code) || code == L"CH" || code == L"DEL" || code == L"RO" || code == L"TS" ||
         code == L"TM";
}

void ApplyElementEntry(Pnr& pnr, std::wstring_view entry) {
  const std::wstring code = CodeIn(entry);
  if (const auto kind = KindOf(code)) return Create(pnr, *kind, TextIn(entry));
  if (code == L"CH") return Change(pnr, TextIn(entry));
  if (code == L"DEL") return Remove(pnr, syntax::Words(entry));
  if (code == L"TS") return CreateTst(pnr, TextIn(entry));
  if (code == L"TM") return CreateTsm(pnr, TextIn(entry));
  if (code != L"RO") throw Refused{L"NOT UNDERSTOOD"};
  if (!syntax::IsOffice(TextIn(entry))) throw Refused{L"RO WANTS AN OFFICE"};
  pnr.office = TextIn(entry);
}

}  // namespace practice
