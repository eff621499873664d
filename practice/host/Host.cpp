#include "practice/host/Host.h"

#include <algorithm>

#include "practice/host/AssociationText.h"
#include "practice/host/Displays.h"
#include "practice/host/ElementEntries.h"
#include "practice/host/ElementRules.h"
#include "practice/host/FareEntries.h"
#include "practice/host/Syntax.h"

namespace practice {
namespace {

using Words = std::vector<std::wstring>;

constexpr std::size_t kLongestEntry = 1000;

bool IsOneOf(std::wstring_view code, std::initializer_list<std::wstring_view> codes) {
  for (const std::wstring_view one : codes) {
    if (one == code) return true;
  }
  return false;
}

[[noreturn]] void NotUnderstood(std::wstring_view code) {
  throw Refused{L"ENTRY " + std::wstring(code) + L" IS NOT UNDERSTOOD"};
}

}  // namespace

std::wstring Host::Enter(std::wstring_view entry) {
  const int number = ++entries_;
  // A copy: in the meantime the host may be told to behave.
  if (const auto slow = faults.slow) slow(number);
  if (faults.dropFrom > 0 && number >= faults.dropFrom) {
    if (faults.dropAnswerOnly && number == faults.dropFrom) Answer(entry);
    throw SessionLost();
  }
  const auto refusal = faults.refusals.find(number);
  std::wstring answer =
      refusal == faults.refusals.end() ? Answer(entry) : L"REFUSED: " + refusal->second;
  const auto garbage = faults.garbage.find(number);
  if (garbage != faults.garbage.end()) answer = garbage->second;
  if (listener) listener(entry, answer);
  return answer;
}

std::wstring Host::Answer(std::wstring_view entry) {
  try {
    bool display = false;
    const std::wstring answer = Execute(entry, display);
    return display ? displays::PnrDisplay(pnr_) : answer;
  } catch (const Refused& refused) {
    return L"REFUSED: " + refused.why;
  }
}

std::wstring Host::Execute(std::wstring_view entry, bool& display) {
  if (entry.empty()) throw Refused{L"EMPTY ENTRY"};
  if (entry.size() > kLongestEntry) throw Refused{L"ENTRY IS TOO LONG"};
  const Words words = syntax::Words(entry);
  const std::wstring code = words.empty() ? std::wstring(entry) : words[0];
  if (entry.find(L';') != entry.npos || IsElementEntry(entry)) {
    display = true;
    return ChangeElements(entry);
  }
  std::wstring answer;
  if (ExecuteDisplay(words, answer)) return answer;
  if (code == L"TU") return UpdateTst(entry);
  if (code == L"BT") return SendToBackOffice(entry);
  if (code == L"QE") return PlaceOnQueue(words);
  if (code == L"PRINT") return Print(words);
  if (code == L"TR") return Train(words);
  if (words.size() > 1) NotUnderstood(entry);
  if (code == L"IR") return Reread();
  if (code == L"ET") return EndTransaction();
  if (code == L"IG") return Ignore();
  NotUnderstood(entry);
}

// The entries that show something and change nothing but what is active.
bool Host::ExecuteDisplay(const Words& words, std::wstring& answer) {
  if (words.empty() || !IsOneOf(words[0], {L"RT", L"PV", L"TQT", L"TQTP", L"TQM"})) return false;
  if (words[0] == L"RT") {
    answer = Retrieve(words);
    return true;
  }
  const std::wstring& code = words[0];
  const bool redisplay = code == L"TQM" && words.size() > 1 && words.back() == L"RT";
  const std::size_t count = words.size() - (redisplay ? 1 : 0);
  const int number = count == 2 ? syntax::NumberIn(words[1]) : 0;
  if (count > 2 || number < 0 || (count == 2 && !IsOneOf(code, {L"TQT", L"TQM"}))) {
    NotUnderstood(syntax::Join(words, L" "));
  }
  if (code == L"PV") {
    answer = displays::OfficeDisplay(scene_.office);
  } else if (code == L"TQTP") {
    answer = displays::TstOverview(Shown(), scene_.listTst);
  } else if (code == L"TQT") {
    answer = count == 2 ? displays::TstDisplay(Active(), Active().TstAt(number))
                        : displays::TstOverview(Active(), scene_.listTst);
  } else {
    answer = count == 2 ? displays::TsmDisplay(Active(), Active().TsmAt(number))
                        : displays::TsmOverview(Active(), scene_.listTsm);
  }
  if (redisplay) answer += std::wstring(displays::kLineEnd) + displays::PnrDisplay(Active());
  return true;
}

// One element, or several with ";" between and perhaps at the end: all of them, or none.
std::wstring Host::ChangeElements(std::wstring_view entry) {
  Words pieces = syntax::Split(entry, L';');
  if (pieces.size() > 1 && pieces.back().empty()) pieces.pop_back();
  const bool opens = !active_;
  Pnr copy = opens ? Pnr() : pnr_;
  if (opens) copy.office = scene_.office;
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    try {
      if (!IsElementEntry(pieces[i])) NotUnderstood(pieces[i]);
      if (opens && i == 0 && !pieces[i].starts_with(L"NM ")) throw Refused{L"NO ACTIVE PNR"};
      ApplyElementEntry(copy, pieces[i]);
    } catch (const Refused& refused) {
      if (pieces.size() == 1) throw;
      throw Refused{L"ELEMENT " + std::to_wstring(i + 1) + L": " + refused.why};
    }
  }
  pnr_ = std::move(copy);
  active_ = changed_ = known_ = true;
  return {};
}

std::wstring Host::UpdateTst(std::wstring_view entry) {
  Pnr copy = Active();
  const int number = UpdateTstBy(copy, entry);
  pnr_ = std::move(copy);
  changed_ = true;
  return displays::TstDisplay(pnr_, pnr_.TstAt(number));
}

std::wstring Host::Retrieve(const Words& words) {
  if (words.size() == 1) return displays::PnrDisplay(Active());
  if (words.size() != 2) NotUnderstood(syntax::Join(words, L" "));
  if (active_ && changed_) throw Refused{L"END OR IGNORE THE ACTIVE PNR FIRST"};
  const auto found = stored_.find(words[1]);
  if (found == stored_.end()) throw Refused{L"NO PNR " + words[1]};
  pnr_ = found->second;
  active_ = known_ = true;
  return displays::PnrDisplay(pnr_);
}

std::wstring Host::Reread() {
  const auto found = stored_.find(Active().locator);
  if (found == stored_.end()) throw Refused{L"THE PNR IS NOT STORED"};
  IssueDocuments();
  pnr_ = found->second;
  changed_ = false;
  return displays::PnrDisplay(pnr_);
}

// Documents that are on their way come with the re-read that they were told for.
void Host::IssueDocuments() {
  for (PendingDocument& pending : scene_.pending) {
    if (pending.locator != pnr_.locator || --pending.rereads != 0) continue;
    Pnr& stored = stored_[pending.locator];
    const std::vector<int> segments = stored.Ids(Kind::kMco);
    if (static_cast<std::size_t>(pending.mco) > segments.size()) continue;
    const int id = segments[static_cast<std::size_t>(pending.mco) - 1];
    std::wstring& text = stored.At(stored.NumberOf(id)).text;
    if (McoField(text, L"FA").empty()) text += L",FA " + pending.number;
  }
}

std::wstring Host::EndTransaction() {
  Active();
  Store();
  active_ = false;
  return L"STORED " + pnr_.locator;
}

void Host::Store() {
  while (pnr_.locator.empty()) {
    std::wstring digits = std::to_wstring(++locators_);
    const std::wstring locator =
        L"PX" + std::wstring(4 - std::min<std::size_t>(digits.size(), 4), L'0') + digits;
    if (!stored_.contains(locator)) pnr_.locator = locator;
  }
  stored_[pnr_.locator] = pnr_;
  changed_ = false;
}

std::wstring Host::Ignore() {
  Active();
  active_ = false;
  return L"IGNORED";
}

std::wstring Host::Print(const Words& words) {
  if (words.size() != 2 || !IsOneOf(words[1], {L"RT", L"TQT", L"TQM"})) {
    throw Refused{L"PRINT WANTS RT, TQT OR TQM"};
  }
  std::wstring text;
  if (words[1] == L"RT") {
    text = displays::PnrDisplay(Active());
  } else {
    ExecuteDisplay({words[1]}, text);
  }
  if (!scene_.printerOn) throw Refused{L"THE PRINTER IS OFF"};
  printed_.push_back(std::move(text));
  return L"PRINTED " + words[1];
}

// BT [RETAIN] [P1 S2]: without RETAIN the PNR is stored and left.
std::wstring Host::SendToBackOffice(std::wstring_view entry) {
  std::wstring rest(entry);
  TakeAssociation(Active(), rest);
  const bool retain = rest == L"BT RETAIN";
  if (!retain && rest != L"BT") NotUnderstood(entry);
  Store();
  active_ = retain;
  backOffice_.push_back(pnr_.locator + std::wstring(entry.substr(2)));
  return L"SENT " + pnr_.locator;
}

// QE 80 [CAT 1] AT STOSK08AA [RETAIN] [RETRIEVE]: without RETAIN the PNR is left.
std::wstring Host::PlaceOnQueue(const Words& words) {
  Words place(words.begin() + 1, words.end());
  const bool retrieve = !place.empty() && place.back() == L"RETRIEVE";
  if (retrieve) place.pop_back();
  const bool retain = !place.empty() && place.back() == L"RETAIN";
  if (retain) place.pop_back();
  const Queues::Place queue = Queues::ReadPlace(place);
  Active();
  const Queues::State state = queues_.StateOf(queue);
  const std::wstring text = Queues::PlaceText(queue);
  if (state == Queues::State::kClosed) throw Refused{L"QUEUE " + text + L" IS CLOSED"};
  Store();
  const bool placed = queues_.Put(queue, pnr_.locator);
  active_ = retain || retrieve;
  return (placed ? L"QUEUED " : L"NOT QUEUED, THERE ALREADY ") + pnr_.locator + L" ON " + text +
         (state == Queues::State::kOn ? L" - QUEUE ON" : L" - QUEUE OFF");
}

Pnr& Host::Active() {
  if (!active_) throw Refused{L"NO ACTIVE PNR"};
  return pnr_;
}

const Pnr& Host::Shown() const {
  if (!known_) throw Refused{L"NO ACTIVE PNR"};
  return pnr_;
}

std::wstring Host::PnrText() const { return known_ ? displays::WholePnr(pnr_) : std::wstring(); }

std::wstring Host::StoredPnrText(std::wstring_view locator) const {
  const auto found = stored_.find(locator);
  return found == stored_.end() ? std::wstring() : displays::WholePnr(found->second);
}

}  // namespace practice
