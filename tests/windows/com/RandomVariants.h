#pragma once

#include <memory>
#include <random>

#include "hostlib/com/VariantValues.h"

namespace com_tests {

/// Variants of every kind that a library may give: by reference or not, arrays of any bounds and
/// rows, variants in variants, pointers that are null where they may be. The same for the same
/// seed.
class RandomVariants {
 public:
  /// A variant, with all that it refers to.
  class Made {
   public:
    const VARIANT& variant() const { return referring_ ? *referring_ : content_->get(); }

   private:
    friend class RandomVariants;
    std::shared_ptr<hostlib::com::Variant> content_;
    std::shared_ptr<VARIANT> referring_;
  };

  explicit RandomVariants(unsigned seed) : random_(seed) {}

  Made Next();
  /// Of the objects that were in variants.
  static int LiveObjects();

 private:
  void Fill(VARIANT& variant, int depth);
  void FillScalar(VARIANT& variant);
  void FillArray(VARIANT& variant, int depth);
  SAFEARRAY* NewArray(VARTYPE rowType, int depth);
  BSTR NewText();
  int Number(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }
  template <typename T>
  T Bits();

  std::mt19937 random_;
};

}  // namespace com_tests
