#include "practice/host/AssociationText.h"

#include "practice/host/Syntax.h"

namespace practice {
namespace {

using Type = Association::Type;

std::vector<int> LinesOf(const Pnr& pnr, std::wstring_view numbers, Kind kind,
                         const std::wstring& what) {
  const auto list = syntax::ReadNumbers(numbers);
  if (!list) throw Refused{L"ASSOCIATION: [P1-2,4 S3]"};
  std::vector<int> ids;
  for (const int number : *list) {
    const bool there = static_cast<std::size_t>(number) <= pnr.elements.size() &&
                       pnr.elements[static_cast<std::size_t>(number) - 1].kind == kind;
    if (!there) throw Refused{L"NO " + what + L" " + std::to_wstring(number)};
    ids.push_back(pnr.elements[static_cast<std::size_t>(number) - 1].id);
  }
  return ids;
}

void CheckInfants(const Pnr& pnr, const Association& association) {
  bool any = false;
  for (const Element* name : pnr.All(Kind::kName)) {
    if (name->text.find(L"(INF") != std::wstring::npos) any = true;
  }
  if (!any) throw Refused{L"NO INFANT IN THE PNR"};
  for (const int id : association.passengers) {
    const int number = pnr.NumberOf(id);
    const Element& name = pnr.elements[static_cast<std::size_t>(number) - 1];
    if (name.text.find(L"(INF") == std::wstring::npos) {
      throw Refused{L"NO INFANT WITH PASSENGER " + std::to_wstring(number)};
    }
  }
}

}  // namespace

std::optional<Association> TakeAssociation(const Pnr& pnr, std::wstring& text) {
  const std::size_t bracket = text.rfind(L" [");
  if (text.empty() || text.back() != L']' || bracket == text.npos) return std::nullopt;
  const std::vector<std::wstring> words =
      syntax::Split(std::wstring_view(text).substr(bracket + 2, text.size() - bracket - 3), L' ');
  Association association;
  std::size_t next = 0;
  if (words[0] == L"PAX" || words[0] == L"INF") {
    association.type = words[next++] == L"PAX" ? Type::kAdult : Type::kInfant;
  }
  if (next < words.size() && words[next].starts_with(L"P")) {
    association.passengers = LinesOf(pnr, words[next++].substr(1), Kind::kName, L"PASSENGER");
  }
  if (next < words.size() && words[next].starts_with(L"S")) {
    association.segments = LinesOf(pnr, words[next++].substr(1), Kind::kSegment, L"SEGMENT");
  }
  if (next < words.size() || association.IsEmpty()) throw Refused{L"ASSOCIATION: [P1-2,4 S3]"};
  if (association.type == Type::kInfant) CheckInfants(pnr, association);
  text.erase(bracket);
  return association;
}

std::wstring AssociationText(const Pnr& pnr, const Association& association) {
  std::vector<std::wstring> words;
  if (association.type != Type::kNone) {
    words.push_back(association.type == Type::kAdult ? L"PAX" : L"INF");
  }
  if (!association.passengers.empty()) {
    words.push_back(L"P" + LineNumbersText(pnr, association.passengers));
  }
  if (!association.segments.empty()) {
    words.push_back(L"S" + LineNumbersText(pnr, association.segments));
  }
  return words.empty() ? std::wstring() : L" [" + syntax::Join(words, L" ") + L"]";
}

std::wstring LineNumbersText(const Pnr& pnr, const std::vector<int>& ids) {
  std::vector<int> numbers;
  for (const int id : ids) numbers.push_back(pnr.NumberOf(id));
  return syntax::NumbersText(std::move(numbers));
}

}  // namespace practice
