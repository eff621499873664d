#pragma once

#include <wrl/client.h>

#include "hostlib/com/Failures.h"

namespace hostlib::com {

using TypeInfo = Microsoft::WRL::ComPtr<ITypeInfo>;
using TypeLibrary = Microsoft::WRL::ComPtr<ITypeLib>;

/// The attributes of a type, given back to it at the end.
class TypeAttributes {
 public:
  explicit TypeAttributes(TypeInfo type) : type_(std::move(type)) {
    CheckAnswered(type_->GetTypeAttr(&attributes_));
  }
  ~TypeAttributes() { type_->ReleaseTypeAttr(attributes_); }
  TypeAttributes(const TypeAttributes&) = delete;
  TypeAttributes& operator=(const TypeAttributes&) = delete;

  const TYPEATTR* operator->() const { return attributes_; }

 private:
  TypeInfo type_;
  TYPEATTR* attributes_ = nullptr;
};

/// The description of one function of a type, given back to it at the end.
class FunctionDescription {
 public:
  FunctionDescription(TypeInfo type, UINT index) : type_(std::move(type)) {
    CheckAnswered(type_->GetFuncDesc(index, &function_));
  }
  ~FunctionDescription() { type_->ReleaseFuncDesc(function_); }
  FunctionDescription(const FunctionDescription&) = delete;
  FunctionDescription& operator=(const FunctionDescription&) = delete;

  const FUNCDESC* operator->() const { return function_; }

 private:
  TypeInfo type_;
  FUNCDESC* function_ = nullptr;
};

}  // namespace hostlib::com
