#include "bench/windows/HostMemory.h"

#include <windows.h>

#include <cstdio>
#include <cstdlib>

#include "common/Text.h"

namespace bench {
namespace {

// The other system's folder of processes, as Wine shows it.
constexpr const wchar_t* kProcesses = L"Z:\\proc\\";

// Read to its end: these files have no size.
std::string Contents(const std::wstring& path) {
  std::string bytes;
  std::FILE* const file = _wfopen(path.c_str(), L"rb");
  if (file == nullptr) return bytes;
  for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file)) bytes += static_cast<char>(c);
  std::fclose(file);
  return bytes;
}

// The kilobytes of every line that begins so.
double Kilobytes(const std::string& rollup, const std::string& name) {
  double sum = 0;
  for (auto at = rollup.find(name); at != std::string::npos; at = rollup.find(name, at + 1)) {
    sum += std::atof(rollup.c_str() + rollup.find(':', at) + 1);
  }
  return sum;
}

}  // namespace

double HostPrivateMegabytes(const std::wstring& program) {
  const std::string wanted = common::ToUtf8(program);
  WIN32_FIND_DATAW entry = {};
  const HANDLE search = FindFirstFileW((std::wstring(kProcesses) + L"*").c_str(), &entry);
  if (search == INVALID_HANDLE_VALUE) return 0;
  double megabytes = 0;
  do {
    const std::wstring folder = std::wstring(kProcesses) + entry.cFileName;
    // Its first argument is how it was started.
    if (entry.cFileName[0] < L'1' || entry.cFileName[0] > L'9') continue;
    if (Contents(folder + L"\\cmdline").find(wanted) == std::string::npos) continue;
    constexpr double kKilobytesEach = 1024;
    megabytes += Kilobytes(Contents(folder + L"\\smaps_rollup"), "\nPrivate_") / kKilobytesEach;
  } while (FindNextFileW(search, &entry) != FALSE);
  FindClose(search);
  return megabytes;
}

}  // namespace bench
