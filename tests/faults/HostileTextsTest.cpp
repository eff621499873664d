#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "common/Text.h"
#include "tests/faults/FormatCalls.h"
#include "tests/run/Scenes.h"

// What the host says is text and nothing else: no format, no path, no command.
namespace faults {
namespace {

using run::Lines;

constexpr std::wstring_view kFormats = L"%S%N%1$S%99999D{0}";
constexpr std::wstring_view kPath = L"..\\..\\";

/// Every source of the product; what the tests and the practice side do is their own business.
std::vector<std::filesystem::path> ProductSources() {
  std::vector<std::filesystem::path> sources;
  for (const char* room : {"app", "common", "errors", "fares", "hostlib", "journal", "mco",
                           "platform", "pnr", "settings", "tst", "ui", "updates"}) {
    const std::filesystem::path folder = std::filesystem::path(PTA_SOURCE_DIR) / room;
    for (const auto& file : std::filesystem::recursive_directory_iterator(folder)) {
      const auto extension = file.path().extension();
      if (extension == ".cpp" || extension == ".h") sources.push_back(file.path());
    }
  }
  return sources;
}

/// What could start a program or load one by a text. The link to the script library does neither by
/// itself: it asks the system for a class by a name of its own table, and for a type library by its
/// registered id.
Lines CommandsIn(std::wstring_view code) {
  constexpr std::wstring_view kCommands[] = {
      L"system(",           L"popen(",          L"ShellExecute",  L"CreateProcess",
      L"WinExec",           L"execv",           L"execl",         L"spawn",
      L"LoadLibrary",       L"LoadModule",      L"LdrLoadDll",    L"dlopen",
      L"GetProcAddr",       L"LoadPackagedLib", L"CoLoadLib",     L"fork(",
      L"CreateService",     L"LoadTypeLib(",    L"LoadTypeLibEx", L"CoGetObject",
      L"MkParseDisplayName"};
  Lines found;
  for (const std::wstring_view command : kCommands) {
    if (common::Contains(code, command)) found.emplace_back(command);
  }
  return found;
}

TEST(HostileTexts, AreShownInTheDialogAsTheyAre) {
  auto scene = run::SceneOf("pwct-one-fare");
  run::Change(scene.booking, L"PWCT OTHER SEGMENTS", L"PWCT " + std::wstring(kFormats));
  scene.agent = L"form frmPTA\nsee txtPWCT \"" + std::wstring(kFormats) + L"\"\nclick cmdCancel\n";
  run::RehearseInAgreement(scene);
}

TEST(HostileTexts, AreShownInAReportAsTheyAre) {
  auto scene = run::OrdinaryScene();
  const Lines reading = run::ReadingEntries();
  const int place = static_cast<int>(std::ranges::find(reading, L"TQM RT") - reading.begin()) + 1;
  scene.prepare = [place](practice::Host& host) {
    host.faults.refusals[place] = std::wstring(kFormats);
  };
  scene.agent =
      L"box ok \"Error sending TQM Transaction! REFUSED: " + std::wstring(kFormats) + L"\" 16\n";
  run::RehearseInAgreement(scene);
}

TEST(HostileTexts, AreEnteredAsTheyAre) {
  auto scene = run::OrdinaryScene();
  run::Change(scene.agent, L"SK AT ARN A/P BEFORE DEPARTURE", kFormats);
  const auto outcome = run::RehearseInAgreement(scene);
  EXPECT_TRUE(
      run::Holds(run::NewElements(outcome), L"RM PWCT " + std::wstring(kFormats) + L" [P1]"))
      << common::ToUtf8(run::NewElements(outcome).at(2));
}

TEST(HostileTexts, OfTheOfficeNameASectionAndNeverAFile) {
  auto scene = run::OrdinaryScene();
  scene.office = std::wstring(kPath) + L"X";
  scene.agent = L"form frmPTA\nclick cmdCancel\n";
  const auto outcome = run::RehearseInAgreement(scene);
  const Lines reads = run::CallsOf(outcome, L"ProfileStore.1.9");
  ASSERT_FALSE(reads.empty());
  for (const std::wstring& read : reads) {
    EXPECT_TRUE(read.starts_with(L"ProfileStore.1.9 ReadValue(\"C:\\PTA\\PTA_QX.ini\", "))
        << common::ToUtf8(read);
  }
}

TEST(CommandsIn, AreAllWaysToStartOrLoadAProgram) {
  for (const wchar_t* call :
       {L"std::system(text)", L"_wsystem(text)", L"_wpopen(text, L\"r\")",
        L"ShellExecuteExW(&info)", L"CreateProcessAsUserW(token, text)", L"WinExec(text, 0)",
        L"execvp(text, list)", L"posix_spawn(&id, text, 0, 0, list, 0)", L"_wspawnl(0, text, text)",
        L"LoadLibraryExW(text.c_str(), nullptr, 0)", L"LoadPackagedLibrary(text, 0)",
        L"dlopen(text, 0)", L"GetProcAddress(module, text)"}) {
    EXPECT_EQ(CommandsIn(call).size(), 1u) << common::ToUtf8(call);
  }
  EXPECT_EQ(CommandsIn(L"platform::LoadSystemLibrariesOnly(); LoadRegTypeLib(id, 1, 0, 0, &copy);"),
            Lines{});
}

TEST(ForeignFormats, AreThoseOfEveryFunctionThatTakesOne) {
  for (const wchar_t* call :
       {L"std::printf(answer.c_str()); std::puts(\"\");", L"wsprintfW(text, answer, L\"x\")",
        L"wsprintfW(text, L\"%s\", answer)", L"StringCchPrintfW(text, 9, answer.c_str())",
        L"StringCbVPrintfA(text, 9, answer, list)", L"std::snprintf(text, 9, answer, \"%s\")",
        L"std::snprintf(text, sizeof(text), Own(\"%s\"), answer)", L"std::snprintf(text, 9)",
        L"_snwprintf_s(text, 9, 9, answer)", L"swscanf(text, answer, L\"%d\")",
        L"std::vformat(answer, std::make_wformat_args(L\"x\"))", L"std::format(L\"{}\", answer)",
        L"std::wcsftime(text, 9, answer, &time)", L"stream << std::put_time(&time, answer)",
        L"FormatMessageW(FORMAT_MESSAGE_FROM_STRING, answer, 0, 0, text, 9, nullptr)",
        L"GetDateFormatW(0, 0, &time, answer, text, 9)", L"std::format<const wchar_t*>(answer, x)",
        L"std::format_to<Out<wchar_t>, std::pair<int, int>>(out, answer)"}) {
    EXPECT_EQ(ForeignFormats(call).size(), 1u) << common::ToUtf8(call);
  }
}

TEST(ForeignFormats, AreNotLiteralsWhereTheFormatStands) {
  for (const wchar_t* call :
       {L"std::snprintf(buffer, sizeof buffer, \"%.*e\", kDigits - 1, std::abs(number))",
        L"std::swprintf(text, std::size(text), L\"%d, (%d\", One(1, 2), two)",
        L"GetDateFormatW(0, 0, &time, nullptr, text, 9)", L"pnr.GetPNRInformation(answer)",
        L"std::min<int>(format, 1)", L"; if (format < one || two > (three))"}) {
    EXPECT_EQ(ForeignFormats(call), Lines{}) << common::ToUtf8(call);
  }
}

TEST(HostileTexts, HaveNoWayToACommandOrToAFormatInTheProduct) {
  const auto sources = ProductSources();
  ASSERT_GT(sources.size(), 100u);
  for (const std::filesystem::path& source : sources) {
    const std::wstring code =
        run::ReadProjectFile(std::filesystem::relative(source, PTA_SOURCE_DIR).generic_string());
    EXPECT_EQ(ForeignFormats(code), Lines{}) << source;
    EXPECT_EQ(CommandsIn(code), Lines{}) << source;
  }
}

}  // namespace
}  // namespace faults
