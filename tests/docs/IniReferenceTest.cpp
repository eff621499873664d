#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <set>

#include "common/Text.h"
#include "practice/library/IniText.h"
#include "tests/docs/Documents.h"
#include "tests/run/Scenes.h"

// docs/ini-reference.md has every key that the program reads, and no other; the sample file holds
// what the reference says of a missing key.
namespace docs {
namespace {

using Names = std::set<std::string>;

constexpr std::wstring_view kOffice = L"ARNAG2100";

/// A row of the reference. Keys that belong to an airline end in "xx" there.
struct Key {
  std::wstring office;
  std::wstring section;
  std::wstring fixed;
  std::wstring missing;
  bool inDialog;
};

std::vector<Key> Documented() {
  std::vector<Key> keys;
  for (const Row& row : CodeRows(run::ReadProjectFile("docs/ini-reference.md"))) {
    const std::size_t bracket = row[1].find(L']');
    keys.push_back({row[0], row[1].substr(1, bracket - 1), common::Trim(row[1].substr(bracket + 1)),
                    row[2] == L"empty" ? L"" : row[2], row[3] != L"no"});
  }
  return keys;
}

/// "[section] key" of the calls of the INI file's object; the office's section is "[office]", the
/// MCO's airline "xx".
Names KeysIn(const practice::RehearsalOutcome& outcome, const wchar_t* operation) {
  const std::wregex call(LR"re(^ProfileStore\.\S+ (\w+)\("[^"]*", "([^"]*)", "([^"]*)")re");
  Names keys;
  for (const std::wstring& line : outcome.calls) {
    std::wsmatch match;
    if (!std::regex_search(line, match, call) || match[1].str() != operation) continue;
    const std::wstring section =
        match[2].str() == kOffice ? std::wstring(L"office") : match[2].str();
    std::wstring key = match[3];
    if (key.ends_with(L"SK")) key.replace(key.size() - 2, 2, L"xx");
    keys.insert(common::ToUtf8(L"[" + section + L"] " + key));
  }
  return keys;
}

/// The ordinary booking with an INI file that has no key at all, so that every place is asked.
practice::RehearsalScene SceneWithoutKeys() {
  practice::RehearsalScene scene = run::OrdinaryScene();
  scene.ini = L"[ARNAG2100]\n";
  scene.agent =
      L"form frmPTA\n"
      L"type txtIATANumber \"80246878\"\n"
      L"type txtCityCode \"STO\"\n"
      L"click chkPrintPNR\n"
      L"click chkOP\n"
      L"type txtOPText \"CHECK\"\n"
      L"click chkPanelMode\n"
      L"click chkBOD\n"
      L"click chkPasSegAsso\n"
      L"click chkTKNoUpdate\n"
      L"click cmdOK\n";
  return scene;
}

TEST(IniReference, HasEveryKeyThatTheProgramReadsAndNoOther) {
  Names documented;
  for (const Key& key : Documented()) {
    documented.insert(common::ToUtf8(L"[office] " + key.office));
    documented.insert(common::ToUtf8(L"[" + key.section + L"] " + key.fixed));
  }
  EXPECT_EQ(KeysIn(run::RehearseInAgreement(SceneWithoutKeys()), L"ReadValue"), documented);
}

TEST(IniReference, NamesTheFieldOfEveryKeyThatTheDialogWrites) {
  Names documented;
  for (const Key& key : Documented()) {
    if (key.inDialog) documented.insert(common::ToUtf8(L"[office] " + key.office));
  }
  EXPECT_EQ(KeysIn(run::RehearseInAgreement(SceneWithoutKeys()), L"WriteValue"), documented);
}

TEST(IniSample, HoldsWhatTheReferenceSaysOfAMissingKey) {
  const practice::IniText sample(run::ReadProjectFile("packaging/PTA_QX.sample.ini"));
  for (const Key& key : Documented()) {
    EXPECT_EQ(common::ToUtf8(sample.Read(key.section, key.fixed)), common::ToUtf8(key.missing))
        << common::ToUtf8(key.fixed);
  }
}

TEST(IniSample, NamesEveryKeyOfTheReference) {
  const std::wstring sample = L"\n" + run::ReadProjectFile("packaging/PTA_QX.sample.ini");
  for (const Key& key : Documented()) {
    const bool perAirline = key.fixed == L"xx";
    const std::wstring name = perAirline ? L"\n[" + key.section + L"]" : L"\n" + key.fixed + L"=";
    EXPECT_TRUE(common::Contains(sample, name)) << common::ToUtf8(name);
    EXPECT_TRUE(common::Contains(sample, common::Replace(key.office, L"xx", L"")))
        << common::ToUtf8(key.office);
  }
}

TEST(IniSample, LeavesTheDialogAsItIsWithoutAFile) {
  practice::RehearsalScene scene = run::OrdinaryScene();
  scene.ini = run::ReadProjectFile("packaging/PTA_QX.sample.ini");
  scene.agent =
      L"form frmPTA\n"
      L"see txtIATANumber \"\"\n"
      L"see txtCityCode \"\"\n"
      L"see txtOPText \"\"\n"
      L"see txtQueueingOfficeID \"\"\n"
      L"see txtCarrier \"SK\"\n"
      L"state chkPrintPNR not-ticked\n"
      L"state chkOP not-ticked\n"
      L"state chkPanelMode not-ticked\n"
      L"state chkBOD not-ticked\n"
      L"state chkPasSegAsso not-ticked\n"
      L"state chkTKNoUpdate not-ticked\n"
      L"close\n";
  run::RehearseInAgreement(scene);
}

}  // namespace
}  // namespace docs
