#include "hostlib/Value.h"

#include "hostlib/Object.h"

namespace hostlib {
namespace {

template <typename ArrayKind>
ArrayKind RowsOf(Value value, std::wstring_view wanted) {
  if (value.IsObject()) value = value.AsObject()->Call(kDefaultMember, {});
  if (value.IsEmpty()) return {};
  if (auto* array = value.If<ArrayKind>()) return std::move(*array);
  ValueView(value).Mismatch(wanted);
}

/// A value of its own of each kind that is lent.
struct Copier {
  template <typename T>
  Value operator()(const T& content) const {
    return content;
  }
  template <typename T>
  Value operator()(const T* content) const {
    return *content;
  }
  Value operator()(std::monostate) const { return {}; }
};

}  // namespace

Value::Value(const ValueView& lent) : Value(std::visit(Copier(), lent.content())) {}

std::wstring Value::Text() const& { return ValueView(*this).Text(); }

std::wstring Value::Text() && {
  if (auto* text = If<std::wstring>()) return std::move(*text);
  return ValueView(*this).Text();
}

bool Value::Flag() const { return ValueView(*this).Flag(); }
std::int16_t Value::Integer() const { return ValueView(*this).Integer(); }
std::int32_t Value::Long() const { return ValueView(*this).Long(); }
ObjectPtr Value::AsObject() const { return ValueView(*this).AsObject(); }
bool Value::IsArray() const { return ValueView(*this).IsArray(); }

TextArray TextsOf(Value value) { return RowsOf<TextArray>(std::move(value), L"an array of texts"); }

IntegerArray IntegersOf(Value value) {
  return RowsOf<IntegerArray>(std::move(value), L"an array of integers");
}

DoubleArray DoublesOf(Value value) {
  return RowsOf<DoubleArray>(std::move(value), L"an array of doubles");
}

void LibraryError::Locate(std::wstring_view object, std::wstring_view operation) {
  if (!object_.empty()) return;
  object_ = object;
  operation_ = operation;
}

}  // namespace hostlib
