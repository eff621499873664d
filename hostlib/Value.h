#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace hostlib {

class Object;
class ValueView;
using ObjectPtr = std::shared_ptr<Object>;

/// An optional argument that the caller leaves out.
struct Missing {
  bool operator==(const Missing&) const = default;
};

/// An array of a variant, with its own lower bound (0 or 1 in this system).
template <typename T>
struct Array {
  std::vector<T> items;
  int lowerBound = 0;

  /// Lower bound - 1 when the array is empty.
  int UpperBound() const { return lowerBound + static_cast<int>(items.size()) - 1; }
  bool operator==(const Array&) const = default;
};

using TextArray = Array<std::wstring>;
using IntegerArray = Array<std::int16_t>;
using DoubleArray = Array<double>;

/// What a variant of the script library can hold in this system.
class Value {
 public:
  using Content = std::variant<std::monostate, Missing, bool, std::int16_t, std::int32_t, double,
                               std::wstring, TextArray, IntegerArray, DoubleArray, ObjectPtr>;

  Value() = default;
  Value(Missing missing) : content_(missing) {}
  Value(bool flag) : content_(flag) {}
  Value(std::int16_t integer) : content_(integer) {}
  Value(std::int32_t integer) : content_(integer) {}
  Value(double number) : content_(number) {}
  Value(std::wstring text) : content_(std::move(text)) {}
  Value(std::wstring_view text) : content_(std::in_place_type<std::wstring>, text) {}
  Value(const wchar_t* text) : content_(std::in_place_type<std::wstring>, text) {}
  Value(TextArray array) : content_(std::move(array)) {}
  Value(IntegerArray array) : content_(std::move(array)) {}
  Value(DoubleArray array) : content_(std::move(array)) {}
  Value(ObjectPtr object) : content_(std::move(object)) {}
  /// A copy of what is lent.
  explicit Value(const ValueView& lent);
  /// Any other pointer would silently become a boolean.
  template <typename T>
  Value(T*) = delete;

  bool IsEmpty() const { return std::holds_alternative<std::monostate>(content_); }
  bool IsMissing() const { return std::holds_alternative<Missing>(content_); }
  bool IsObject() const { return std::holds_alternative<ObjectPtr>(content_); }
  bool IsArray() const;

  /// The content when it is of exactly that kind, else null. Nothing is converted.
  template <typename T>
  const T* If() const {
    return std::get_if<T>(&content_);
  }
  template <typename T>
  T* If() {
    return std::get_if<T>(&content_);
  }

  // The typed readers below convert nothing but an empty value; any other kind than the asked one
  // throws common::RunTimeError ("Type mismatch: ...").

  /// "" for an empty value.
  std::wstring Text() const&;
  std::wstring Text() &&;
  /// False for an empty value.
  bool Flag() const;
  /// Either integer width, or a text or double that converts; an empty value and an empty text are
  /// 0; what does not fit 16 bits is an overflow.
  std::int16_t Integer() const;
  std::int32_t Long() const;
  /// The object; an empty value is a mismatch.
  ObjectPtr AsObject() const;

  const Content& content() const { return content_; }
  bool operator==(const Value&) const = default;

 private:
  Content content_;
};

}  // namespace hostlib
