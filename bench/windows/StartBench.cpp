// Measures how the program starts beside three minimal dialog programs, one of which attaches to
// the terminal first and one has the window of the program's own dialog, with a practice terminal
// whose host answers at once: the time to the first window and to the dialog, and the memory at it.
//
//   pta-start-bench [ROUNDS]   all programs lie in its own folder, with PTA_QX.ini

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "bench/windows/HostCalls.h"
#include "bench/windows/resource.h"
#include "common/Text.h"
#include "hostlib/com/Apartment.h"
#include "hostlib/com/ComLibrary.h"
#include "tests/windows/driver/Driver.h"
#include "tests/windows/terminal/Client.h"
#include "tests/windows/terminal/PracticeTerminal.h"
#include "ui/win32/resource.h"

namespace {

using bench::Start;

void PrintFigure(const char* what, double figure, double atMost, const char* unit) {
  std::printf("  %-52s %7.2f%s  (at most %.2f%s: %s)\n", what, figure, unit, atMost, unit,
              figure <= atMost ? "met" : "MISSED");
}

/// The same of all programs.
template <typename Of>
struct Each {
  Of minimal;
  Of unbound;  ///< has the program's own dialog
  Of attached;
  Of program;
};

void Print(const Each<Start>& medians, bench::Milliseconds host) {
  const auto& [minimal, unbound, attached, program] = medians;
  std::printf("\nStart, medians in milliseconds: first window, dialog ready; memory in MB\n");
  const auto line = [](const char* name, const Start& start) {
    std::printf("  %-52s %7.0f %7.0f %7.2f\n", name, start.firstWindow.count(), start.ready.count(),
                start.megabytes);
  };
  line("minimal dialog program", minimal);
  line("minimal program with PTA_QX's dialog, unbound", unbound);
  line("minimal dialog program that attaches", attached);
  line("PTA_QX", program);
  std::printf("  %-52s         %7.0f\n", "the host: its library calls alone", host.count());
  PrintFigure("first window, over the minimal program", program.firstWindow / minimal.firstWindow,
              1.5, "");
  std::printf("  %-52s %7.2f\n", "first window, over the one that attaches",
              program.firstWindow / attached.firstWindow);
  PrintFigure("dialog ready, over 1.5 of its window and the host",
              program.ready / (1.5 * unbound.ready + host), 1.0, "");
  const bench::Milliseconds withHost = 1.5 * minimal.ready + host;
  std::printf("  %-52s %7.2f\n", "dialog ready, over 1.5 of a button and the host",
              program.ready / withHost);
  // A new process attaches; the host's calls are those of one that long has.
  std::printf("  %-52s %7.2f\n", "dialog ready, over these and what attaching takes",
              program.ready / (withHost + attached.ready - minimal.ready));
  if (program.megabytes > 0) {
    PrintFigure("private memory above the minimal program", program.megabytes - minimal.megabytes,
                10, " MB");
  } else {
    std::puts("  private memory: this system does not tell");
  }
}

void PrintRound(const Each<Start>& start, bench::Milliseconds host) {
  const auto line = [](const char* what, bench::Milliseconds minimal, bench::Milliseconds unbound,
                       bench::Milliseconds attached, bench::Milliseconds program) {
    std::printf("  %s %5.0f %5.0f %5.0f %5.0f ", what, minimal.count(), unbound.count(),
                attached.count(), program.count());
  };
  const auto& [minimal, unbound, attached, program] = start;
  line("first window", minimal.firstWindow, unbound.firstWindow, attached.firstWindow,
       program.firstWindow);
  line("dialog ready", minimal.ready, unbound.ready, attached.ready, program.ready);
  std::printf("  host %5.0f\n", host.count());
  std::fflush(stdout);
}

std::wstring TextOf(const std::wstring& path) {
  std::FILE* const file = _wfopen(path.c_str(), L"rb");
  if (file == nullptr) throw driver::DriverError(L"Cannot read " + path);
  std::string bytes;
  for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file)) bytes += static_cast<char>(c);
  std::fclose(file);
  return driver::ToWide(bytes);
}

void Measure(int rounds) {
  std::puts("Each round in milliseconds, the minimal programs, PTA_QX and the host:");
  const terminal::Registered registered;
  terminal::PracticeTerminal terminal(L"ordinary");
  const std::wstring own = terminal::TestProgram();
  const std::wstring folder = own.substr(0, own.find_last_of(L'\\') + 1);
  const std::wstring booking = TextOf(folder + L"pnrs\\ordinary.pnr");
  hostlib::com::InstalledObjects installed;
  hostlib::com::ComLibrary library(installed);
  terminal.Load(booking);
  bench::HostCalls host(library);
  Each<std::vector<Start>> starts;
  for (int round = 0; round < rounds; ++round) {
    terminal.Load(booking);
    const Each<Start> start{bench::StartOnce(folder + L"pta-minimal.exe", ID_MINIMAL_OK),
                            bench::StartOnce(folder + L"pta-unbound.exe", ID_cmdOK),
                            bench::StartOnce(folder + L"pta-attached.exe", ID_MINIMAL_OK),
                            bench::StartOnce(folder + L"PTA_QX.exe", ID_cmdOK)};
    terminal.Load(booking);
    PrintRound(start, host.Measure());
    starts.minimal.push_back(start.minimal);
    starts.attached.push_back(start.attached);
    starts.unbound.push_back(start.unbound);
    starts.program.push_back(start.program);
  }
  Print({bench::Median(starts.minimal), bench::Median(starts.unbound),
         bench::Median(starts.attached), bench::Median(starts.program)},
        host.Median());
}

}  // namespace

int main(int count, char** arguments) {
  try {
    const hostlib::com::Apartment apartment([] { return false; });
    Measure(count > 1 ? std::max(std::atoi(arguments[1]), 1) : 9);
    return 0;
  } catch (const common::RunTimeError& error) {
    std::puts(common::ToUtf8(error.description()).c_str());
  } catch (const client::Failure& failure) {
    std::printf("the terminal: %s\n", common::ToUtf8(failure.text).c_str());
  } catch (const std::exception& error) {
    std::puts(error.what());
  }
  return 1;
}
