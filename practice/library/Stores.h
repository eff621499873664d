#pragma once

#include <map>
#include <string>
#include <string_view>
#include <tuple>

namespace practice {

/// Where the practice library's ProfileStore keeps INI files. Section and key names are compared
/// without regard to case, as the Windows profile functions do.
class Profiles {
 public:
  virtual ~Profiles() = default;
  /// "" when the file, the section or the key is missing.
  virtual std::wstring Read(std::wstring_view path, std::wstring_view section,
                            std::wstring_view key) = 0;
  /// False when the file could not be written.
  virtual bool Write(std::wstring_view path, std::wstring_view section, std::wstring_view key,
                     std::wstring_view value) = 0;
};

/// Where the practice library's UserSettingsStore keeps the user's values.
class UserValues {
 public:
  virtual ~UserValues() = default;
  /// "" when missing.
  virtual std::wstring Get(std::wstring_view application, std::wstring_view section,
                           std::wstring_view key) = 0;
  virtual void Save(std::wstring_view application, std::wstring_view section, std::wstring_view key,
                    std::wstring_view value) = 0;
};

/// The user's values for as long as the process lives.
class UserValuesInMemory : public UserValues {
 public:
  std::wstring Get(std::wstring_view application, std::wstring_view section,
                   std::wstring_view key) override {
    const auto found = values_.find(Key(application, section, key));
    return found == values_.end() ? std::wstring() : found->second;
  }
  void Save(std::wstring_view application, std::wstring_view section, std::wstring_view key,
            std::wstring_view value) override {
    values_.insert_or_assign(Key(application, section, key), std::wstring(value));
  }

 private:
  using Place = std::tuple<std::wstring, std::wstring, std::wstring>;
  static Place Key(std::wstring_view application, std::wstring_view section,
                   std::wstring_view key) {
    return {std::wstring(application), std::wstring(section), std::wstring(key)};
  }
  std::map<Place, std::wstring> values_;
};

}  // namespace practice
