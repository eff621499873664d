#include "hostlib/com/ComObject.h"

#include "common/Numbers.h"
#include "hostlib/com/Failures.h"

namespace hostlib::com {
namespace {

using Microsoft::WRL::ComPtr;

// Nothing of a call with such a failure has left this program.
[[noreturn]] void ThrowUnusable(HRESULT reason, const std::wstring& text) {
  throw LibraryError(reason, L"hostlib", text, LibraryError::Outcome::kNotSent);
}

std::wstring NameOf(const Operation* operation, int slot) {
  return operation != nullptr ? std::wstring(operation->name) : L"slot " + common::NumberText(slot);
}

}  // namespace

ComObject::ComObject(ComLibrary& library, std::wstring className, ComPtr<IDispatch> object)
    : shared_(
          std::make_shared<Shared>(Shared{library, std::move(className), std::move(object), {}})) {}

Value ComObject::Call(int slot, const Arguments& arguments) {
  const Operation* operation = FindOperation(ClassName(), number_, slot);
  try {
    return CallMember(slot, arguments, operation);
  } catch (LibraryError& error) {
    error.Locate(ClassName(), NameOf(operation, slot));
    throw;
  }
}

ObjectPtr ComObject::Interface(int number) {
  ClassBinding& binding = shared_->library.BindingFor(ClassName(), *shared_->object.Get());
  if (binding.InterfaceId(number) == nullptr) {
    ThrowUnusable(E_NOINTERFACE, L"The object has no interface " + common::NumberText(number));
  }
  return ObjectPtr(new ComObject(shared_, number));
}

Value ComObject::CallMember(int slot, const Arguments& arguments, const Operation* operation) {
  const Member member = MemberFor(slot, arguments.size());
  std::vector<Variant> handed;
  for (const ValueView& argument : arguments)
    handed.push_back(ToVariant(argument, shared_->library));
  IDispatch& target = slot == kDefaultMember ? *shared_->object.Get() : Target();
  const Variant answer = InvokeMember(target, member, std::move(handed));
  return FromVariant(answer.get(), shared_->library,
                     operation != nullptr ? operation->returnedClass : std::wstring_view());
}

Member ComObject::MemberFor(int slot, std::size_t arguments) {
  if (slot == kDefaultMember) return {};
  const Member* member =
      shared_->library.FindMember(ClassName(), *shared_->object.Get(), number_, slot);
  if (member == nullptr) {
    ThrowUnusable(DISP_E_MEMBERNOTFOUND, L"The object has no slot " + common::NumberText(slot));
  }
  if (member->references.size() != arguments) {
    ThrowUnusable(DISP_E_BADPARAMCOUNT,
                  L"The operation takes " +
                      common::NumberText(static_cast<std::int32_t>(member->references.size())) +
                      L" arguments instead of " +
                      common::NumberText(static_cast<std::int32_t>(arguments)));
  }
  return *member;
}

IDispatch& ComObject::Target() {
  const ClassBinding& binding = shared_->library.BindingFor(ClassName(), *shared_->object.Get());
  if (number_ == binding.InterfaceOfTheObject()) return *shared_->object.Get();
  ComPtr<IDispatch>& target = shared_->interfaces[number_];
  if (target == nullptr) {
    // Every interface that is called by name begins with these entries.
    CheckAnswered(shared_->object->QueryInterface(*binding.InterfaceId(number_),
                                                  reinterpret_cast<void**>(target.GetAddressOf())));
  }
  return *target.Get();
}

}  // namespace hostlib::com
