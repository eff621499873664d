#include <TestLibrary.h>

#include "hostlib/com/LibraryCheck.h"
#include "tests/windows/com/TestServer.h"

namespace com_tests {
namespace {

namespace operations = hostlib::operations;

constexpr hostlib::Operation kUsed[] = {
    operations::parameter_bag::kSetValue, operations::terminal_session::kSendEntry,
    operations::terminal_session::kSessionText, operations::pnr_element_change::kExecute};

const std::wstring kLacksSessionText =
    kMisfit + L"TerminalSession, slot 16 (SessionText): there is no such slot.";

class CheckedLibrary : public ComBench {
 protected:
  void InstallAll(Types types) {
    types_ = LoadTypes(types);
    Install(L"ParameterBag", __uuidof(::TestBag), __uuidof(IBag));
    Install(L"TerminalSession", __uuidof(::TestSession), __uuidof(ISession));
    Install(L"PnrElementChange", __uuidof(::TestChange), __uuidof(IChange));
  }
  std::wstring MisfitAt(std::wstring_view className) {
    return MisfitOf([&] { checked_.Create(className); });
  }

  hostlib::com::CheckedLibrary checked_{library_, kUsed};
};

TEST_F(CheckedLibrary, GivesTheFirstObjectBeforeItLooksAtTheRest) {
  InstallAll(Types::kLacksSlot);
  EXPECT_NE(checked_.Create(L"ParameterBag"), nullptr);
  EXPECT_EQ(source_.searched, 1);
}

TEST_F(CheckedLibrary, GivesNoSecondObjectWhenTheRestDoesNotFit) {
  InstallAll(Types::kLacksSlot);
  checked_.Create(L"ParameterBag");
  EXPECT_EQ(MisfitAt(L"PnrElementChange"), kLacksSessionText);
  EXPECT_EQ(MisfitAt(L"ParameterBag"), kLacksSessionText);
}

TEST_F(CheckedLibrary, GivesNoFirstObjectThatDoesNotFit) {
  InstallAll(Types::kLacksSlot);
  EXPECT_EQ(MisfitAt(L"TerminalSession"), kLacksSessionText);
}

TEST_F(CheckedLibrary, NamesAllFaultsWhenTheFirstObjectDoesNotFit) {
  types_ = LoadTypes(Types::kLacksSlot);
  Install(L"ParameterBag", __uuidof(::TestBag), __uuidof(IBag));
  Install(L"TerminalSession", __uuidof(::TestSession), __uuidof(ISession));
  EXPECT_EQ(MisfitAt(L"TerminalSession"),
            kLacksSessionText + L"\rPnrElementChange: there is no such object.");
}

TEST_F(CheckedLibrary, NamesAFirstObjectThatIsNotThereAmongOthersThatAre) {
  Install(L"ParameterBag", __uuidof(::TestBag), __uuidof(IBag));
  Install(L"TerminalSession", __uuidof(::TestSession), __uuidof(ISession));
  EXPECT_EQ(MisfitAt(L"PnrElementChange"), kMisfit + L"PnrElementChange: there is no such object.");
}

TEST_F(CheckedLibrary, FailsAsTheLibraryDoesWhenNoneIsInstalled) {
  const auto error = FailureOf([&] { checked_.Create(L"ParameterBag"); });
  EXPECT_EQ(error.number(), REGDB_E_CLASSNOTREG);
  EXPECT_EQ(error.object(), L"ParameterBag");
}

TEST_F(CheckedLibrary, LooksAtALibraryThatCameLater) {
  InstallAll(Types::kLacksSlot);
  for (const wchar_t* progId :
       {L"Vantel.ParameterBag", L"Vantel.TerminalSession", L"Vantel.PnrElementChange"}) {
    source_.failures[progId] = CO_E_SERVER_EXEC_FAILURE;
  }
  EXPECT_EQ(FailureOf([&] { checked_.Create(L"ParameterBag"); }).number(),
            CO_E_SERVER_EXEC_FAILURE);
  source_.failures.clear();
  checked_.Create(L"ParameterBag");
  EXPECT_EQ(MisfitAt(L"ParameterBag"), kLacksSessionText);
}

TEST_F(CheckedLibrary, IsNotDoneWithACheckThatFoundNothingToLookAt) {
  types_ = LoadTypes(Types::kLacksSlot);
  Install(L"TerminalSession", __uuidof(::TestSession), __uuidof(ISession));
  source_.failures[L"Vantel.TerminalSession"] = CO_E_SERVER_EXEC_FAILURE;
  FailureOf([&] { checked_.Create(L"ParameterBag"); });
  source_.failures.clear();
  EXPECT_NE(MisfitAt(L"TerminalSession").find(kLacksSessionText.substr(kMisfit.size())),
            std::wstring::npos);
}

TEST_F(CheckedLibrary, TriesAFirstObjectThatCanNotBeMadeOnce) {
  InstallAll(Types::kGood);
  source_.failures[L"Vantel.ParameterBag"] = CO_E_SERVER_EXEC_FAILURE;
  FailureOf([&] { checked_.Create(L"ParameterBag"); });
  EXPECT_EQ(source_.tried, 1);
}

TEST_F(CheckedLibrary, GivesTheObjectsOfTheCheckAndThenMakesEachOnce) {
  InstallAll(Types::kGood);
  checked_.Create(L"ParameterBag");
  EXPECT_EQ(source_.made, 1);
  checked_.Create(L"ParameterBag");
  EXPECT_EQ(source_.made, 2);
  checked_.Create(L"TerminalSession");
  EXPECT_EQ(source_.made, 3);
}

TEST_F(CheckedLibrary, GivesAnObjectThatTheRestOfTheCheckNeeded) {
  types_ = LoadTypes(Types::kGood);
  Install(L"ParameterBag", __uuidof(::TestBag), __uuidof(IBag));
  Install(L"TerminalSession", __uuidof(::TestSession), __uuidof(ISession));
  Install(L"PnrElementChange", kElsewhere, __uuidof(IChange));
  checked_.Create(L"ParameterBag");
  EXPECT_NE(checked_.Create(L"PnrElementChange"), nullptr);
  EXPECT_EQ(source_.made, 2);
}

TEST_F(CheckedLibrary, KeepsNoObjectOfTheCheckBesideThoseOfTheRun) {
  types_ = LoadTypes(Types::kGood);
  const auto bag = Install(L"ParameterBag", __uuidof(::TestBag), __uuidof(IBag));
  Install(L"TerminalSession", __uuidof(::TestSession), __uuidof(ISession));
  const auto change = Install(L"PnrElementChange", kElsewhere, __uuidof(IChange));
  const ULONG ofBag = bag->references();
  const ULONG ofChange = change->references();
  checked_.Create(L"ParameterBag");
  EXPECT_EQ(bag->references(), ofBag);
  EXPECT_NE(checked_.Create(L"TerminalSession"), nullptr);
  EXPECT_EQ(source_.made, 3);
  EXPECT_EQ(change->references(), ofChange);
}

}  // namespace
}  // namespace com_tests
