#include "tests/run/Scenes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>

#include "common/Text.h"

namespace run {

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

}  // namespace run
