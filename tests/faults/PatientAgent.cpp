#include "tests/faults/PatientAgent.h"

#include <algorithm>

#include "common/ConstDefintions.h"
#include "common/Text.h"
#include "practice/rehearsal/FormActions.h"

namespace faults {

PatientAgent::PatientAgent(std::wstring_view script, Cancelling cancelling, Timeline& timeline)
    : cancelling_(cancelling), timeline_(timeline) {
  Lines* section = nullptr;
  for (practice::AgentLine& line : practice::ReadAgentScript(script)) {
    if (line.verb == L"form") {
      section = &sections_[line.Word(0)].emplace_back();
    } else if (section != nullptr && line.verb != L"box" && line.verb != L"see" &&
               line.verb != L"state") {
      section->push_back(std::move(line));
    }
  }
}

void PatientAgent::Show(ui::Form& form) {
  if (form.Load()) Appear(form);
}

void PatientAgent::ShowModal(ui::Form& form) {
  if (!form.Load()) return;
  Appear(form);
  Interact(form);
}

void PatientAgent::Run() {
  while (!visible_.empty()) Interact(*visible_.back());
}

int PatientAgent::ShowBox(std::wstring_view text, int style, std::wstring_view title) {
  const bool asks = (style & common::kOkCancel) != 0;
  const bool cancels = asks && CancelsHere();
  timeline_.push_back({.kind = Event::Kind::kBox,
                       .text = std::wstring(text),
                       .style = style,
                       .title = std::wstring(title),
                       .cancelled = cancels,
                       .lastError = injector_ ? injector_->lastErrorShown() : std::nullopt,
                       .question = asks ? questions_ : 0,
                       .afterFault = AfterFault()});
  return cancels ? common::kCancel : common::kOk;
}

void PatientAgent::FormClosed(ui::Form& form) {
  timeline_.push_back({.kind = Event::Kind::kClosed,
                       .text = std::wstring(form.name()),
                       .afterFault = AfterFault()});
  std::erase(visible_, &form);
}

void PatientAgent::Appear(ui::Form& form) {
  if (!form.IsVisible()) visible_.push_back(&form);
  form.Shown(*this);
}

void PatientAgent::Interact(ui::Form& form) {
  const bool cancels = CancelsHere();
  Lines lines = NextSection(form.name());
  if (cancels && !cancelling_.late) lines.clear();
  // The last thing done in a form is what takes it away.
  if (cancels && cancelling_.late && !lines.empty()) lines.pop_back();
  Follow(form, lines);
  if (form.IsVisible()) Cancel(form, cancelling_.by);
}

void PatientAgent::Follow(ui::Form& form, const Lines& lines) {
  for (const practice::AgentLine& line : lines) {
    if (!form.IsVisible()) return;
    if (!input().IsOpen()) throw AgentStuck{common::Joined({form.name(), L" takes no input"})};
    try {
      practice::FormActions(form).Perform(line);
    } catch (const practice::ActionRefused&) {
      return;
    }
  }
}

void PatientAgent::Cancel(ui::Form& form, Cancelling::By by) {
  if (!input().IsOpen()) throw AgentStuck{common::Joined({form.name(), L" takes no input"})};
  timeline_.push_back({.kind = Event::Kind::kCancel,
                       .text = std::wstring(form.name()),
                       .afterFault = AfterFault()});
  ui::Control* button = form.Find(L"cmdCancel");
  if (button == nullptr) button = form.Find(L"btnCancel");
  if (by == Cancelling::By::kButton && button != nullptr) {
    dynamic_cast<ui::Button&>(*button).Clicked();
  } else {
    form.OnCloseBox();
  }
  if (form.IsVisible()) {
    throw AgentStuck{common::Joined({form.name(), L" does not let itself be cancelled"})};
  }
}

PatientAgent::Lines PatientAgent::NextSection(std::wstring_view form) {
  std::deque<Lines>& sections = sections_[std::wstring(form)];
  if (sections.empty()) return {};
  Lines lines = std::move(sections.front());
  sections.pop_front();
  return lines;
}

bool PatientAgent::CancelsHere() { return ++questions_ == cancelling_.question; }

}  // namespace faults
