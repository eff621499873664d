#include "hostlib/com/OwnObject.h"

#include <atomic>

#include "hostlib/com/Failures.h"

namespace hostlib::com {
namespace {

using Microsoft::WRL::ComPtr;

struct NamedProperty {
  std::wstring_view className;
  const wchar_t* name;
  int slot;
};

constexpr NamedProperty kProperties[] = {
    {L"frmWorking", L"Caption", 7}, {L"frmWorking", L"Text", 8},      {L"Application", L"Title", 7},
    {L"Application", L"Path", 8},   {L"Application", L"Instance", 9},
};

BSTR NewText(std::wstring_view text) { return Bstr(text).Release(); }

class OwnObject : public IDispatch {
 public:
  OwnObject(const ObjectPtr& object, ObjectGate& gate) : object_(object), gate_(gate) {}
  virtual ~OwnObject() = default;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override {
    if (result == nullptr) return E_POINTER;
    *result = id == IID_IUnknown || id == IID_IDispatch ? static_cast<IDispatch*>(this) : nullptr;
    if (*result == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    if (count == nullptr) return E_POINTER;
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** type) override {
    if (type != nullptr) *type = nullptr;
    return DISP_E_BADINDEX;
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID,
                                          DISPID* ids) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD kind, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO* exception, UINT*) override;

 private:
  void Answer(Object& object, DISPID member, const DISPPARAMS& parameters, VARIANT* result);

  std::atomic<ULONG> references_ = 0;
  std::weak_ptr<Object> object_;
  ObjectGate& gate_;
};

HRESULT OwnObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
  if (names == nullptr || ids == nullptr || count == 0) return E_INVALIDARG;
  std::fill_n(ids, count, DISPID_UNKNOWN);
  const ObjectPtr object = object_.lock();
  if (object == nullptr) return CO_E_OBJNOTCONNECTED;
  for (const NamedProperty& property : kProperties) {
    if (property.className == object->ClassName() && lstrcmpiW(property.name, names[0]) == 0) {
      ids[0] = property.slot;
      // Properties have no arguments that could be named.
      return count == 1 ? S_OK : DISP_E_UNKNOWNNAME;
    }
  }
  return DISP_E_UNKNOWNNAME;
}

HRESULT OwnObject::Invoke(DISPID member, REFIID, LCID, WORD kind, DISPPARAMS* parameters,
                          VARIANT* result, EXCEPINFO* exception, UINT*) {
  const ObjectPtr object = object_.lock();
  if (object == nullptr) return CO_E_OBJNOTCONNECTED;
  if ((kind & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0) return DISP_E_MEMBERNOTFOUND;
  try {
    Answer(*object, member, parameters != nullptr ? *parameters : DISPPARAMS{}, result);
    return S_OK;
  } catch (const LibraryError& error) {
    if (error.number() == DISP_E_MEMBERNOTFOUND) return DISP_E_MEMBERNOTFOUND;
    if (exception == nullptr) return E_FAIL;
    *exception = {};
    exception->scode = error.number();
    exception->bstrSource = NewText(error.source());
    exception->bstrDescription = NewText(error.description());
    return DISP_E_EXCEPTION;
  } catch (...) {
    return E_UNEXPECTED;
  }
}

void OwnObject::Answer(Object& object, DISPID member, const DISPPARAMS& parameters,
                       VARIANT* result) {
  std::vector<Value> arguments;
  for (UINT i = parameters.cArgs; i > 0; --i) {
    arguments.push_back(FromVariant(parameters.rgvarg[i - 1], gate_, {}));
  }
  const std::vector<ValueView> lent(arguments.begin(), arguments.end());
  Variant answer = ToVariant(object.Call(static_cast<int>(member), lent), gate_);
  if (result == nullptr) return;
  *result = answer.get();
  VariantInit(&answer.get());
}

}  // namespace

ComPtr<IDispatch> MakeOwnObject(const ObjectPtr& object, ObjectGate& gate) {
  return ComPtr<IDispatch>(new OwnObject(object, gate));
}

}  // namespace hostlib::com
