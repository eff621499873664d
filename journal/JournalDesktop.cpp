#include "journal/JournalDesktop.h"

#include "common/ConstDefintions.h"
#include "common/Numbers.h"
#include "common/Text.h"
#include "journal/Quietly.h"

namespace journal {
namespace {

std::wstring NameOf(int answer) {
  if (answer == common::kCancel) return L"Cancel";
  return answer == common::kRetry ? L"Retry" : L"OK";
}

}  // namespace

void JournalDesktop::Show(ui::Form& form) {
  const bool wasVisible = form.IsVisible();
  inner_.Show(form);
  Quietly([&] {
    // A form that unloads itself while it loads is never seen.
    if (wasVisible || !form.IsVisible()) return;
    fields_.Watch(form);
    writer_.Write(common::Joined({L"Window ", form.name(), L" shown"}));
    writer_.Remember(common::Joined({L"window ", form.name()}));
  });
}

void JournalDesktop::ShowModal(ui::Form& form) {
  Quietly([&] {
    fields_.Watch(form);
    // It may find, while it loads, that it is not needed.
    writer_.Write(common::Joined({L"Window ", form.name(), L" asked for"}));
    writer_.Remember(common::Joined({L"window ", form.name()}));
  });
  const auto opened = clock_.Ticks();
  inner_.ShowModal(form);
  Quietly([&] {
    writer_.Write(common::Joined(
        {L"Window ", form.name(), L" done after ", Seconds(clock_.Ticks() - opened)}));
  });
}

int JournalDesktop::ShowBox(std::wstring_view text, int style, std::wstring_view title) {
  Quietly([&] {
    fields_.Look();
    writer_.Write(L"Box of style " + common::NumberText(style), text);
    writer_.Remember(L"a box");
  });
  const auto shown = clock_.Ticks();
  const int answer = inner_.ShowBox(text, style, title);
  Quietly([&] {
    const std::wstring name = NameOf(answer);
    writer_.Write(L"Box answered " + name + L" after " + Seconds(clock_.Ticks() - shown));
    writer_.Remember(L"a box answered " + name);
  });
  return answer;
}

}  // namespace journal
