#pragma once

#include <windows.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace journal {

/// A folder for the journals of one test, with letters that no code page has all of; gone
/// afterwards.
class RealFolder {
 public:
  RealFolder() {
    std::filesystem::remove_all(root_);
    std::filesystem::create_directories(root_);
  }
  ~RealFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(root_, ignored);
  }
  RealFolder(const RealFolder&) = delete;
  RealFolder& operator=(const RealFolder&) = delete;

  /// Is not there yet.
  std::wstring path() const { return (root_ / L"PTA_QX" / L"journal").wstring(); }
  std::wstring root() const { return root_.wstring(); }
  std::string Bytes(const std::wstring& name) const {
    std::ifstream file(std::filesystem::path(path()) / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }
  void Put(const std::wstring& name, const std::string& bytes) const {
    std::filesystem::create_directories(path());
    std::ofstream(std::filesystem::path(path()) / name, std::ios::binary) << bytes;
  }
  std::size_t Count() const {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(path()), {}));
  }

 private:
  std::filesystem::path root_ =
      std::filesystem::temp_directory_path() /
      (L"pta journal Åsa Łódź Ωμέγα " + std::to_wstring(GetCurrentProcessId()));
};

}  // namespace journal
