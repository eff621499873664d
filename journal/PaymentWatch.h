#pragma once

#include "hostlib/Interposer.h"
#include "journal/Masking.h"

namespace journal {

/// Declares the forms of payment that go through the library: where the program reads them from a
/// bag, and where it gives one to the builder of the element.
class PaymentWatch {
 public:
  explicit PaymentWatch(Masking& masking) : masking_(masking) {}

  void Before(const hostlib::CallInfo& call);
  /// An answer of the host that is about to be written down: what it shows as a form of payment, an
  /// "FP" or "FOP" up to the end of its line or field or to the next of them, was never read by the
  /// program yet.
  void Display(std::wstring_view answer);
  void After(const hostlib::CallInfo& call, const hostlib::Value& answer);

 private:
  void Declare(const hostlib::ValueView& value);

  Masking& masking_;
  /// The text that the request now being filled got last.
  hostlib::Value elementText_;
  /// The list now being read holds forms of payment.
  bool listHoldsPayments_ = false;
};

/// Whether what a control of this name holds is a form of payment.
bool HoldsPayment(std::wstring_view controlName);

}  // namespace journal
