#include "practice/host/Pnr.h"

#include <algorithm>
#include <array>

namespace practice {
namespace {

constexpr std::array<std::wstring_view, 14> kCodes = {L"NM", L"SG", L"MCO", L"TK", L"AP",
                                                      L"FP", L"FM", L"FV",  L"FS", L"FA",
                                                      L"FO", L"OP", L"RM",  L"OS"};

bool Holds(const std::vector<int>& ids, int id) {
  return std::find(ids.begin(), ids.end(), id) != ids.end();
}

// An association without a list is for all.
bool Covers(const std::vector<int>& wide, const std::vector<int>& narrow) {
  return wide.empty() ||
         std::all_of(narrow.begin(), narrow.end(), [&wide](int id) { return Holds(wide, id); });
}

bool IsFor(const Association& association, const Tst& tst, const std::vector<int>& passengers) {
  const bool infant = tst.association.type == Association::Type::kInfant;
  if (association.type == Association::Type::kInfant && !infant) return false;
  if (association.type == Association::Type::kAdult && infant) return false;
  if (tst.association.segments.empty() && !association.segments.empty()) return false;
  return Covers(association.passengers, passengers) &&
         Covers(association.segments, tst.association.segments);
}

}  // namespace

std::wstring_view CodeOf(Kind kind) { return kCodes[static_cast<std::size_t>(kind)]; }

std::optional<Kind> KindOf(std::wstring_view code) {
  const auto* found = std::find(kCodes.begin(), kCodes.end(), code);
  if (found == kCodes.end()) return std::nullopt;
  return static_cast<Kind>(found - kCodes.begin());
}

void Pnr::Add(Element element) {
  if (elements.size() == kMostElements) throw Refused{L"THE PNR IS FULL"};
  if (element.kind == Kind::kName && Ids(Kind::kName).size() == kMostNames) {
    throw Refused{L"TOO MANY NAMES"};
  }
  element.id = ++lastId;
  const auto after =
      std::upper_bound(elements.begin(), elements.end(), element,
                       [](const Element& a, const Element& b) { return a.kind < b.kind; });
  elements.insert(after, std::move(element));
}

Element& Pnr::At(int number) {
  if (number < 1 || static_cast<std::size_t>(number) > elements.size()) {
    throw Refused{L"NO ELEMENT " + std::to_wstring(number)};
  }
  return elements[static_cast<std::size_t>(number) - 1];
}

int Pnr::NumberOf(int id) const {
  for (std::size_t i = 0; i < elements.size(); ++i) {
    if (elements[i].id == id) return static_cast<int>(i) + 1;
  }
  return 0;
}

std::vector<int> Pnr::Ids(Kind kind) const {
  std::vector<int> ids;
  for (const Element* element : All(kind)) ids.push_back(element->id);
  return ids;
}

std::vector<const Element*> Pnr::All(Kind kind) const {
  std::vector<const Element*> all;
  for (const Element& element : elements) {
    if (element.kind == kind) all.push_back(&element);
  }
  return all;
}

bool Pnr::IsInUse(int id) const {
  const auto uses = [id](const auto& user) {
    return Holds(user.association.passengers, id) || Holds(user.association.segments, id);
  };
  return std::any_of(elements.begin(), elements.end(), uses) ||
         std::any_of(tsts.begin(), tsts.end(), uses) ||
         std::any_of(tsms.begin(), tsms.end(),
                     [id](const Tsm& tsm) { return tsm.passenger == id; });
}

Tst& Pnr::TstAt(int number) {
  for (Tst& tst : tsts) {
    if (tst.number == number) return tst;
  }
  throw Refused{L"NO TST " + std::to_wstring(number)};
}

Tsm& Pnr::TsmAt(int number) {
  for (Tsm& tsm : tsms) {
    if (tsm.number == number) return tsm;
  }
  throw Refused{L"NO TSM " + std::to_wstring(number)};
}

std::vector<int> PassengersOf(const Pnr& pnr, const Tst& tst) {
  if (!tst.association.passengers.empty()) return tst.association.passengers;
  std::vector<int> passengers;
  for (const Element* name : pnr.All(Kind::kName)) {
    const bool withInfant = name->text.find(L"(INF") != std::wstring::npos;
    if (tst.association.type != Association::Type::kInfant || withInfant) {
      passengers.push_back(name->id);
    }
  }
  return passengers;
}

std::vector<const Element*> SegmentsOf(const Pnr& pnr, const Tst& tst) {
  std::vector<const Element*> segments = pnr.All(Kind::kSegment);
  if (!tst.association.segments.empty()) {
    std::erase_if(segments, [&tst](const Element* segment) {
      return !Holds(tst.association.segments, segment->id);
    });
  }
  return segments;
}

const Element* LinkedElement(const Pnr& pnr, const Tst& tst, Kind kind) {
  const std::vector<int> passengers = PassengersOf(pnr, tst);
  const Element* forAll = nullptr;
  for (const Element* element : pnr.All(kind)) {
    if (!IsFor(element->association, tst, passengers)) continue;
    if (!element->association.IsEmpty()) return element;
    if (forAll == nullptr) forAll = element;
  }
  return forAll;
}

}  // namespace practice
