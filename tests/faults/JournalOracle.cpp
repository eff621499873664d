#include "tests/faults/JournalOracle.h"

#include <algorithm>
#include <optional>

#include "common/Text.h"
#include "tests/faults/ShownText.h"

namespace faults {
namespace {

using Lines = std::vector<std::wstring>;

constexpr std::wstring_view kNoAnswer = L"no answer";

/// A line of the journal's own without its time, and the text that follows it.
struct Item {
  std::wstring words;
  std::wstring text;
};

std::vector<Item> ItemsOf(const std::wstring& journal) {
  constexpr std::wstring_view kTime = L"##:##:##.### ";
  constexpr std::wstring_view kTextMark = L"    | ";
  std::vector<Item> items;
  for (std::size_t from = 0; from < journal.size();) {
    const std::size_t end = std::min(journal.find(L'\n', from), journal.size());
    const std::wstring line = journal.substr(from, end - from);
    if (common::Like(line.substr(0, kTime.size()), kTime)) {
      items.push_back({line.substr(kTime.size()), L""});
    } else if (line.starts_with(kTextMark) && !items.empty()) {
      items.back().text += line.substr(kTextMark.size()) + L"\n";
    }
    from = end + 1;
  }
  return items;
}

/// What the journal says of one entry.
struct Written {
  std::wstring text;
  bool hasText = false;
  Lines states;
};

class Judgement {
 public:
  Judgement(const Shown& shown, const std::wstring& journal, Withholding withholding)
      : shown_(shown), withholding_(withholding), items_(ItemsOf(journal)) {}

  Complaints All() {
    Read();
    JudgeEntries();
    JudgeSummary();
    JudgeBoxes();
    return found_;
  }

 private:
  // Numbers within a line stand behind "Entry ".
  void Read() {
    for (const Item& item : items_) {
      if (!item.words.starts_with(L"Entry ")) continue;
      const std::wstring rest = item.words.substr(item.words.find(L' ', 6) + 1);
      if (rest.starts_with(L"by ")) {
        entries_.push_back({item.text, rest.ends_with(L":"), {}});
      } else if (!rest.starts_with(L"answered ") && !entries_.empty()) {
        entries_.back().states.push_back(rest);
      }
      if (!item.words.starts_with(L"Entry " + std::to_wstring(entries_.size()) + L" ")) {
        found_.push_back(L"out of order: " + item.words);
      }
    }
  }

  void JudgeEntries() {
    std::size_t number = 0;
    auto next = shown_.outcome.entries.begin();
    for (const Event& event : shown_.timeline) {
      if (event.kind != Event::Kind::kEntry) continue;
      const auto* taken =
          next != shown_.outcome.entries.end() && next->entry == event.text ? &*next++ : nullptr;
      if (number < entries_.size()) JudgeEntry(number + 1, event, taken);
      ++number;
    }
    if (number != entries_.size()) {
      found_.push_back(L"the journal has " + std::to_wstring(entries_.size()) + L" of " +
                       std::to_wstring(number) + L" entries");
    }
  }

  void JudgeEntry(std::size_t number, const Event& event,
                  const practice::RehearsalOutcome::Entry* taken) {
    const Written& written = entries_[number - 1];
    if (written.hasText && !Shows(written.text, event.text)) {
      found_.push_back(L"another text: " + written.text.substr(0, 100));
    }
    if (written.states.size() != 1) {
      found_.push_back(L"no one state: " + event.text.substr(0, 100));
      return;
    }
    const std::wstring& state = written.states.front();
    if (!Fits(state, event, taken)) {
      found_.push_back(L"\"" + state + L"\" is not what happened to " + event.text.substr(0, 100));
    }
    for (auto& [name, numbers] : byState_) {
      if (state.starts_with(name)) numbers.push_back(number);
    }
  }

  bool Shows(const std::wstring& lines, const std::wstring& text) const {
    const bool isWithheld = withholding_ == Withholding::kPossible && lines == L"<withheld>\n";
    return isWithheld || IsShown(lines, text);
  }

  static bool Fits(const std::wstring& state, const Event& event,
                   const practice::RehearsalOutcome::Entry* taken) {
    const bool answered = event.outcome == Event::Outcome::kAnswered;
    const bool refusedByHost = taken != nullptr && taken->answer.starts_with(L"REFUSED");
    if (state.starts_with(L"accepted")) return answered && taken != nullptr && !refusedByHost;
    if (state.starts_with(L"not judged")) return answered && taken != nullptr;
    if (state.starts_with(L"unknown ")) return !answered;
    if (common::Contains(state, L"it was not sent")) return !answered && taken == nullptr;
    // By a flag that may be the fault's; or the reading of the PNR has failed, which sends nothing
    // that changes it.
    return state.starts_with(L"refused") && (answered || event.text == L"RT");
  }

  void JudgeSummary() {
    std::wstring summary = L"Entries: " + std::to_wstring(entries_.size());
    for (const auto& [name, numbers] : byState_) {
      summary += L", " + name + L" " + std::to_wstring(numbers.size());
      if (name == L"accepted" || numbers.empty()) continue;
      std::wstring list = common::UpperCase(name.substr(0, 1)) + name.substr(1) + L":";
      for (const std::size_t number : numbers) list += L" " + std::to_wstring(number) + L",";
      list.pop_back();
      Demand(list);
    }
    Demand(summary);
  }

  void Demand(const std::wstring& line) {
    if (std::ranges::count(items_, line, &Item::words) == 1) return;
    found_.push_back(L"no such line: " + line);
  }

  /// Entries and boxes in their order: "E", or a box with what it was answered.
  Lines SequenceOfTheRun() const {
    Lines sequence;
    for (const Event& event : shown_.timeline) {
      if (event.kind == Event::Kind::kEntry) sequence.push_back(L"E");
      if (event.kind == Event::Kind::kBox) sequence.push_back(event.cancelled ? L"Cancel" : L"OK");
    }
    return sequence;
  }

  Lines SequenceOfTheJournal() {
    Lines sequence;
    for (const Item& item : items_) {
      if (item.words.starts_with(L"Entry ") && common::Contains(item.words, L" by ")) {
        sequence.push_back(L"E");
      } else if (item.words.starts_with(L"Box of style ") ||
                 item.words.starts_with(L"Message by ")) {
        sequence.emplace_back(kNoAnswer);
        boxes_.push_back(item);
      } else if (item.words == L"Message closed" || item.words.starts_with(L"Box answered OK ")) {
        Answer(sequence, L"OK");
      } else if (item.words.starts_with(L"Box answered Cancel ")) {
        Answer(sequence, L"Cancel");
      } else if (item.words.starts_with(L"Failed: ScriptErrorReporter.") && !sequence.empty() &&
                 sequence.back() == kNoAnswer) {
        // The library was to show it and could not.
        sequence.pop_back();
        boxes_.pop_back();
      }
    }
    return sequence;
  }

  static void Answer(Lines& sequence, const wchar_t* answer) {
    if (!sequence.empty() && sequence.back() == kNoAnswer) {
      sequence.back() = answer;
    } else {
      sequence.emplace_back(L"an answer to nothing");
    }
  }

  void JudgeBoxes() {
    if (SequenceOfTheJournal() != SequenceOfTheRun()) {
      found_.push_back(L"the journal has other boxes, or elsewhere");
      return;
    }
    auto box = boxes_.begin();
    for (const Event& event : shown_.timeline) {
      if (event.kind != Event::Kind::kBox) continue;
      if (!ShowsBox(*box, event)) {
        found_.push_back(L"another box: " + box->text.substr(0, 100));
      }
      ++box;
    }
  }

  // What the library shows by itself the journal knows only by the failure that it saw last, whose
  // number follows.
  bool ShowsBox(const Item& item, const Event& box) const {
    const bool isTheLibrarys = box.lastError && !box.lastError->byProgram;
    const std::size_t number = item.text.rfind(L" (0x");
    if (!isTheLibrarys || number == item.text.npos) return Shows(item.text, box.text);
    return Shows(item.text.substr(0, number) + L"\n", box.text);
  }

  const Shown& shown_;
  Withholding withholding_;
  std::vector<Item> items_;
  std::vector<Written> entries_;
  std::vector<Item> boxes_;
  /// The numbers of the entries by their state, in the summary's order.
  std::vector<std::pair<std::wstring, std::vector<std::size_t>>> byState_ = {
      {L"accepted", {}}, {L"refused", {}}, {L"unknown", {}}, {L"not judged", {}}};
  Complaints found_;
};

}  // namespace

Complaints OnTheJournal(const Shown& shown, const std::wstring& journal, Withholding withholding) {
  return Judgement(shown, journal, withholding).All();
}

}  // namespace faults
