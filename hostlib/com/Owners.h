#pragma once

#include <windows.h>
// The order matters: windows.h first.
#include <oleauto.h>

#include <string_view>
#include <utility>

namespace hostlib::com {

/// Owns a text of the system's.
class Bstr {
 public:
  Bstr() = default;
  explicit Bstr(std::wstring_view text)
      : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {}
  ~Bstr() { SysFreeString(text_); }
  Bstr(const Bstr&) = delete;
  Bstr& operator=(const Bstr&) = delete;

  BSTR get() const { return text_; }
  /// For a function that gives a text; this one must own none yet.
  BSTR* Out() { return &text_; }
  BSTR Release() { return std::exchange(text_, nullptr); }
  std::wstring_view view() const { return {text_ == nullptr ? L"" : text_, SysStringLen(text_)}; }

 private:
  BSTR text_ = nullptr;
};

/// Owns what a variant holds.
class Variant {
 public:
  Variant() { VariantInit(&variant_); }
  ~Variant() { VariantClear(&variant_); }
  Variant(Variant&& other) noexcept : variant_(other.variant_) { VariantInit(&other.variant_); }
  Variant& operator=(Variant&& other) noexcept {
    std::swap(variant_, other.variant_);
    return *this;
  }
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;

  VARIANT& get() { return variant_; }
  const VARIANT& get() const { return variant_; }
  VARTYPE type() const { return variant_.vt; }

 private:
  VARIANT variant_;
};

/// Owns an array of the system's.
class SafeArray {
 public:
  explicit SafeArray(SAFEARRAY* array) : array_(array) {}
  ~SafeArray() { SafeArrayDestroy(array_); }
  SafeArray(const SafeArray&) = delete;
  SafeArray& operator=(const SafeArray&) = delete;

  SAFEARRAY* get() const { return array_; }
  SAFEARRAY* Release() { return std::exchange(array_, nullptr); }

 private:
  SAFEARRAY* array_;
};

/// The rows of an array, locked in place as long as this lives. Null when they can't be.
template <typename T>
class LockedRows {
 public:
  explicit LockedRows(SAFEARRAY* array) : array_(array) {
    void* rows = nullptr;
    if (SUCCEEDED(SafeArrayAccessData(array_, &rows))) rows_ = static_cast<T*>(rows);
  }
  ~LockedRows() {
    if (rows_ != nullptr) SafeArrayUnaccessData(array_);
  }
  LockedRows(const LockedRows&) = delete;
  LockedRows& operator=(const LockedRows&) = delete;

  T* get() const { return rows_; }

 private:
  SAFEARRAY* array_;
  T* rows_ = nullptr;
};

}  // namespace hostlib::com
