#include "tests/run/WritingRules.h"

#include <algorithm>
#include <utility>

#include "common/Text.h"

namespace run {
namespace {

constexpr int kNeverShortened = 1000;
constexpr int kShortenedFrom = 3;
constexpr std::size_t kLongestRemark = 124;
constexpr std::size_t kEntriesStayBelow = 240;

// A remark in pieces of at most 124, cut at blanks; each has what stands before and behind.
std::vector<std::wstring> Divided(const std::wstring& text, const std::wstring& association) {
  const std::wstring before = text.starts_with(L"*") ? L"RM *" : L"RM ";
  std::vector<std::wstring> words;
  for (std::wstring rest = text.substr(before.size() - 3); !rest.empty();) {
    const std::size_t end = std::min(rest.find(L' '), rest.size());
    words.push_back(rest.substr(0, end));
    rest.erase(0, end + 1);
  }
  std::vector<std::wstring> pieces;
  for (const std::wstring& word : words) {
    const bool fits = !pieces.empty() &&
                      before.size() + pieces.back().size() + 1 + word.size() + association.size() <=
                          kLongestRemark;
    if (fits) {
      pieces.back() += L" " + word;
    } else {
      pieces.push_back(word);
    }
  }
  for (std::wstring& piece : pieces) piece = before + piece + association;
  return pieces;
}

}  // namespace

WritingRules::WritingRules(BookingModel& booking, const ModelSettings& settings,
                           const ModelAgent& agent)
    : booking_(booking), settings_(settings), agent_(agent), isList_(booking.fares.size() > 1) {
  for (const std::size_t index : agent.chosen) {
    const ModelAssociation& whom = booking.fares[index].whom;
    const bool infant = whom.type == L"INF";
    fares_.push_back(
        {index, infant ? booking.CountInfants() : static_cast<int>(whom.passengers.size())});
    std::vector<int>& all = infant ? infants_ : adults_;
    all.insert(all.end(), whom.passengers.begin(), whom.passengers.end());
    hasInfantFare_ = hasInfantFare_ || infant;
  }
  airline_ = booking.lines[L"MCO"].front().text.substr(0, 2);
}

Lines WritingRules::Write() {
  ChangeElements();
  CreateElements();
  SendElements();
  if (updatesFares_) UpdateFares();
  Close();
  return entries_;
}

void WritingRules::ChangeElements() {
  const std::wstring ticketing = booking_.lines[L"TK"].front().text;
  if (ticketing.substr(0, ticketing.find(L'/')) != L"OK" && !settings_.noTKUpdate) {
    Change(L"TK", 0,
           L"OK" + (agent_.office.empty() ? L"" : L"/" + agent_.office) +
               (common::Contains(ticketing, L"/Q") ? L"/Q" : L""));
  }
  const int remark = FindPWCT();
  newPWCT_ = remark < 0;
  if (!newPWCT_ && !agent_.pwct.empty()) {
    const auto index = static_cast<std::size_t>(remark);
    const std::wstring text = L"PWCT " + agent_.pwct;
    if (booking_.lines[L"RM"][index].text != text) Change(L"RM", index, text);
  }
  ChangeFareElements(
      L"FV", [this](const std::wstring& text) { return text == airline_ ? L"" : airline_; });
  ChangeFareElements(L"FM", [](const std::wstring& text) { return text == L"10" ? L"" : L"10"; });
  ChangeFareElements(L"FP", [this](const std::wstring& text) {
    return common::Contains(text, L"O/") ? L"" : L"O/PT/" + text + (LH() ? L"AGT" : L"");
  });
}

// The fares tell of their elements as they were before the first change.
void WritingRules::ChangeFareElements(const std::wstring& code, const NewText& newText) {
  const BookingModel asRead = booking_;
  int last = -1;
  for (const Fare& fare : fares_) {
    const int index = asRead.Linked(code, At(fare));
    if (index < 0 || index == last) continue;
    const std::wstring text = newText(asRead.LinkedText(code, At(fare)));
    if (text.empty()) continue;
    Change(code, static_cast<std::size_t>(index), text);
    last = index;
  }
}

void WritingRules::Change(const std::wstring& code, std::size_t index, const std::wstring& text) {
  entries_.push_back(L"CH " + std::to_wstring(booking_.NumberOf(code, index)) + L" " + text);
  booking_.lines[code][index].text = text;
}

void WritingRules::CreateElements() {
  const std::wstring mco = booking_.lines[L"MCO"].front().text;
  CreateForDocument(L"FO", mco.substr(mco.find(L"FA ") + 3) + L" STO 80246878");
  CreateFareElements(L"FP", LH() ? L"O/PT/CASHAGT" : L"O/PT/CASH", !booking_.lines[L"FP"].empty());
  CreateFareElements(L"FV", airline_, AnyHas(L"FV"));
  CreateFareElements(L"FM", L"10", AnyHas(L"FM"));
  if (newPWCT_) CreateRemark(L"PWCT " + agent_.pwct);
  if (!agent_.backOfficeInfo.empty()) CreateRemark(L"*" + agent_.backOfficeInfo);
  const auto& options = booking_.lines[L"OP"];
  const bool isFollowedUp = std::any_of(options.begin(), options.end(), [](const auto& option) {
    return common::Contains(option.text, L"16MAR07");
  });
  if (settings_.addOP && !isFollowedUp) {
    const std::wstring text =
        L"16MAR07" + (settings_.opText.empty() ? L"" : L" " + settings_.opText);
    elements_.push_back({L"OP", L"OP " + text, {{text, {}}}});
  }
  CreateRemark((settings_.includeRMinBOD ? L"*PTA TTL " : L"PTA TTL ") +
               (agent_.total.empty() ? ProposedTotal() : agent_.total) + FeePart());
  if (LH()) CreateRemark(L"PLS ACK PTA FROM ARNAG2100 TO " + agent_.office);
  CreateRemark(Money());
}

void WritingRules::CreateFareElements(const std::wstring& code, const std::wstring& text,
                                      bool exists) {
  if (!exists) return CreateForDocument(code, text);
  for (const Fare& fare : fares_) {
    if (booking_.Linked(code, At(fare)) >= 0) continue;
    ModelAssociation whom = Everyone();
    const bool infant = At(fare).whom.type == L"INF";
    whom.type = infant ? L"INF" : hasInfantFare_ ? L"PAX" : L"";
    whom.passengers = infant ? infants_ : At(fare).whom.passengers;
    Create(code, text, whom, kNeverShortened);
  }
}

void WritingRules::CreateForDocument(const std::wstring& code, const std::wstring& text) {
  ModelAssociation whom = Everyone();
  if (hasInfantFare_) whom.type = L"PAX";
  Create(code, text, whom, kShortenedFrom);
  if (!hasInfantFare_) return;
  whom.type = L"INF";
  whom.passengers = infants_;
  Create(code, text, whom, kNeverShortened);
}

void WritingRules::Create(const std::wstring& code, const std::wstring& text,
                          const ModelAssociation& whom, int shortest) {
  elements_.push_back({code, code + L" " + text + Sent(whom, shortest), {{text, whom}}});
}

void WritingRules::CreateRemark(const std::wstring& text) {
  const std::wstring association = Sent(Everyone(), kShortenedFrom);
  Element element{L"RM", L"RM " + text + association, {{text, Everyone()}}};
  if (element.sent.size() > kLongestRemark) {
    element.sent.clear();
    element.lines.clear();
    for (const std::wstring& piece : Divided(text, association)) {
      element.sent += (element.sent.empty() ? L"" : L";") + piece;
      const std::size_t length = piece.size() - 3 - association.size();
      element.lines.push_back({piece.substr(3, length), Everyone()});
    }
  }
  elements_.push_back(std::move(element));
}

void WritingRules::SendElements() {
  std::wstring entry;
  for (const Element& element : elements_) {
    auto& all = booking_.lines[element.code];
    all.insert(all.end(), element.lines.begin(), element.lines.end());
    if (!entry.empty() && entry.size() + element.sent.size() + 1 >= kEntriesStayBelow) {
      entries_.push_back(std::exchange(entry, L""));
    }
    entry += element.sent + L";";
  }
  entries_.push_back(entry);
}

void WritingRules::UpdateFares() {
  const bool isDated = std::any_of(fares_.begin(), fares_.end(), [this](const Fare& fare) {
    return !At(fare).notValidAfter.empty();
  });
  for (const Fare& fare : fares_) {
    ModelFare& updated = booking_.fares[fare.index];
    updated.pta = true;
    if (updated.indicator.empty()) updated.indicator = L"F";
    if (!isDated) updated.notValidAfter = L"15MAR07";
    std::wstring entry = L"TU " + std::to_wstring(fare.index + 1) + L" PTA/FARE " +
                         updated.indicator + L" " + updated.fare;
    if (!updated.equivalent.empty()) entry += L" EQUIV " + updated.equivalent;
    if (!updated.taxes.empty()) entry += L" TAX";
    for (const std::wstring& tax : updated.taxes) entry += L" " + tax;
    if (!updated.xf.empty()) entry += L"/C+PD XF " + updated.xf;
    entries_.push_back(entry + (isDated ? L"" : L"/NVA 15MAR07"));
  }
}

void WritingRules::Close() {
  if (settings_.printPNR) entries_.push_back(L"PRINT RT");
  if (settings_.sendBOD) {
    const bool associates = settings_.passengerSegmentAsso;
    entries_.push_back((agent_.office.empty() ? L"BT" : L"BT RETAIN") +
                       (associates ? Sent(Everyone(), kShortenedFrom) : L""));
  }
  if (!agent_.office.empty()) {
    const std::size_t c = agent_.queue.find(L'C');
    const std::wstring category =
        c == agent_.queue.npos ? L"" : L" CAT " + agent_.queue.substr(c + 1);
    entries_.push_back(L"QE " + agent_.queue.substr(0, c) + category + L" AT " + agent_.office);
  }
  if (settings_.panelMode) entries_.push_back(L"TQTP");
}

ModelAssociation WritingRules::Everyone() const { return {L"", adults_, isList_}; }

std::wstring WritingRules::Sent(const ModelAssociation& whom, int shortest) const {
  std::wstring text = whom.type;
  const auto add = [&text](const std::wstring& word) {
    text += (text.empty() ? L"" : L" ") + word;
  };
  if (!whom.passengers.empty()) add(L"P" + NumberList(whom.passengers, shortest));
  if (whom.segments) add(L"S" + booking_.SegmentNumbers());
  return text.empty() ? text : L" [" + text + L"]";
}

bool WritingRules::AnyHas(const std::wstring& code) const {
  return std::any_of(fares_.begin(), fares_.end(),
                     [&](const Fare& fare) { return booking_.Linked(code, At(fare)) >= 0; });
}

// The first one that is for the chosen segments, or for all of them.
int WritingRules::FindPWCT() const {
  const auto found = booking_.lines.find(L"RM");
  if (found == booking_.lines.end()) return -1;
  for (std::size_t i = 0; i < found->second.size(); ++i) {
    if (found->second[i].text.starts_with(L"PWCT")) return static_cast<int>(i);
  }
  return -1;
}

}  // namespace run
