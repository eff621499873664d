#pragma once

#include <initializer_list>
#include <memory>
#include <span>
#include <type_traits>
#include <variant>

#include "hostlib/Value.h"

namespace hostlib {

/// A value that is lent: what std::wstring_view is to a text. Nothing is copied; texts, arrays and
/// objects are their owner's and must outlast it. Whoever keeps one makes a Value of it.
class ValueView {
 public:
  /// The kinds of a Value.
  using Content = std::variant<std::monostate, Missing, bool, std::int16_t, std::int32_t, double,
                               std::wstring_view, const TextArray*, const IntegerArray*,
                               const DoubleArray*, const ObjectPtr*>;

  ValueView() = default;
  ValueView(const Value& value);
  ValueView(Missing missing) : content_(missing) {}
  ValueView(bool flag) : content_(flag) {}
  ValueView(std::int16_t integer) : content_(integer) {}
  ValueView(std::int32_t integer) : content_(integer) {}
  ValueView(double number) : content_(number) {}
  ValueView(const std::wstring& text) : content_(std::wstring_view(text)) {}
  ValueView(std::wstring_view text) : content_(text) {}
  ValueView(const wchar_t* text) : content_(std::wstring_view(text)) {}
  ValueView(const TextArray& array) : content_(&array) {}
  ValueView(const IntegerArray& array) : content_(&array) {}
  ValueView(const DoubleArray& array) : content_(&array) {}
  ValueView(const ObjectPtr& object) : content_(&object) {}
  /// What it becomes an ObjectPtr in would be gone before the call.
  template <typename T>
  requires(!std::is_same_v<T, Object>) ValueView(const std::shared_ptr<T>&)
  = delete;
  /// Any other pointer would silently become a boolean.
  template <typename T>
  ValueView(T*) = delete;

  bool IsEmpty() const { return std::holds_alternative<std::monostate>(content_); }
  bool IsMissing() const { return std::holds_alternative<Missing>(content_); }
  bool IsObject() const { return std::holds_alternative<const ObjectPtr*>(content_); }
  bool IsArray() const;

  /// The content when it is of exactly that kind, else null. Nothing is converted. A text is a
  /// std::wstring_view.
  template <typename T>
  const T* If() const {
    if constexpr (kByAddress<T>) {
      const auto* address = std::get_if<const T*>(&content_);
      return address == nullptr ? nullptr : *address;
    } else {
      return std::get_if<T>(&content_);
    }
  }

  // As those of Value.

  std::wstring Text() const;
  bool Flag() const;
  std::int16_t Integer() const;
  std::int32_t Long() const;
  ObjectPtr AsObject() const;

  /// The kind of the content in words, for messages: "a text", "an array of texts", ...
  std::wstring_view Kind() const;
  /// Throws common::TypeMismatch: this kind instead of the wanted one, in words.
  [[noreturn]] void Mismatch(std::wstring_view wanted) const;

  const Content& content() const { return content_; }

 private:
  template <typename T>
  static constexpr bool kByAddress =
      std::is_same_v<T, TextArray> || std::is_same_v<T, IntegerArray> ||
      std::is_same_v<T, DoubleArray> || std::is_same_v<T, ObjectPtr>;

  Content content_;
};

/// What a call is given, in the order of its arguments, until it returns. A list in braces is for a
/// call only, never for a variable.
class Arguments : public std::span<const ValueView> {
 public:
  using span::span;
  Arguments(std::initializer_list<ValueView> values) : span(values.begin(), values.size()) {}
};

/// The value as one line for transcripts and messages: texts quoted, booleans True and False,
/// arrays in brackets, objects by class name.
std::wstring Describe(const ValueView& value);

}  // namespace hostlib
