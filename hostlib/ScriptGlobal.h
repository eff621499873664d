#pragma once

#include "common/Literal.h"
#include "hostlib/ParameterBag.h"

namespace hostlib {

/// The library's one global object, created on first use and kept for the whole run.
class ScriptGlobal : public Facade {
 public:
  explicit ScriptGlobal(Library& library) : library_(library) {}

  /// The first use; later ones change nothing. Throws when the library cannot be found.
  void Create() {
    if (object_ == nullptr) object_ = library_.Create(operations::script_global::kClass);
  }

  /// `number` counts from 1; "" past the last field.
  std::wstring GetField(std::wstring_view text, int number, std::wstring_view delimiter) {
    return Use(operations::script_global::kGetField, text, number, delimiter).Text();
  }
  std::wstring HostDateToText(std::wstring_view hostDate) {
    return Use(operations::script_global::kHostDateToText, hostDate).Text();
  }
  std::wstring TextToHostDate(std::wstring_view date) {
    return Use(operations::script_global::kTextToHostDate, date).Text();
  }
  std::wstring ToText(const ValueView& value) {
    return Use(operations::script_global::kToText, value).Text();
  }
  bool ToBoolean(const ValueView& value) {
    return Use(operations::script_global::kToBoolean, value).Flag();
  }
  /// True when the run must end at once.
  bool Attach(const ObjectPtr& progressForm, const ObjectPtr& application) {
    return Use(operations::script_global::kAttach, progressForm, application).Flag();
  }
  std::wstring FormatAssociation(std::wstring_view elementNumbers) {
    return Use(operations::script_global::kFormatAssociation, elementNumbers).Text();
  }

  /// A key's value as the convention reads it: GetValue, then ToText or ToBoolean.
  std::wstring TextIn(const ParameterBag& bag, common::Literal key) {
    return ToText(bag.GetValue(key));
  }
  bool FlagIn(const ParameterBag& bag, common::Literal key) { return ToBoolean(bag.GetValue(key)); }

 private:
  template <typename... Values>
  Value Use(const Operation& operation, const Values&... values) {
    Create();
    return Call(operation, values...);
  }

  Library& library_;
};

}  // namespace hostlib
