#include "ui/FieldValidation.h"

#include "common/Literal.h"
#include "common/Text.h"

namespace ui {
namespace {

constexpr std::wstring_view kInvalidTitle = L"Invalid Field !";

// The length counts every character, blanks at the ends too; the pattern does not see those.
bool IsOfficeID(std::wstring_view text) {
  return text.size() == kOfficeIDLength &&
         common::Like(common::Trim(text), L"[A-Z][A-Z][A-Z]??##??");
}

}  // namespace

FieldValidation::FieldValidation(ValidatedFields fields, common::MessageBoxes& boxes,
                                 errors::ErrorHandler& errors)
    : fields_(fields), boxes_(boxes), errors_(errors) {}

bool FieldValidation::VerifyWindowFields() {
  bool valid = false;
  errors_.Run(errors::procedures::kVerifyWindowFields, [&] { valid = Verify(); });
  return valid;
}

bool FieldValidation::Verify() {
  const std::wstring_view office = fields_.txtQueueingOfficeID.Text();
  struct Check {
    TextBox& field;
    bool passes;
    common::Literal message;
  };
  // An empty office is valid: the PNR is then not queued.
  const Check checks[] = {
      {fields_.txtQueueingOfficeID, office.empty() || IsOfficeID(office),
       L"Invalid Airline Office ID !"},
      {fields_.txtIATANumber, fields_.txtIATANumber.Text().size() == kIATANumberLength,
       L"Invalid IATA Number, must be 8 digits !"},
      {fields_.txtCityCode, fields_.txtCityCode.Text().size() == kCityCodeLength,
       L"Invalid City Code, must be three letters !"},
      {fields_.txtCarrier, fields_.txtCarrier.Text().size() == kAirlineCodeLength,
       L"Invalid Airline Code, must be two letters !"},
  };
  for (const Check& check : checks) {
    if (check.passes) continue;
    Refuse(check.field, check.message);
    return false;
  }
  return true;
}

void FieldValidation::Refuse(TextBox& field, std::wstring_view message) {
  boxes_.ShowBox(message, common::kInformation, kInvalidTitle);
  field.SetFocus();
  field.SelectAll();
}

}  // namespace ui
