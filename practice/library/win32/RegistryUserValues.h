#pragma once

#include "practice/library/Stores.h"

namespace practice {

/// The user's values in the registry: HKEY_CURRENT_USER\<root>\<application>\<section>, one text
/// value a key.
class RegistryUserValues : public UserValues {
 public:
  explicit RegistryUserValues(std::wstring root = L"Software\\VantelPractice")
      : root_(std::move(root)) {}

  std::wstring Get(std::wstring_view application, std::wstring_view section,
                   std::wstring_view key) override;
  /// Throws common::RunTimeError when the registry refuses.
  void Save(std::wstring_view application, std::wstring_view section, std::wstring_view key,
            std::wstring_view value) override;

 private:
  std::wstring PathOf(std::wstring_view application, std::wstring_view section) const;

  std::wstring root_;
};

}  // namespace practice
