#pragma once

#include "practice/terminal/ComObject.h"
#include "practice/terminal/Failures.h"

namespace practice::terminal {

struct NoResult {};
inline constexpr NoResult kNoResult;

// What a method is called with, as the library's values.
inline hostlib::Value ToValue(BSTR text, const ObjectPassage&) { return TextOf(text); }
inline hostlib::Value ToValue(long number, const ObjectPassage&) {
  return static_cast<std::int32_t>(number);
}
inline hostlib::Value ToValue(VARIANT_BOOL flag, const ObjectPassage&) {
  return flag != VARIANT_FALSE;
}
inline hostlib::Value ToValue(IDispatch* object, const ObjectPassage& passage) {
  return object == nullptr ? hostlib::Value() : hostlib::Value(passage.in(object));
}
inline hostlib::Value ToValue(const VARIANT& variant, const ObjectPassage& passage) {
  return FromVariant(variant, passage);
}
inline hostlib::Value ToValue(VARIANT* variant, const ObjectPassage& passage) {
  return variant == nullptr ? hostlib::Value() : FromVariant(*variant, passage);
}

// What the library gives, where the method is to leave it.
inline void Give(const hostlib::Value&, NoResult, const ObjectPassage&) {}
inline void Give(const hostlib::Value& value, BSTR* result, const ObjectPassage&) {
  *result = NewText(value.Text());
}
/// A 16-bit number, or a boolean, which is one too.
inline void Give(const hostlib::Value& value, short* result, const ObjectPassage&) {
  const bool* flag = value.If<bool>();
  *result = flag == nullptr ? value.Integer() : *flag ? VARIANT_TRUE : VARIANT_FALSE;
}
inline void Give(const hostlib::Value& value, long* result, const ObjectPassage&) {
  *result = value.Long();
}
inline void Give(const hostlib::Value& value, IDispatch** result, const ObjectPassage& passage) {
  *result = value.IsEmpty() ? nullptr : passage.out(value.AsObject());
}
inline void Give(const hostlib::Value& value, VARIANT* result, const ObjectPassage& passage) {
  ToVariant(value, passage, *result);
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
      const ObjectPassage& passage = owner_.exporter().passage();
      Give(target_->Call(slot, {ToValue(given, passage)...}), result, passage);
    });
  }

 private:
  ComObject& owner_;
  hostlib::ObjectPtr target_;
  ComPtr<ITypeInfo> info_;
};

}  // namespace practice::terminal
