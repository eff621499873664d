#pragma once

#include "errors/ErrorHandler.h"
#include "ui/controls/Controls.h"

namespace ui {

inline constexpr std::size_t kOfficeIDLength = 9;
inline constexpr std::size_t kIATANumberLength = 8;
inline constexpr std::size_t kCityCodeLength = 3;
inline constexpr std::size_t kAirlineCodeLength = 2;

/// The fields whose form the later host commands depend on.
struct ValidatedFields {
  TextBox& txtQueueingOfficeID;
  TextBox& txtIATANumber;
  TextBox& txtCityCode;
  TextBox& txtCarrier;
};

class FieldValidation {
 public:
  FieldValidation(ValidatedFields fields, common::MessageBoxes& boxes,
                  errors::ErrorHandler& errors);

  /// True when all fields pass. Otherwise the agent is told of the first that does not, and the
  /// focus is on it. A failure while verifying is reported and does not pass.
  bool VerifyWindowFields();

 private:
  bool Verify();
  void Refuse(TextBox& field, std::wstring_view message);

  ValidatedFields fields_;
  common::MessageBoxes& boxes_;
  errors::ErrorHandler& errors_;
};

}  // namespace ui
