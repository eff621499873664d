#include <gtest/gtest.h>

#include <functional>
#include <iostream>
#include <sstream>
#include <utility>

#include "tests/windows/driver/Driver.h"
#include "tests/windows/driver/Process.h"

namespace driver {
namespace {

/// A program of the system that ends by itself, beside this one.
class CopiedProgram {
 public:
  CopiedProgram() {
    wchar_t own[MAX_PATH] = L"";
    GetModuleFileNameW(nullptr, own, MAX_PATH);
    path_ = own + std::wstring(L".copy.exe");
    CopyFileW(L"C:\\windows\\system32\\hostname.exe", path_.c_str(), FALSE);
  }
  ~CopiedProgram() { DeleteFileW(path_.c_str()); }
  CopiedProgram(const CopiedProgram&) = delete;
  CopiedProgram& operator=(const CopiedProgram&) = delete;

  const std::wstring& path() const { return path_; }

 private:
  std::wstring path_;
};

/// Hears what this program says, while it lives, and does something after each line.
class Hearing : private std::stringbuf {
 public:
  explicit Hearing(std::function<void()> afterALine)
      : afterALine_(std::move(afterALine)), before_(std::cout.rdbuf(this)) {}
  ~Hearing() override { std::cout.rdbuf(before_); }
  Hearing(const Hearing&) = delete;
  Hearing& operator=(const Hearing&) = delete;

  std::string said() const { return str(); }

 private:
  int sync() override {
    afterALine_();
    return 0;
  }

  std::function<void()> afterALine_;
  std::streambuf* before_;
};

TEST(AProgram, ThatCannotBeStartedForAMomentIsTriedAgainAndSaysSo) {
  const CopiedProgram program;
  HANDLE writer =
      CreateFileW(program.path().c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(writer, INVALID_HANDLE_VALUE);
  const Hearing hearing([&] { CloseHandle(std::exchange(writer, nullptr)); });
  EXPECT_EQ(Process(program.path()).ExitCode(), 0U);
  EXPECT_EQ(hearing.said(), "Cannot start " + ToUtf8(program.path()) +
                                ": error 32, Sharing violation. Trying again.\n");
}

TEST(AProgram, ThatIsNotThereFailsAtOnceWithTheReason) {
  const Hearing hearing([] {});
  try {
    Process(L"C:\\windows\\none.exe");
    ADD_FAILURE() << "it was started";
  } catch (const DriverError& error) {
    EXPECT_STREQ(error.what(), "Cannot start C:\\windows\\none.exe: error 2, File not found.");
  }
  EXPECT_EQ(hearing.said(), "");
}

}  // namespace
}  // namespace driver
