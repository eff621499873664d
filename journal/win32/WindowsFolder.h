#pragma once

#include "journal/Storage.h"

namespace journal {

/// A real folder. It is made, with the folders above it, when the first file is.
class WindowsFolder : public Folder {
 public:
  /// `path` without a backslash at its end; with "" nothing is ever written.
  explicit WindowsFolder(std::wstring path) : path_(std::move(path)) {}

  Naming CreateNew(std::wstring_view name, std::unique_ptr<File>& file) override;
  std::vector<std::wstring> Names() const override;
  void Remove(std::wstring_view name) override;

 private:
  std::wstring PathOf(std::wstring_view name) const;

  std::wstring path_;
};

/// PTA_QX\journal in the user's local application data; "" when Windows does not say where that is.
std::wstring UsersJournalFolder();

}  // namespace journal
