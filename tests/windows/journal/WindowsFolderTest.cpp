#include <gmock/gmock.h>

#include "common/Text.h"
#include "journal/FileName.h"
#include "journal/Writer.h"
#include "journal/win32/WindowsClock.h"
#include "journal/win32/WindowsFolder.h"
#include "tests/windows/journal/OtherProgram.h"
#include "tests/windows/journal/RealFolder.h"

namespace journal {
namespace {

using testing::UnorderedElementsAre;

struct WindowsFolderTest : testing::Test {
  std::unique_ptr<File> Made(std::wstring_view name) {
    std::unique_ptr<File> file;
    EXPECT_EQ(folder.CreateNew(name, file), Naming::kDone);
    return file;
  }
  Naming WhyNotMade(std::wstring_view name) {
    std::unique_ptr<File> file;
    const Naming why = folder.CreateNew(name, file);
    EXPECT_EQ(file, nullptr);
    return why;
  }

  RealFolder real;
  WindowsFolder folder{real.path()};
};

/// A file of the folder, held by another program that lets nobody else near it.
class Held {
 public:
  Held(const RealFolder& folder, const wchar_t* name, DWORD shared)
      : handle_(CreateFileW((folder.path() + L"\\" + name).c_str(), GENERIC_READ, shared, nullptr,
                            OPEN_EXISTING, 0, nullptr)) {}
  ~Held() { CloseHandle(handle_); }
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;
  bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }

 private:
  HANDLE handle_;
};

TEST_F(WindowsFolderTest, IsMadeWithTheFoldersAboveItWhenTheFirstFileIs) {
  EXPECT_FALSE(std::filesystem::exists(real.path()));
  EXPECT_NE(Made(L"a.txt"), nullptr);
  EXPECT_TRUE(std::filesystem::exists(real.path() + L"\\a.txt"));
}

TEST_F(WindowsFolderTest, HoldsWhatIsAppendedWhileTheFileIsStillOpen) {
  const auto file = Made(L"a.txt");
  EXPECT_TRUE(file->Append("one\r\n"));
  EXPECT_TRUE(file->Append("två\r\n"));
  file->Flush();
  EXPECT_EQ(real.Bytes(L"a.txt"), "one\r\ntvå\r\n");
}

TEST_F(WindowsFolderTest, GoesOnInTheSameFileUnderItsNewName) {
  const auto file = Made(L"a.txt");
  file->Append("one");
  EXPECT_EQ(file->Rename(L"b.txt"), Naming::kDone);
  EXPECT_TRUE(file->Append("two"));
  EXPECT_EQ(file->Rename(L"c.txt"), Naming::kDone);
  EXPECT_TRUE(file->Append("three"));
  EXPECT_THAT(folder.Names(), UnorderedElementsAre(L"c.txt"));
  EXPECT_EQ(real.Bytes(L"c.txt"), "onetwothree");
}

TEST_F(WindowsFolderTest, NeverTakesAFileThatIsThere) {
  real.Put(L"a.txt", "old");
  EXPECT_EQ(WhyNotMade(L"a.txt"), Naming::kTaken);
  const auto file = Made(L"b.txt");
  EXPECT_EQ(file->Rename(L"a.txt"), Naming::kTaken);
  EXPECT_TRUE(file->Append("new"));
  EXPECT_EQ(real.Bytes(L"a.txt"), "old");
  EXPECT_EQ(real.Bytes(L"b.txt"), "new");
}

TEST_F(WindowsFolderTest, NeverLeavesTheFolder) {
  const auto file = Made(L"a.txt");
  file->Append("one");
  const std::wstring outside = real.root() + L"\\x.txt";
  for (const std::wstring& name :
       {std::wstring(L"..\\..\\x.txt"), std::wstring(L"../../x.txt"), outside,
        std::wstring(L"a.txt:x"), std::wstring(L""), std::wstring(L"..")}) {
    EXPECT_EQ(WhyNotMade(name), Naming::kImpossible) << common::ToUtf8(name);
    EXPECT_EQ(file->Rename(name), Naming::kImpossible) << common::ToUtf8(name);
  }
  std::ofstream{std::filesystem::path(outside)} << "kept";
  folder.Remove(L"..\\..\\x.txt");
  EXPECT_TRUE(std::filesystem::exists(outside));
}

TEST_F(WindowsFolderTest, NamesFilesOnlyAndRemovesThem) {
  real.Put(L"a.txt", "");
  real.Put(L"b.txt", "");
  std::filesystem::create_directories(real.path() + L"\\PTA_2001-01-01_120000.txt");
  EXPECT_THAT(folder.Names(), UnorderedElementsAre(L"a.txt", L"b.txt"));
  folder.Remove(L"a.txt");
  EXPECT_THAT(folder.Names(), UnorderedElementsAre(L"b.txt"));
}

TEST_F(WindowsFolderTest, ThatIsNotThereHasNoNames) { EXPECT_TRUE(folder.Names().empty()); }

TEST_F(WindowsFolderTest, KeepsAnOldFileThatIsLockedAndRemovesTheOthers) {
  real.Put(L"PTA_2001-01-01_120000.txt", "");
  real.Put(L"PTA_2001-01-02_120000.txt", "");
  const Held held(real, L"PTA_2001-01-01_120000.txt", 0);
  ASSERT_TRUE(held.IsOpen());
  RemoveOldFiles(folder, WindowsClock().Now().day);
  EXPECT_THAT(folder.Names(), UnorderedElementsAre(L"PTA_2001-01-01_120000.txt"));
}

TEST_F(WindowsFolderTest, TakesEveryLineWhileSomebodyHoldsTheFileAndItCanNotBeRenamed) {
  const auto file = Made(L"a.txt");
  file->Append("one");
  {
    const Held held(real, L"a.txt", FILE_SHARE_READ | FILE_SHARE_WRITE);
    ASSERT_TRUE(held.IsOpen());
    EXPECT_EQ(file->Rename(L"b.txt"), Naming::kImpossible);
    EXPECT_TRUE(file->Append("two"));
  }
  EXPECT_EQ(file->Rename(L"b.txt"), Naming::kDone);
  EXPECT_TRUE(file->Append("three"));
  EXPECT_EQ(real.Bytes(L"b.txt"), "onetwothree");
}

TEST_F(WindowsFolderTest, LetsNobodyElseWriteIntoTheFile) {
  const auto file = Made(L"a.txt");
  const HANDLE other = CreateFileW((real.path() + L"\\a.txt").c_str(), GENERIC_WRITE,
                                   FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                   OPEN_EXISTING, 0, nullptr);
  EXPECT_EQ(other, INVALID_HANDLE_VALUE);
}

TEST_F(WindowsFolderTest, ThatCanNotBeMadeTakesNothing) {
  std::ofstream(std::filesystem::path(real.root()) / L"PTA_QX") << "a file in its place";
  EXPECT_EQ(WhyNotMade(L"a.txt"), Naming::kImpossible);
  EXPECT_TRUE(folder.Names().empty());
}

TEST_F(WindowsFolderTest, WithoutAPathTakesNothing) {
  WindowsFolder nowhere(L"");
  std::unique_ptr<File> file;
  EXPECT_EQ(nowhere.CreateNew(L"pta-journal-test.txt", file), Naming::kImpossible);
  EXPECT_TRUE(nowhere.Names().empty());
}

/// Nobody may add a file to the folder, in this lifetime.
class Forbidden {
 public:
  explicit Forbidden(const std::wstring& path) : path_(path) {
    std::filesystem::create_directories(path_);
    std::filesystem::permissions(path_, kWrite, std::filesystem::perm_options::remove);
    SetFileAttributesW(path_.c_str(), FILE_ATTRIBUTE_READONLY);
  }
  ~Forbidden() {
    SetFileAttributesW(path_.c_str(), FILE_ATTRIBUTE_NORMAL);
    std::filesystem::permissions(path_, kWrite, std::filesystem::perm_options::add);
  }
  Forbidden(const Forbidden&) = delete;
  Forbidden& operator=(const Forbidden&) = delete;

 private:
  static constexpr auto kWrite = std::filesystem::perms::owner_write |
                                 std::filesystem::perms::group_write |
                                 std::filesystem::perms::others_write;
  std::wstring path_;
};

/// The folder is there, and this user cannot add a file to it.
bool IsClosed(const std::filesystem::path& folder) {
  if (!std::filesystem::is_directory(folder)) return false;
  const std::filesystem::path probe = folder / L"pta-journal-probe";
  const bool isOpen = std::ofstream(probe).is_open();
  if (isOpen) std::filesystem::remove(probe);
  return !isOpen;
}

TEST_F(WindowsFolderTest, ThatIsReadOnlyTakesNothing) {
  const Forbidden forbidden(real.path());
  // Under Wine root may write into any folder but those that the kernel makes.
  constexpr const wchar_t* kOfTheKernel = L"Z:\\sys\\kernel";
  const bool isForbidden = IsClosed(real.path());
  if (!isForbidden && !IsClosed(kOfTheKernel)) {
    GTEST_SKIP() << "this user may write into a read-only folder, and there is no other closed one";
  }
  WindowsFolder closed(isForbidden ? real.path() : kOfTheKernel);
  std::unique_ptr<File> file;
  EXPECT_EQ(closed.CreateNew(L"pta-journal-test.txt", file), Naming::kImpossible);
  EXPECT_EQ(file, nullptr);
}

TEST_F(WindowsFolderTest, WithAFileInItsPlaceTakesNothing) {
  const std::filesystem::path place(real.path());
  std::filesystem::create_directories(place.parent_path());
  std::ofstream(place) << "a file";
  EXPECT_EQ(WhyNotMade(L"a.txt"), Naming::kImpossible);
  EXPECT_TRUE(folder.Names().empty());
}

TEST_F(WindowsFolderTest, HoldsEveryLineOfALongRun) {
  constexpr int kEntries = 5000;
  const WindowsClock clock;
  Writer writer(folder, clock);
  writer.Open(L"1.2.3");
  std::wstring answer;
  for (int line = 0; line < 40; ++line) answer += L"A LINE OF THE HOST WITH Å\r\n";
  for (int entry = 1; entry <= kEntries; ++entry) writer.Write(std::to_wstring(entry), answer);
  writer.NameAfter(L"ABC123");
  ASSERT_EQ(folder.Names().size(), 1u);
  const std::string bytes = real.Bytes(folder.Names().front());
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 3 + 41 * kEntries);
  EXPECT_NE(bytes.find(" 5000:\r\n    | A LINE OF THE HOST WITH Å\r\n"), bytes.npos);
}

TEST_F(WindowsFolderTest, HoldsTheJournalsOfTwoProgramsOfTheSameMomentWhole) {
  constexpr int kLines = 500;
  OtherProgram other(real.path(), L"other", kLines);
  WriteOneJournal(real.path(), L"this", kLines);
  ASSERT_TRUE(other.HasSucceeded());
  EXPECT_THAT(folder.Names(), UnorderedElementsAre(L"PTA_2007-02-20_130000_ABC123.txt",
                                                   L"PTA_2007-02-20_130000_ABC123-2.txt"));
  std::vector<std::string> words;
  for (const std::wstring& name : folder.Names()) {
    const std::string bytes = real.Bytes(name);
    EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 3 + kLines);
    words.push_back(bytes.substr(bytes.rfind(' ', bytes.rfind(' ') - 1) + 1));
  }
  EXPECT_THAT(words, UnorderedElementsAre("this 500\r\n", "other 500\r\n"));
}

TEST(UsersJournalFolder, IsInTheUsersLocalApplicationData) {
  wchar_t data[MAX_PATH] = {};
  ASSERT_GT(GetEnvironmentVariableW(L"LOCALAPPDATA", data, MAX_PATH), 0u);
  EXPECT_EQ(UsersJournalFolder(), std::wstring(data) + L"\\PTA_QX\\journal");
}

TEST(WindowsClock, TellsTheLocalTime) {
  SYSTEMTIME before = {};
  GetLocalTime(&before);
  const Moment now = WindowsClock().Now();
  EXPECT_EQ(static_cast<int>(now.day.year()), before.wYear);
  const auto start = std::chrono::hours(before.wHour) + std::chrono::minutes(before.wMinute) +
                     std::chrono::seconds(before.wSecond);
  // Midnight may have come in between.
  if (static_cast<unsigned>(now.day.day()) == before.wDay) {
    EXPECT_GE(now.time, start);
    EXPECT_LE(now.time, start + std::chrono::seconds(20));
  }
}

}  // namespace
}  // namespace journal
