#include "tests/windows/driver/WindowAgent.h"

#include <map>

#include "common/ConstDefintions.h"
#include "common/LineFeeds.h"
#include "tests/windows/driver/Clipboard.h"
#include "tests/windows/driver/Driver.h"
#include "tests/windows/driver/Picture.h"
#include "ui/win32/ControlIds.h"
#include "ui/win32/resource.h"

namespace driver {

namespace {

/// A control that no other form has.
const std::map<std::wstring, int> kMarks = {{L"frmWorking", ID_lblWorking},
                                            {L"frmPTA", ID_txtPWCT},
                                            {L"frmSelectMCO", ID_lstMCO},
                                            {L"frmWaitForMCO", ID_lstMCOElements},
                                            {L"frmSelectTST", ID_lstTST}};

constexpr COLORREF kYellow = RGB(255, 255, 0);
/// How long a window may take until it shows what is expected.
constexpr auto kLook = std::chrono::seconds(20);
/// How long the program may be busy with the host before its next form comes.
constexpr auto kOnTheWay = std::chrono::seconds(60);
constexpr auto kTimerInterval = std::chrono::seconds(5);

/// As far as it can be seen from another process: the icon, whichever it is, and the buttons.
void CheckStyle(HWND box, int style) {
  constexpr int kIcons = 0xF0;
  if ((BoxIcon(box) != nullptr) != ((style & kIcons) != 0)) {
    throw DriverError(L"The box has an icon, or none, against its style");
  }
  const bool twoButtons = GetDlgItem(box, IDOK) != nullptr && GetDlgItem(box, IDCANCEL) != nullptr;
  if (twoButtons != ((style & common::kOkCancel) != 0)) {
    throw DriverError(L"The box has other buttons than those of its style");
  }
}

std::set<int> LineNumbers(const std::wstring& lines) {
  std::set<int> numbers;
  for (std::size_t from = 0; from < lines.size();) {
    numbers.insert(std::stoi(lines.substr(from)));
    from = std::min(lines.find(L',', from), lines.size() - 1) + 1;
  }
  return numbers;
}

bool IsSelected(HWND list, int line) {
  return SendMessageW(list, LB_GETSEL, static_cast<WPARAM>(line) - 1, 0) > 0;
}

/// Space turns a line's selection over, so only the lines that are not as wanted are touched.
void PickSeveral(HWND list, int count, const std::set<int>& wanted) {
  int at = static_cast<int>(SendMessageW(list, LB_GETCARETINDEX, 0, 0)) + 1;
  for (int line = 1; line <= count; ++line) {
    const bool select = wanted.contains(line);
    if (IsSelected(list, line) == select) continue;
    for (; at < line; ++at) Press(list, VK_DOWN);
    for (; at > line; --at) Press(list, VK_UP);
    Press(list, VK_SPACE);
    WaitUntil(L"line " + std::to_wstring(line) + L" is as wanted",
              [&] { return IsSelected(list, line) == select; });
  }
}

void PickOne(HWND list, int line) {
  Press(list, VK_HOME);
  for (int at = 1; at < line; ++at) Press(list, VK_DOWN);
  WaitUntil(L"the line is selected", [&] { return IsSelected(list, line); });
}

bool HasStyle(HWND window, LONG style) { return (GetWindowLongW(window, GWL_STYLE) & style) != 0; }

}  // namespace

WindowAgent::WindowAgent(Program& program, std::vector<practice::AgentLine> script)
    : program_(program), script_(std::move(script)) {}

void WindowAgent::Work(const Look& look) {
  look_ = look;
  for (const practice::AgentLine& line : script_) {
    try {
      Perform(line);
    } catch (const DriverError& error) {
      throw DriverError(L"Line " + std::to_wstring(line.number) + L": " + ToWide(error.what()));
    }
  }
}

void WindowAgent::Perform(const practice::AgentLine& line) {
  using Action = std::function<void()>;
  const std::wstring name = line.Word(0);
  const std::wstring text = line.Word(1);
  const std::map<std::wstring, Action> actions = {
      {L"form", [&] { ComeTo(name); }},
      {L"box", [&] { AnswerBox(line); }},
      {L"see", [&] { See(name, text); }},
      {L"state", [&] { CheckState(name, text); }},
      {L"focus", [&] { GoTo(Control(name)); }},
      {L"type",
       [&] {
         GoTo(Control(name));
         TypeOver(Control(name), text);
       }},
      {L"paste", [&] { Paste(Control(name), text); }},
      {L"key",
       [&] {
         GoTo(Control(name));
         Press(Control(name), VK_F1);
       }},
      {L"click",
       [&] {
         look_(form_, formName_);
         ClickButton(Control(name));
       }},
      {L"pick", [&] { Pick(Control(name), text); }},
      {L"tick", [&] { Tick(text); }},
      {L"close", [&] { PostMessageW(form_, WM_SYSCOMMAND, SC_CLOSE, 0); }}};
  const auto found = actions.find(line.verb);
  if (found == actions.end()) throw DriverError(L"\"" + line.verb + L"\" is not known here");
  found->second();
}

void WindowAgent::ComeTo(const std::wstring& form) {
  const auto isThere = [&] {
    LookAtProgress();
    form_ = program_.WindowWith(kMarks.at(form));
    return (form_ != nullptr && IsWindowEnabled(form_)) || program_.Box() != nullptr ||
           !program_.IsRunning();
  };
  if (!Holds(isThere, kOnTheWay)) throw DriverError(L"Waited in vain for " + form);
  if (program_.Box() != nullptr) throw DriverError(L"A box says " + BoxText(program_.Box()));
  if (!program_.IsRunning()) throw DriverError(L"The program has ended");
  WaitForFocusWithin(form_);
  formName_ = form;
  look_(form_, form);
}

void WindowAgent::LookAtProgress() {
  const HWND working = program_.WindowWith(ID_lblWorking);
  if (working == nullptr || seen_.contains(L"frmWorking")) return;
  if (TextOf(working).empty()) return;  // it has not got its caption yet
  seen_.insert(L"frmWorking");
  look_(working, L"frmWorking");
}

void WindowAgent::AnswerBox(const practice::AgentLine& line) {
  const HWND box = program_.WaitForBox();
  look_(box, L"box");
  if (!Holds([&] { return BoxText(box) == common::WithLineFeeds(line.Word(1)); }, kLook)) {
    throw DriverError(L"The box says \"" + BoxText(box) + L"\"");
  }
  // A box without a title bears the program's name.
  const std::wstring title = line.Word(3).empty() ? std::wstring(L"PTA_QX") : line.Word(3);
  if (line.words.size() > 3 && TextOf(box) != title) {
    throw DriverError(L"The box bears \"" + TextOf(box) + L"\"");
  }
  if (line.words.size() > 2) CheckStyle(box, std::stoi(line.Word(2)));
  const HWND button = line.Word(0) == L"ok" ? OkButton(box) : Item(box, IDCANCEL);
  WaitForFocusWithin(box);
  Click(button);
  WaitUntil(L"the box is gone", [&] { return !IsWindow(box); });
}

void WindowAgent::See(const std::wstring& control, const std::wstring& text) {
  if (Holds([&] { return TextIn(control) == text; }, kLook)) return;
  throw DriverError(control + L" shows \"" + TextIn(control) + L"\" instead of \"" + text + L"\"");
}

std::wstring WindowAgent::TextIn(const std::wstring& control) const {
  const HWND window = Control(control);
  return GetDlgCtrlID(window) == ID_staStatusText ? StatusText(window) : TextOf(window);
}

void WindowAgent::CheckState(const std::wstring& control, std::wstring state) {
  const bool wanted = !state.starts_with(L"not-");
  if (!wanted) state.erase(0, 4);
  const HWND window = Control(control);
  if (Holds([&] { return Is(window, state) == wanted; }, kLook)) return;
  throw DriverError(control + L" is " + (wanted ? L"not " : L"") + state);
}

bool WindowAgent::Is(HWND control, const std::wstring& state) const {
  if (state == L"off") return !IsWindowEnabled(control);
  if (state == L"ticked") return SendMessageW(control, BM_GETCHECK, 0, 0) == BST_CHECKED;
  if (state == L"locked") return HasStyle(control, ES_READONLY);
  if (state == L"focused") return FocusOf(control) == control;
  if (state == L"yellow") return ColorAt(control, 2, 2) == kYellow;
  throw DriverError(L"\"" + state + L"\" is no state");
}

void WindowAgent::GoTo(HWND control) {
  constexpr int kMostTabs = 60;
  for (int i = 0; i < kMostTabs; ++i) {
    const HWND focus = WaitForFocusWithin(form_);
    if (focus == control) return;
    Press(focus, VK_TAB);
    // Without any focus for a moment nothing has moved yet: a second Tab would go too far.
    WaitUntil(L"the focus has moved on", [&] {
      const HWND now = FocusOf(form_);
      return now != nullptr && now != focus;
    });
  }
  throw DriverError(L"The Tab key does not come to " + std::to_wstring(GetDlgCtrlID(control)));
}

void WindowAgent::Paste(HWND field, const std::wstring& text) {
  GoTo(field);
  PutOnClipboard(text);
  SelectAll(field);
  Press(field, 'V', kControl);
}

void WindowAgent::Pick(HWND list, const std::wstring& lines) {
  GoTo(list);
  const std::set<int> wanted = LineNumbers(lines);
  const auto count = static_cast<int>(SendMessageW(list, LB_GETCOUNT, 0, 0));
  if (*wanted.begin() < 1 || *wanted.rbegin() > count) {
    throw DriverError(L"The list has no line " + lines);
  }
  if (HasStyle(list, LBS_MULTIPLESEL)) {
    PickSeveral(list, count, wanted);
  } else {
    PickOne(list, *wanted.begin());
  }
}

// Every timer of the program runs by itself, so the agent lets the time pass; the form may be gone
// before it is over.
void WindowAgent::Tick(const std::wstring& times) {
  const int count = times.empty() ? 1 : std::stoi(times);
  Holds([this] { return !IsWindow(form_) || !IsWindowVisible(form_); }, count * kTimerInterval);
}

HWND WindowAgent::Control(const std::wstring& name) const {
  const int id = ui::ControlId(name);
  if (id == 0) throw DriverError(L"There is no control " + name);
  return Item(form_, id);
}

}  // namespace driver
