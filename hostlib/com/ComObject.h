#pragma once

#include <map>

#include "hostlib/com/ComLibrary.h"
#include "hostlib/com/Invocation.h"

namespace hostlib::com {

/// One interface of an object that lives in the installed library.
class ComObject : public Object {
 public:
  ComObject(ComLibrary& library, std::wstring className, Microsoft::WRL::ComPtr<IDispatch> object);

  std::wstring_view ClassName() const override { return shared_->className; }
  Value Call(int slot, const Arguments& arguments) override;
  ObjectPtr Interface(int number) override;

  /// The object as the library knows it.
  const Microsoft::WRL::ComPtr<IDispatch>& object() const { return shared_->object; }

 private:
  /// What the interfaces of one object have in common.
  struct Shared {
    ComLibrary& library;
    std::wstring className;
    Microsoft::WRL::ComPtr<IDispatch> object;
    /// Those asked for so far; each question would be a round trip.
    std::map<int, Microsoft::WRL::ComPtr<IDispatch>> interfaces;
  };

  ComObject(std::shared_ptr<Shared> shared, int number)
      : shared_(std::move(shared)), number_(number) {}

  Value CallMember(int slot, const Arguments& arguments, const Operation* operation);
  Member MemberFor(int slot, std::size_t arguments);
  IDispatch& Target();

  std::shared_ptr<Shared> shared_;
  int number_ = 1;
};

}  // namespace hostlib::com
