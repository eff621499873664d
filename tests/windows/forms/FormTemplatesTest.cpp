#include <gtest/gtest.h>

#include <cstdlib>
#include <map>

#include "tests/windows/driver/Driver.h"
#include "tests/windows/forms/AllForms.h"
#include "ui/HelpDefinitions.h"
#include "ui/win32/resource.h"

namespace ui {

namespace {

std::vector<HWND> Children(HWND dialog) {
  std::vector<HWND> children;
  for (HWND child = GetWindow(dialog, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    children.push_back(child);
  }
  return children;
}

/// Without those that are there to name fields and are never seen.
std::vector<HWND> VisibleChildren(HWND dialog) {
  std::vector<HWND> children = Children(dialog);
  std::erase_if(children,
                [](HWND child) { return (GetWindowLongW(child, GWL_STYLE) & WS_VISIBLE) == 0; });
  return children;
}

RECT PlaceIn(HWND dialog, HWND child) {
  RECT place = {};
  GetWindowRect(child, &place);
  MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&place), 2);
  return place;
}

SIZE SizeOf(HWND window, std::wstring_view text, UINT format = 0) {
  const HDC dc = GetDC(window);
  const HGDIOBJ before =
      SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)));
  RECT area = {};
  DrawTextW(dc, text.data(), static_cast<int>(text.size()), &area, DT_CALCRECT | format);
  SelectObject(dc, before);
  ReleaseDC(window, dc);
  return {area.right, area.bottom};
}

/// What a kind of control needs beside its caption: box and gap, the bends of a frame, the border
/// of a button.
int Surroundings(ControlKind kind) {
  const int unit = GetSystemMetrics(SM_CXMENUCHECK);
  switch (kind) {
    case ControlKind::kCheckBox:
      return unit + 5;
    case ControlKind::kFrame:
      return 18;
    case ControlKind::kButton:
      return 12;
    default:
      return 0;
  }
}

bool Overlap(const RECT& a, const RECT& b) {
  RECT common = {};
  return IntersectRect(&common, &a, &b) != FALSE;
}

wchar_t Accelerator(std::wstring_view caption) {
  const std::size_t at = caption.find(L'&');
  if (at == caption.npos) return L'\0';
  return static_cast<wchar_t>(towupper(caption.at(at + 1)));
}

class FormTemplates : public testing::TestWithParam<std::size_t> {
 protected:
  Forms forms;
  Form& form = *forms.all[GetParam()];
  OpenForm window{form};
  HWND dialog = window.handle();
};

TEST_P(FormTemplates, HoldTheFormsControlsAndNoOthersInTheFormsOrder) {
  std::vector<int> wanted;
  for (const Control* control : form.controls()) {
    if (control->kind() != ControlKind::kTimer) wanted.push_back(ControlId(control->name()));
  }
  std::vector<int> there;
  for (const HWND child : VisibleChildren(dialog)) there.push_back(GetDlgCtrlID(child));
  EXPECT_EQ(there, wanted);
}

TEST_P(FormTemplates, GiveEveryCaptionTheRoomItNeeds) {
  for (const Control* control : form.controls()) {
    const HWND child = GetDlgItem(dialog, ControlId(control->name()));
    if (child == nullptr || control->kind() == ControlKind::kStatusBar) continue;
    RECT area = {};
    GetClientRect(child, &area);
    const SIZE text = SizeOf(child, control->Text());
    EXPECT_LE(text.cx + Surroundings(control->kind()), area.right)
        << driver::ToUtf8(control->name());
    if (control->kind() == ControlKind::kLabel || control->kind() == ControlKind::kListHeading) {
      EXPECT_LE(text.cy, area.bottom) << driver::ToUtf8(control->name());
    }
  }
}

TEST_P(FormTemplates, KeepEverythingInsideAndApart) {
  RECT whole = {};
  GetClientRect(dialog, &whole);
  std::map<int, RECT> places;
  for (const Control* control : form.controls()) {
    const int id = ControlId(control->name());
    const HWND child = GetDlgItem(dialog, id);
    if (child == nullptr) continue;
    const RECT place = PlaceIn(dialog, child);
    EXPECT_TRUE(place.left >= 0 && place.top >= 0 && place.right <= whole.right &&
                place.bottom <= whole.bottom)
        << driver::ToUtf8(control->name());
    if (control->kind() == ControlKind::kFrame) continue;
    for (const auto& [otherId, other] : places) {
      EXPECT_FALSE(Overlap(place, other)) << driver::ToUtf8(control->name()) << " and " << otherId;
    }
    places[id] = place;
  }
}

TEST_P(FormTemplates, HaveNoAcceleratorTwice) {
  std::map<wchar_t, std::wstring> owners;
  for (const Control* control : form.controls()) {
    const bool captioned =
        control->kind() != ControlKind::kTextBox && control->kind() != ControlKind::kStatusBar;
    const wchar_t key = captioned ? Accelerator(control->Text()) : L'\0';
    if (key == L'\0') continue;
    EXPECT_TRUE(owners.emplace(key, control->name()).second)
        << driver::ToUtf8(control->name()) << " and " << driver::ToUtf8(owners[key]);
  }
}

TEST_P(FormTemplates, HaveTheirLabelsDirectlyBeforeTheirFields) {
  const std::vector<HWND> children = VisibleChildren(dialog);
  for (std::size_t i = 0; i < children.size(); ++i) {
    if (Accelerator(driver::TextOf(children[i])) == L'\0') continue;
    wchar_t kind[32] = {};
    GetClassNameW(children.at(i + 1), kind, 32);
    EXPECT_STREQ(kind, L"Edit") << driver::ToUtf8(driver::TextOf(children[i]));
  }
}

INSTANTIATE_TEST_SUITE_P(OfEveryForm, FormTemplates, testing::Range<std::size_t>(0, 5));

class DialogTemplate : public testing::Test {
 protected:
  HWND Item(int id) { return window.Item(id); }

  Forms forms;
  OpenForm window{forms.pta};
};

TEST_F(DialogTemplate, ShowsAPTATotalOfSixtyCharactersWhole) {
  const std::wstring total = L"SEK10000/TAX SEK1200XT, SEK400YQ, SEK350ZZ, SEK200RD, SEK100";
  ASSERT_EQ(total.size(), 60u);
  RECT inner = {};
  SendMessageW(Item(ID_txtPTA), EM_GETRECT, 0, reinterpret_cast<LPARAM>(&inner));
  EXPECT_LE(SizeOf(Item(ID_txtPTA), total, DT_NOPREFIX).cx, inner.right - inner.left);
}

TEST_F(DialogTemplate, HasRoomForEveryHelpLineInItsStatusBar) {
  RECT bar = {};
  GetClientRect(Item(ID_staStatusText), &bar);
  for (const Control* control : forms.pta.controls()) {
    const HelpDefinition* help = FindHelp(control->name());
    if (help == nullptr) continue;
    const std::wstring line = std::wstring(help->status) + std::wstring(kIncompleteMark);
    EXPECT_LE(SizeOf(Item(ID_staStatusText), line, DT_NOPREFIX).cx + 12, bar.right)
        << driver::ToUtf8(line);
  }
}

TEST_F(DialogTemplate, HasNoDefaultButton) {
  const LRESULT standard = SendMessageW(window.handle(), DM_GETDEFID, 0, 0);
  EXPECT_EQ(GetDlgItem(window.handle(), LOWORD(standard)), nullptr);
}

TEST(WaitTemplate, HasRoomForItsStatusLine) {
  Forms forms;
  const OpenForm window(forms.bench.form);
  const HWND bar = window.Item(ID_staStatusText);
  RECT area = {};
  GetClientRect(bar, &area);
  EXPECT_LE(SizeOf(bar, mco::WaitedFor(120)).cx + 12, area.right);
}

TEST(Templates, AreLookedAtOnAScreenOfTheDensityThatIsAskedFor) {
  const char* const asked = std::getenv("PTA_DPI");
  ASSERT_NE(asked, nullptr);
  Forms forms;
  const OpenForm window(forms.pta);
  EXPECT_EQ(std::to_string(GetDpiForWindow(window.handle())), asked);
}

// The font comes in few sizes, so the forms grow in steps; boxes, frames and borders grow evenly.
TEST(Templates, GrowWithTheDensityOfTheScreen) {
  Forms forms;
  const OpenForm window(forms.pta);
  RECT character = {0, 0, 4, 8};
  MapDialogRect(window.handle(), &character);
  const UINT dpi = GetDpiForWindow(window.handle());
  if (dpi == 96) {
    EXPECT_EQ(character.bottom, 13);
  } else {
    EXPECT_GE(character.bottom, dpi == 120 ? 16 : 20);
  }
}

TEST(Templates, AreAllInDialogUnitsOfMSSansSerif8) {
  Forms forms;
  for (Form* form : forms.all) {
    const OpenForm window(*form);
    LOGFONTW font = {};
    GetObjectW(reinterpret_cast<HFONT>(SendMessageW(window.handle(), WM_GETFONT, 0, 0)),
               sizeof font, &font);
    EXPECT_STREQ(font.lfFaceName, L"MS Sans Serif");
  }
}

}  // namespace

}  // namespace ui
