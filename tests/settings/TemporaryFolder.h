#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

#include "common/Text.h"

namespace settings {

/// A folder of the test's own, gone afterwards.
class TemporaryFolder {
 public:
  TemporaryFolder()
      : folder_(std::filesystem::temp_directory_path() /
                ("pta-test-" + std::to_string(std::random_device()()))) {
    std::filesystem::create_directories(folder_);
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    for (const auto& entry : std::filesystem::directory_iterator(folder_, ignored)) {
      std::filesystem::permissions(entry, std::filesystem::perms::owner_write,
                                   std::filesystem::perm_options::add, ignored);
    }
    std::filesystem::remove_all(folder_, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  /// As the program writes it: with a backslash.
  std::wstring Path(std::wstring_view name) const {
    return common::FromUtf8(folder_.string()) + L"\\" + std::wstring(name);
  }
  void Put(std::wstring_view name, std::string_view bytes) const {
    std::ofstream(folder_ / std::filesystem::path(name), std::ios::binary) << bytes;
  }
  std::string Bytes(std::wstring_view name) const {
    std::ifstream file(folder_ / std::filesystem::path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }
  void MakeReadOnly(std::wstring_view name) const {
    using std::filesystem::perms;
    std::filesystem::permissions(folder_ / std::filesystem::path(name),
                                 perms::owner_write | perms::group_write | perms::others_write,
                                 std::filesystem::perm_options::remove);
  }
  int Count() const {
    return static_cast<int>(std::distance(std::filesystem::directory_iterator(folder_), {}));
  }

 private:
  std::filesystem::path folder_;
};

}  // namespace settings
