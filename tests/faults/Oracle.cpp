#include "tests/faults/Oracle.h"

#include <algorithm>
#include <set>

#include "tests/faults/RuledBoxes.h"

namespace faults {
namespace {

using Lines = std::vector<std::wstring>;

// A case may show very long texts.
std::wstring Shortened(const std::wstring& text) { return L"\"" + text.substr(0, 200) + L"\""; }

bool IsEnd(const Event& event) {
  switch (event.kind) {
    case Event::Kind::kCancel:
      return true;
    case Event::Kind::kClosed:
      return event.text == L"frmPTA";
    case Event::Kind::kBox: {
      const auto rule = RuleOf(event);
      return event.cancelled || (rule && rule->endsRun);
    }
    case Event::Kind::kEntry:
      return false;
  }
  return false;
}

Lines EntriesOf(const Timeline& timeline) {
  Lines entries;
  for (const Event& event : timeline) {
    if (event.kind == Event::Kind::kEntry) entries.push_back(event.text);
  }
  return entries;
}

Lines AnsweredOf(const Timeline& timeline) {
  Lines entries;
  for (const Event& event : timeline) {
    const bool answered =
        event.kind == Event::Kind::kEntry && event.outcome == Event::Outcome::kAnswered;
    if (answered) entries.push_back(event.text);
  }
  return entries;
}

void Append(Complaints& all, const Complaints& more) {
  all.insert(all.end(), more.begin(), more.end());
}

}  // namespace

Replays::Replays(const practice::RehearsalScene& scene) { loaded_.LoadBooking(scene.booking); }

const Replays::State& Replays::After(const std::vector<std::wstring>& entries) {
  const auto [known, isNew] = known_.try_emplace(entries);
  State& state = known->second;
  if (!isNew) return state;
  practice::Host host = loaded_;
  for (const std::wstring& entry : entries) state.answers.push_back(host.Enter(entry));
  state.pnr = host.PnrText();
  state.printed = host.Printed();
  state.backOffice = host.SentToBackOffice();
  return state;
}

Complaints OnTheEnd(const Shown& shown) {
  Complaints found;
  if (!shown.stuck.empty()) found.push_back(L"the agent is stuck: " + shown.stuck);
  if (shown.outcome.exitCode != 0) found.push_back(L"the exit code is not 0");
  if (shown.outcome.liveObjects != 0) {
    found.push_back(std::to_wstring(shown.outcome.liveObjects) + L" objects are left");
  }
  return found;
}

Complaints OnTheBoxes(const Timeline& timeline) {
  Complaints found;
  for (const Event& event : timeline) {
    if (event.kind != Event::Kind::kBox || RuleOf(event)) continue;
    found.push_back(L"no rule names the box " + std::to_wstring(event.style) + L" " +
                    Shortened(event.title) + L" " + Shortened(event.text));
  }
  return found;
}

Complaints OnWhatIsSentAfterAnEnd(const Timeline& timeline) {
  const auto end = std::ranges::find_if(timeline, IsEnd);
  if (end == timeline.end()) return {};
  Complaints found;
  for (auto event = end; event != timeline.end(); ++event) {
    if (event->kind != Event::Kind::kEntry) continue;
    found.push_back(L"after the end by " + Shortened(end->text) + L" is sent " +
                    Shortened(event->text));
  }
  return found;
}

Complaints OnTheEntries(const Shown& shown) {
  Complaints found;
  const auto& taken = shown.outcome.entries;
  auto next = taken.begin();
  for (const Event& event : shown.timeline) {
    if (event.kind != Event::Kind::kEntry) continue;
    if (next != taken.end() && next->entry == event.text) {
      ++next;
    } else if (event.outcome == Event::Outcome::kAnswered) {
      found.push_back(L"answered, and the host did not take it: " + Shortened(event.text));
    }
  }
  for (; next != taken.end(); ++next) {
    found.push_back(L"the host took what was not sent: " + Shortened(next->entry));
  }
  return found;
}

Complaints OnThePNR(Replays& replays, const Shown& shown) {
  Complaints found;
  const practice::RehearsalOutcome& outcome = shown.outcome;
  const Replays::State& explained = replays.After(outcome.EntryTexts());
  for (std::size_t i = 0; i < outcome.entries.size(); ++i) {
    if (explained.answers[i] == outcome.entries[i].answer) continue;
    found.push_back(L"another host answers otherwise to " + Shortened(outcome.entries[i].entry));
  }
  if (explained.pnr != outcome.pnrAfter) {
    found.push_back(L"the entries do not explain the PNR");
  }
  if (explained.printed != outcome.printed) {
    found.push_back(L"the entries do not explain what was printed");
  }
  if (explained.backOffice != outcome.sentToBackOffice) {
    found.push_back(L"the entries do not explain what the back office got");
  }
  return found;
}

Complaints OnTheLostSession(const Shown& undisturbed, const Shown& shown) {
  const Lines entries = EntriesOf(undisturbed.timeline);
  const Lines answered = AnsweredOf(shown.timeline);
  const bool isPrefix = answered.size() <= entries.size() &&
                        std::equal(answered.begin(), answered.end(), entries.begin());
  if (isPrefix) return {};
  return {L"with a lost session the run has sent something of its own"};
}

Complaints OnTheAgentsKnowledge(const Timeline& undisturbed, const Timeline& shown) {
  std::multiset<std::wstring> ordinary;
  for (const Event& event : undisturbed) {
    if (event.kind == Event::Kind::kBox) ordinary.insert(event.text);
  }
  for (const Event& event : shown) {
    if (event.kind != Event::Kind::kBox) continue;
    const auto known = ordinary.find(event.text);
    if (known != ordinary.end()) {
      ordinary.erase(known);
    } else if (event.afterFault) {
      return {};
    }
  }
  return {L"the agent was not told"};
}

Complaints Judge(Replays& replays, const Shown& undisturbed, const Shown& shown, Fault fault) {
  Complaints found = OnTheEnd(shown);
  if (!shown.stuck.empty()) return found;
  Append(found, OnTheBoxes(shown.timeline));
  Append(found, OnWhatIsSentAfterAnEnd(shown.timeline));
  Append(found, OnTheEntries(shown));
  Append(found, OnThePNR(replays, shown));
  if (fault.place == 0) return found;
  if (!shown.struck) found.push_back(L"the fault did not come");
  if (IsError(fault.way)) {
    Append(found, OnTheAgentsKnowledge(undisturbed.timeline, shown.timeline));
  }
  const bool loses = fault.way == Way::kLibraryGone || fault.way == Way::kLibraryReplaced ||
                     fault.way == Way::kSessionLost || fault.way == Way::kAnswerLost;
  if (loses) Append(found, OnTheLostSession(undisturbed, shown));
  return found;
}

}  // namespace faults
