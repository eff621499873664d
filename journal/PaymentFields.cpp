#include "journal/PaymentFields.h"

#include "journal/PaymentWatch.h"

namespace journal {

void PaymentFields::Watch(const ui::Form& form) {
  std::erase_if(fields_, [](const Field& field) { return field.life.expired(); });
  for (const ui::Control* control : form.controls()) {
    if (HoldsPayment(control->name())) fields_.push_back({form.Life(), control});
  }
}

void PaymentFields::Look() {
  for (const Field& field : fields_) {
    if (!field.life.expired()) masking_.Declare(field.control->Text());
  }
}

}  // namespace journal
