#include "practice/rehearsal/ScriptedAgent.h"

#include <algorithm>

#include "common/ConstDefintions.h"
#include "common/Text.h"
#include "practice/rehearsal/FormActions.h"

namespace practice {
namespace {

std::wstring Quoted(std::wstring_view text) {
  const std::wstring escaped = common::Replace(text, L"\r", L"\\r");
  return L"\"" + common::Replace(escaped, L"\n", L"\\n") + L"\"";
}

}  // namespace

ScriptedAgent::ScriptedAgent(std::vector<AgentLine> script) : script_(std::move(script)) {}

void ScriptedAgent::Leave() const {
  if (Next() != nullptr) Disagree(L"the run has ended, and the agent is not done");
}

void ScriptedAgent::Show(ui::Form& form) {
  if (form.Load()) Appear(form);
}

void ScriptedAgent::ShowModal(ui::Form& form) {
  if (!form.Load()) return;
  Appear(form);
  Interact(form);
}

void ScriptedAgent::Beep() { seen_.push_back(L"beep"); }

void ScriptedAgent::Run() {
  while (!visible_.empty()) Interact(*visible_.back());
}

int ScriptedAgent::ShowBox(std::wstring_view text, int style, std::wstring_view title) {
  seen_.push_back(L"box " + std::to_wstring(style) + L" " + Quoted(title) + L" " + Quoted(text));
  const AgentLine* line = Next();
  if (line == nullptr || line->verb != L"box") {
    Disagree(L"a box appeared that the agent does not expect: " + Quoted(text));
  }
  const bool agrees = line->Word(1) == text &&
                      (line->words.size() < 3 || line->Word(2) == std::to_wstring(style)) &&
                      (line->words.size() < 4 || line->Word(3) == title);
  if (!agrees) {
    Disagree(L"another box appeared: " + std::to_wstring(style) + L" " + Quoted(title) + L" " +
             Quoted(text));
  }
  const bool cancels = line->Word(0) == L"cancel";
  if (cancels && (style & common::kOkCancel) == 0) Disagree(L"the box has no Cancel");
  ++at_;
  seen_.back() += cancels ? L" -> Cancel" : L" -> OK";
  return cancels ? common::kCancel : common::kOk;
}

void ScriptedAgent::FormClosed(ui::Form& form) {
  seen_.push_back(common::Joined({L"closed ", form.name()}));
  std::erase(visible_, &form);
}

void ScriptedAgent::Appear(ui::Form& form) {
  if (!form.IsVisible()) visible_.push_back(&form);
  form.Shown(*this);
  seen_.push_back(common::Joined({L"shown ", form.name(), L" ", Quoted(form.Caption())}));
}

void ScriptedAgent::Interact(ui::Form& form) {
  const AgentLine* line = Next();
  if (line == nullptr || line->verb != L"form" || line->Word(0) != form.name()) {
    Disagree(common::Joined({form.name(), L" waits for an agent who does not expect it"}));
  }
  ++at_;
  seen_.push_back(common::Joined({L"in ", form.name(), L" ", Quoted(form.Caption())}));
  const std::vector<std::wstring> controls = DescribeControls(form);
  seen_.insert(seen_.end(), controls.begin(), controls.end());
  while (form.IsVisible()) {
    line = Next();
    if (line == nullptr) {
      Disagree(common::Joined({form.name(), L" waits, and the agent has nothing more to do"}));
    }
    Act(form, *line);
  }
}

void ScriptedAgent::Act(ui::Form& form, const AgentLine& line) {
  if (!input().IsOpen()) Disagree(common::Joined({form.name(), L" takes no input now"}));
  std::wstring did = L"> " + line.verb;
  for (const std::wstring& word : line.words) did += L" " + Quoted(word);
  seen_.push_back(did);
  // Counted first: what the action sets going may take the next lines.
  ++at_;
  try {
    FormActions(form).Perform(line);
  } catch (const ActionRefused& error) {
    throw Disagreement{L"line " + std::to_wstring(line.number) + L": " + error.description()};
  }
}

const AgentLine* ScriptedAgent::Next() const {
  return at_ < script_.size() ? &script_[at_] : nullptr;
}

void ScriptedAgent::Disagree(const std::wstring& words) const {
  const AgentLine* line = Next();
  const std::wstring place =
      line == nullptr ? L"after the last line" : L"line " + std::to_wstring(line->number);
  throw Disagreement{place + L": " + words};
}

}  // namespace practice
