#include <gtest/gtest.h>

#include <new>
#include <optional>
#include <stdexcept>
#include <utility>

#include "app/Program.h"
#include "hostlib/Operations.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/ScriptedLibrary.h"

namespace app {
namespace {

using Lines = std::vector<std::wstring>;

/// Writes down the caption that a form has when it is painted.
class WatchedDesktop : public support::FakeDesktop {
 public:
  void Show(ui::Form& form) override {
    FakeDesktop::Show(form);
    log.back() += L" \"" + form.Caption() + L"\"";
  }
  void Refresh(ui::Form& form) override {
    FakeDesktop::Refresh(form);
    log.back() += L" \"" + form.Caption() + L"\"";
  }
};

struct Bench {
  Bench() { library.Answer(hostlib::operations::script_global::kAttach, false); }
  int Run() { return RunProgram(library, desktop, platform); }

  support::ScriptedLibrary library;
  support::FixedPlatform platform;
  WatchedDesktop desktop;
};

TEST(RunProgram, TheProgressFormGetsItsCaptionOnceShownAndIsPaintedAnew) {
  Bench bench;
  bench.library.FailToCreate(L"ScriptErrorReporter");
  EXPECT_EQ(bench.Run(), 0);
  ASSERT_GE(bench.desktop.log.size(), 2U);
  EXPECT_EQ(bench.desktop.log[0], L"show frmWorking \"\"");
  EXPECT_EQ(bench.desktop.log[1], L"refresh frmWorking \"  PTA Script \"");
}

TEST(RunProgram, AFailureBeforeThereIsAReporterIsTheEntryProceduresBoxAndTheEnd) {
  Bench bench;
  bench.library.Answer(hostlib::operations::script_global::kAttach, L"no boolean");
  EXPECT_EQ(bench.Run(), 0);
  EXPECT_EQ(bench.desktop.log,
            Lines{L"box 16 \"  PTA Script \" \"Error initiating script!\" -> 1"});
}

struct NoLibrary {};

/// Has nothing but its first object.
class LibraryThatEnds : public hostlib::Library {
 public:
  explicit LibraryThatEnds(hostlib::Library& inner) : inner_(inner) {}
  hostlib::ObjectPtr Create(std::wstring_view className) override {
    if (hasBegun_) throw NoLibrary();
    hasBegun_ = true;
    return inner_.Create(className);
  }

 private:
  hostlib::Library& inner_;
  bool hasBegun_ = false;
};

TEST(RunProgram, ThatThereIsNoLibraryForItPassesEveryStepAndClosesTheProgressForm) {
  Bench bench;
  LibraryThatEnds library(bench.library);
  EXPECT_THROW(RunProgram(library, bench.desktop, bench.platform), NoLibrary);
  EXPECT_EQ(bench.desktop.log,
            (Lines{L"show frmWorking \"\"", L"refresh frmWorking \"  PTA Script \"",
                   L"close frmWorking"}));
}

/// Its first box fails, and with it the report that it was to show.
template <typename Failure>
class DesktopWithoutAFirstBox : public support::FakeDesktop {
 public:
  explicit DesktopWithoutAFirstBox(Failure failure) : failure_(std::move(failure)) {}

  int ShowBox(std::wstring_view text, int style, std::wstring_view title) override {
    if (failure_) {
      const Failure failure = *std::exchange(failure_, {});
      throw failure;
    }
    return FakeDesktop::ShowBox(text, style, title);
  }

 private:
  std::optional<Failure> failure_;
};

template <typename Failure>
void ExpectTold(Failure failure, const wchar_t* words) {
  Bench bench;
  bench.library.Answer(hostlib::operations::script_global::kAttach, L"no boolean");
  DesktopWithoutAFirstBox<Failure> desktop(std::move(failure));
  EXPECT_EQ(RunProgram(bench.library, desktop, bench.platform), 1);
  EXPECT_EQ(
      desktop.log,
      Lines{L"box 16 \"  PTA Script \" \"The script ended because of an unexpected failure.\r\r" +
            std::wstring(words) + L"\" -> 1"});
}

TEST(RunProgram, AnUnexpectedFailureIsToldInItsOwnWordsAndEndsTheProgramWithOne) {
  ExpectTold(std::runtime_error("no memory"), L"no memory");
  ExpectTold(common::RunTimeError(L"no window"), L"no window");
}

TEST(TellFailures, ShowsNothingWhenThereIsNone) {
  support::FakeDesktop desktop;
  bool done = false;
  TellFailures(desktop, [&] { done = true; });
  EXPECT_TRUE(done);
  EXPECT_EQ(desktop.log, Lines{});
}

TEST(TellFailures, ShowsOneOutsideTheRunInTheSameWords) {
  support::FakeDesktop desktop;
  TellFailures(desktop, [] { throw std::bad_alloc(); });
  EXPECT_EQ(
      desktop.log,
      Lines{L"box 16 \"  PTA Script \" \"The script ended because of an unexpected failure.\r\r"
            L"std::bad_alloc\" -> 1"});
}

}  // namespace
}  // namespace app
