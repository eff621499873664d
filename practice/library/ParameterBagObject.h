#pragma once

#include <map>

#include "practice/library/PracticeObject.h"

namespace practice {

/// A keyed bag. Also used by the library's own readers, directly.
class ParameterBagObject : public PracticeObject {
 public:
  explicit ParameterBagObject(LastError* lastError);

  void Set(std::wstring_view key, hostlib::Value value);
  /// An empty value for a key that was never set.
  hostlib::Value Get(std::wstring_view key) const;
  bool Has(std::wstring_view key) const { return values_.contains(key); }

 private:
  std::map<std::wstring, hostlib::Value, std::less<>> values_;
};

/// A list: its array through the default member.
class ListObject : public PracticeObject {
 public:
  ListObject(hostlib::Value array, LastError* lastError);
};

/// The bag in an argument. Throws LibraryError when it is none.
ParameterBagObject& BagIn(const hostlib::ValueView& argument);

}  // namespace practice
