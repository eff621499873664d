#pragma once

#include <memory>
#include <vector>

#include "journal/Masking.h"
#include "ui/controls/Form.h"

namespace journal {

/// The fields on the screen in which the agent enters a form of payment. They are looked at before
/// anything is written down, not at every key: half a value is none yet.
class PaymentFields {
 public:
  explicit PaymentFields(Masking& masking) : masking_(masking) {}

  /// The form's fields are looked at as long as the form is there.
  void Watch(const ui::Form& form);
  void Look();

 private:
  struct Field {
    std::weak_ptr<const void> life;
    const ui::Control* control;
  };

  Masking& masking_;
  std::vector<Field> fields_;
};

}  // namespace journal
