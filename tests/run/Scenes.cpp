#include "tests/run/Scenes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "common/Text.h"
#include "practice/host/Syntax.h"

namespace run {
namespace {

std::string PathOf(const std::string& booking, const std::string& extension) {
  return "practice/pnrs/" + booking + extension;
}

bool ProjectHas(const std::string& path) {
  return std::filesystem::exists(std::string(PTA_SOURCE_DIR) + "/" + path);
}

Lines::const_iterator FirstChange(const Lines& entries) {
  return std::find_if(entries.begin(), entries.end(),
                      [](const std::wstring& entry) { return entry.starts_with(L"CH "); });
}

// "12 RM TEXT" and "1.SMITH/JOHN MR" as "RM TEXT" and "SMITH/JOHN MR", up to the display's end.
Lines UnnumberedLines(const std::wstring& pnrText) {
  Lines lines;
  for (const std::wstring& line :
       practice::syntax::Split(common::Replace(pnrText, L"\r\n", L"\n"), L'\n')) {
    const std::size_t digits = line.find_first_not_of(L"0123456789");
    lines.push_back(digits == 0 ? line : line.substr(digits + 1));
    if (line == L"END OF PNR") break;
  }
  return lines;
}

Lines Without(Lines lines, const Lines& others) {
  for (const std::wstring& other : others) {
    const auto found = std::find(lines.begin(), lines.end(), other);
    if (found != lines.end()) lines.erase(found);
  }
  return lines;
}

}  // namespace

std::wstring ReadProjectFile(const std::string& path) {
  std::ifstream file(std::string(PTA_SOURCE_DIR) + "/" + path, std::ios::binary);
  if (!file) throw std::runtime_error("cannot read " + path);
  const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  return common::Replace(common::FromUtf8(bytes), L"\r", L"");
}

practice::RehearsalScene OrdinaryScene() {
  practice::RehearsalScene scene;
  scene.booking = ReadProjectFile("practice/pnrs/ordinary.pnr");
  scene.ini = ReadProjectFile("practice/pnrs/ordinary.ini");
  scene.agent = ReadProjectFile("practice/pnrs/ordinary.agent");
  return scene;
}

practice::RehearsalScene SceneOf(const std::string& booking) {
  practice::RehearsalScene scene;
  scene.booking = ReadProjectFile(PathOf(booking, ".pnr"));
  const std::string ini = PathOf(booking, ".ini");
  scene.ini = ReadProjectFile(ProjectHas(ini) ? ini : PathOf("ordinary", ".ini"));
  if (HasAgent(booking)) scene.agent = ReadProjectFile(PathOf(booking, ".agent"));
  return scene;
}

std::vector<std::string> BookingNames() {
  std::vector<std::string> names;
  for (const auto& file :
       std::filesystem::directory_iterator(std::string(PTA_SOURCE_DIR) + "/practice/pnrs")) {
    if (file.path().extension() == ".pnr") names.push_back(file.path().stem().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

bool HasAgent(const std::string& booking) { return ProjectHas(PathOf(booking, ".agent")); }

void Change(std::wstring& text, std::wstring_view from, std::wstring_view to) {
  ASSERT_TRUE(common::Contains(text, from)) << common::ToUtf8(from);
  text = common::Replace(text, from, to);
}

void SetIni(practice::RehearsalScene& scene, const std::wstring& key, const std::wstring& value) {
  const std::size_t at = scene.ini.find(L"\n" + key + L"=");
  const std::wstring line = L"\n" + key + L"=" + value;
  if (at == std::wstring::npos) {
    scene.ini.insert(scene.ini.find(L'\n'), line);
  } else {
    scene.ini.replace(at, scene.ini.find(L'\n', at + 1) - at, line);
  }
}

practice::RehearsalOutcome RehearseInAgreement(const practice::RehearsalScene& scene) {
  practice::RehearsalOutcome outcome = practice::Rehearse(scene);
  EXPECT_EQ(common::ToUtf8(outcome.disagreement), "");
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.liveObjects, 0);
  return outcome;
}

practice::RehearsalOutcome RehearseBooking(const std::string& booking) {
  return RehearseInAgreement(SceneOf(booking));
}

Lines CallsOf(const practice::RehearsalOutcome& outcome, std::wstring_view operation) {
  Lines lines;
  for (const std::wstring& call : outcome.calls) {
    if (call.starts_with(std::wstring(operation) + L" ")) lines.push_back(call);
  }
  return lines;
}

bool Holds(const Lines& lines, std::wstring_view line) {
  return std::find(lines.begin(), lines.end(), line) != lines.end();
}

Lines BoxesIn(const practice::RehearsalOutcome& outcome) {
  Lines boxes;
  for (const std::wstring& line : outcome.seen) {
    if (line.starts_with(L"box ")) boxes.push_back(line);
  }
  return boxes;
}

bool HasShown(const practice::RehearsalOutcome& outcome, std::wstring_view form) {
  for (const std::wstring& line : outcome.seen) {
    if (line.starts_with(L"shown " + std::wstring(form) + L" ")) return true;
  }
  return false;
}

Lines ListIn(const practice::RehearsalOutcome& outcome) {
  Lines lines;
  for (const std::wstring& line : outcome.seen) {
    if (line.starts_with(L"    ")) lines.push_back(line.substr(4));
  }
  return lines;
}

Lines ReadingEntries() {
  return {L"RT", L"IR", L"RT", L"TQT", L"TQM RT", L"OS SK PTA", L"TQT", L"TQT"};
}

Lines EntriesBeforeWriting(const practice::RehearsalOutcome& outcome) {
  const Lines entries = outcome.EntryTexts();
  return {entries.begin(), FirstChange(entries)};
}

Lines EntriesOfWriting(const practice::RehearsalOutcome& outcome) {
  const Lines entries = outcome.EntryTexts();
  return {FirstChange(entries), entries.end()};
}

Lines NewElements(const practice::RehearsalOutcome& outcome) {
  Lines elements;
  for (const std::wstring& entry : outcome.EntryTexts()) {
    if (!entry.ends_with(L";")) continue;
    const Lines pieces = practice::syntax::Split(entry, L';');
    elements.insert(elements.end(), pieces.begin(), pieces.end() - 1);
  }
  return elements;
}

Lines LinesAdded(const practice::RehearsalOutcome& outcome) {
  return Without(UnnumberedLines(outcome.pnrAfter), UnnumberedLines(outcome.pnrBefore));
}

Lines LinesGone(const practice::RehearsalOutcome& outcome) {
  return Without(UnnumberedLines(outcome.pnrBefore), UnnumberedLines(outcome.pnrAfter));
}

}  // namespace run
