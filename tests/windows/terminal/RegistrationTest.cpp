#include <gtest/gtest.h>

#include <filesystem>

#include "tests/windows/terminal/PracticeTerminal.h"
// clang-format off
#include <oleauto.h>
// clang-format on

namespace {

namespace fs = std::filesystem;

CLSID ClassOf(const wchar_t* progId) {
  CLSID id = {};
  if (FAILED(CLSIDFromProgID(progId, &id))) return CLSID_NULL;
  return id;
}

/// The program that is registered for a class of the library; "" when none is.
std::wstring RegisteredProgram() {
  const CLSID id = ClassOf(L"Vantel.ParameterBag");
  if (id == CLSID_NULL) return {};
  wchar_t text[40] = L"";
  StringFromGUID2(id, text, static_cast<int>(std::size(text)));
  const std::wstring key = L"CLSID\\" + std::wstring(text) + L"\\LocalServer32";
  wchar_t command[1024] = L"";
  DWORD size = sizeof command;
  RegGetValueW(HKEY_CLASSES_ROOT, key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, command, &size);
  std::wstring program = command;
  std::erase(program, L'"');
  return program;
}

/// Where the type library is registered to lie; "" when it is not.
std::wstring RegisteredTypes() {
  const CLSID id = ClassOf(L"Vantel.ParameterBag");
  wchar_t text[40] = L"";
  StringFromGUID2(id, text, static_cast<int>(std::size(text)));
  const std::wstring key = L"CLSID\\" + std::wstring(text) + L"\\TypeLib";
  wchar_t library[40] = L"";
  DWORD size = sizeof library;
  RegGetValueW(HKEY_CLASSES_ROOT, key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, library, &size);
  GUID libraryId = {};
  BSTR path = nullptr;
  CLSIDFromString(library, &libraryId);
  if (FAILED(QueryPathOfRegTypeLib(libraryId, 1, 0, LOCALE_NEUTRAL, &path))) return {};
  // The system may give the room of the text along.
  const std::wstring result = path;
  SysFreeString(path);
  return result;
}

/// The library of another maker, registered for the machine by the names that this one has, too.
class AnothersLibrary : public testing::Test {
 protected:
  ~AnothersLibrary() override {
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, L"Software\\Classes\\Vantel.ScriptGlobal");
    // As the other tests want it.
    driver::Process(terminal::Program(), L"/regserver").ExitCode();
  }
  static void SetName(const std::wstring& id) {
    RegSetKeyValueW(HKEY_LOCAL_MACHINE, kName, nullptr, REG_SZ, id.c_str(),
                    static_cast<DWORD>((id.size() + 1) * sizeof(wchar_t)));
  }
  static std::wstring Name() {
    wchar_t id[64] = L"";
    DWORD size = sizeof id;
    RegGetValueW(HKEY_LOCAL_MACHINE, kName, nullptr, RRF_RT_REG_SZ, nullptr, id, &size);
    return id;
  }

  static constexpr wchar_t kAnothersId[] = L"{0B7A4A52-6B3C-4D55-8F52-0C6C8C1B7E11}";

 private:
  static constexpr wchar_t kName[] = L"Software\\Classes\\Vantel.ScriptGlobal\\CLSID";
};

TEST_F(AnothersLibrary, KeepsItsNamesWhenThePracticeTerminalIsToBeRegistered) {
  driver::Process(terminal::Program(), L"/unregserver").ExitCode();
  SetName(kAnothersId);
  EXPECT_EQ(driver::Process(terminal::Program(), L"/regserver").ExitCode(), 1u);
  EXPECT_EQ(Name(), kAnothersId);
}

TEST_F(AnothersLibrary, KeepsItsNamesWhenThePracticeTerminalIsUnregistered) {
  driver::Process(terminal::Program(), L"/regserver").ExitCode();
  SetName(kAnothersId);
  driver::Process(terminal::Program(), L"/unregserver").ExitCode();
  EXPECT_EQ(Name(), kAnothersId);
}

/// A second copy of the terminal, in a folder of its own.
class SecondCopy : public testing::Test {
 protected:
  SecondCopy() {
    fs::create_directories(folder_);
    fs::copy_file(terminal::Program(), Path(), fs::copy_options::overwrite_existing);
  }
  ~SecondCopy() override {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
    // As the other tests want it.
    driver::Process(terminal::Program(), L"/regserver").ExitCode();
  }
  fs::path Path() const { return folder_ / terminal::kPracticeTerminal; }

 private:
  fs::path folder_ = fs::temp_directory_path() / L"PtaSecondCopy";
};

TEST_F(SecondCopy, ThatIsRegisteredStaysSoWhenTheFirstIsUnregistered) {
  driver::Process(terminal::Program(), L"/regserver").ExitCode();
  {
    const terminal::Registered second(Path().wstring());
    driver::Process(terminal::Program(), L"/unregserver").ExitCode();
    EXPECT_EQ(RegisteredProgram(), Path().wstring());
    EXPECT_EQ(RegisteredTypes(), Path().wstring());
  }
  EXPECT_EQ(RegisteredProgram(), L"");
}

TEST_F(SecondCopy, ThatWasRemovedWithoutAWordIsUnregisteredByAnother) {
  {
    const terminal::Registered first;
    driver::Process(Path().wstring(), L"/regserver").ExitCode();
    fs::remove(Path());
  }
  EXPECT_EQ(RegisteredProgram(), L"");
}

}  // namespace
