#pragma once

#include <new>

#include "practice/terminal/ComObject.h"
#include "practice/terminal/Failures.h"

namespace practice::terminal {

struct NoResult {};
inline constexpr NoResult kNoResult;

using hostlib::com::ObjectGate;

// What a method is called with, as the library's values.
inline hostlib::Value ToValue(BSTR text, ObjectGate&) {
  return text == nullptr ? std::wstring() : std::wstring(text, SysStringLen(text));
}
inline hostlib::Value ToValue(long number, ObjectGate&) {
  return static_cast<std::int32_t>(number);
}
inline hostlib::Value ToValue(VARIANT_BOOL flag, ObjectGate&) { return flag != VARIANT_FALSE; }
inline hostlib::Value ToValue(IDispatch* object, ObjectGate& gate) {
  return object == nullptr ? hostlib::Value() : hostlib::Value(gate.Inward(object, {}));
}
inline hostlib::Value ToValue(const VARIANT& variant, ObjectGate& gate) {
  return hostlib::com::FromVariant(variant, gate, {});
}
inline hostlib::Value ToValue(VARIANT* variant, ObjectGate& gate) {
  return variant == nullptr ? hostlib::Value() : hostlib::com::FromVariant(*variant, gate, {});
}

// What the library gives, where the method is to leave it.
inline void Give(const hostlib::Value&, NoResult, ObjectGate&) {}
inline void Give(const hostlib::Value& value, BSTR* result, ObjectGate&) {
  *result = hostlib::com::Bstr(value.Text()).Release();
  if (*result == nullptr) throw std::bad_alloc();
}
/// A 16-bit number, or a boolean, which is one too.
inline void Give(const hostlib::Value& value, short* result, ObjectGate&) {
  const bool* flag = value.If<bool>();
  *result = flag == nullptr ? value.Integer() : *flag ? VARIANT_TRUE : VARIANT_FALSE;
}
inline void Give(const hostlib::Value& value, long* result, ObjectGate&) { *result = value.Long(); }
inline void Give(const hostlib::Value& value, IDispatch** result, ObjectGate& gate) {
  *result = value.IsEmpty() ? nullptr : gate.Outward(value.AsObject()).Detach();
}
inline void Give(const hostlib::Value& value, VARIANT* result, ObjectGate& gate) {
  hostlib::com::Variant variant = hostlib::com::ToVariant(value, gate);
  // The receiver owns what is in it from here on.
  *result = std::exchange(variant.get(), VARIANT{});
}

inline bool IsWanted(NoResult) { return true; }
inline bool IsWanted(const void* result) { return result != nullptr; }

/// A dual interface over one interface of a library object: late-bound calls go by the type
/// library to the methods, the methods by slot to the library's object.
template <typename Base>
class Dual : public Base, public Part {
 public:
  Dual(ComObject& owner, hostlib::ObjectPtr target)
      : owner_(owner),
        target_(std::move(target)),
        info_(owner.exporter().types().InfoOf(__uuidof(Base))) {}
  virtual ~Dual() = default;

  IDispatch* dispatch() override { return this; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override {
    return owner_.QueryInterface(id, result);
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return owner_.AddRef(); }
  ULONG STDMETHODCALLTYPE Release() override { return owner_.Release(); }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    if (count == nullptr) return E_POINTER;
    *count = 1;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID, ITypeInfo** info) override {
    if (info == nullptr) return E_POINTER;
    *info = nullptr;
    if (index != 0) return DISP_E_BADINDEX;
    return info_.CopyTo(info);
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID,
                                          DISPID* ids) override {
    return info_->GetIDsOfNames(names, count, ids);
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID reserved, LCID, WORD flags,
                                   DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                   UINT* badArgument) override {
    if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
    return info_->Invoke(static_cast<Base*>(this), member, flags, parameters, result, exception,
                         badArgument);
  }

 protected:
  template <typename Result, typename... Given>
  HRESULT Forward(int slot, Result result, const Given&... given) {
    if (!IsWanted(result)) return E_POINTER;
    // A client that dies inside the call takes its references along.
    const ComPtr<IUnknown> keep(this);
    const Exporter::Serving serving(owner_.exporter(), owner_.client());
    return Guarded([&] {
      ObjectGate& gate = owner_.exporter();
      Give(target_->Call(slot, {ToValue(given, gate)...}), result, gate);
    });
  }

 private:
  ComObject& owner_;
  hostlib::ObjectPtr target_;
  ComPtr<ITypeInfo> info_;
};

}  // namespace practice::terminal
