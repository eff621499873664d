#include "tests/windows/com/RandomVariants.h"

#include <array>
#include <cstring>
#include <limits>
#include <string>

namespace com_tests {
namespace {

int live = 0;

/// Known by its references alone; by name only when it is to be.
class Thing final : public IDispatch {
 public:
  explicit Thing(bool callable) : callable_(callable) { ++live; }
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override {
    const bool known = id == IID_IUnknown || (callable_ && id == IID_IDispatch);
    *result = known ? this : nullptr;
    if (known) AddRef();
    return known ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                   UINT*) override {
    return E_NOTIMPL;
  }

 private:
  virtual ~Thing() { --live; }

  bool callable_;
  ULONG references_ = 1;
};

constexpr std::array<VARTYPE, 22> kScalars = {
    VT_EMPTY, VT_NULL,     VT_I2,    VT_I4,   VT_R4,      VT_R8,     VT_CY,  VT_DATE,
    VT_BSTR,  VT_DISPATCH, VT_ERROR, VT_BOOL, VT_I1,      VT_UI1,    VT_UI2, VT_UI4,
    VT_I8,    VT_UI8,      VT_INT,   VT_UINT, VT_DECIMAL, VT_UNKNOWN};
constexpr std::array<VARTYPE, 19> kRows = {VT_I2,      VT_I4,      VT_R4,       VT_R8,    VT_CY,
                                           VT_DATE,    VT_BSTR,    VT_DISPATCH, VT_ERROR, VT_BOOL,
                                           VT_VARIANT, VT_UNKNOWN, VT_DECIMAL,  VT_I1,    VT_UI1,
                                           VT_UI2,     VT_UI4,     VT_INT,      VT_UINT};
constexpr int kDeepest = 3;

}  // namespace

template <typename T>
T RandomVariants::Bits() {
  T content{};
  // Edges as often as anything else.
  if (Number(3) == 0) return content;
  if (Number(3) == 0) {
    std::memset(&content, Number(2) == 0 ? 0xFF : 0x7F, sizeof content);
    return content;
  }
  std::array<unsigned char, sizeof(T)> bytes{};
  for (unsigned char& byte : bytes) byte = static_cast<unsigned char>(Number(256));
  std::memcpy(&content, bytes.data(), sizeof content);
  return content;
}

BSTR RandomVariants::NewText() {
  switch (Number(4)) {
    case 0:
      return nullptr;
    case 1:
      return SysAllocString(std::to_wstring(Bits<std::int32_t>()).c_str());
    default: {
      std::wstring text(static_cast<std::size_t>(Number(40)), L' ');
      for (wchar_t& c : text) c = static_cast<wchar_t>(Number(0x10000));
      return SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    }
  }
}

void RandomVariants::FillScalar(VARIANT& variant) {
  const VARTYPE type = kScalars[static_cast<std::size_t>(Number(kScalars.size()))];
  if (type == VT_BSTR) {
    variant.bstrVal = NewText();
  } else if (type == VT_DISPATCH) {
    variant.pdispVal = Number(2) == 0 ? nullptr : new Thing(true);
  } else if (type == VT_UNKNOWN) {
    variant.punkVal = Number(2) == 0 ? nullptr : new Thing(Number(2) == 0);
  } else if (type == VT_DECIMAL) {
    variant.decVal = Bits<DECIMAL>();
    // Else it is no decimal number.
    variant.decVal.scale = static_cast<BYTE>(Number(29));
    variant.decVal.sign = Number(2) == 0 ? 0 : DECIMAL_NEG;
  } else if (type == VT_ERROR) {
    variant.scode = Number(2) == 0 ? DISP_E_PARAMNOTFOUND : Bits<SCODE>();
  } else {
    variant.llVal = Bits<LONGLONG>();
  }
  variant.vt = type;
}

SAFEARRAY* RandomVariants::NewArray(VARTYPE rowType, int depth) {
  constexpr std::array<LONG, 7> kLowers = {
      0,    1, -1, -100, std::numeric_limits<LONG>::min(), std::numeric_limits<LONG>::max() - 8,
      32767};
  const UINT dimensions = Number(8) == 0 ? 2 : 1;
  std::array<SAFEARRAYBOUND, 2> bounds{};
  for (SAFEARRAYBOUND& bound : bounds) {
    bound.lLbound = kLowers[static_cast<std::size_t>(Number(kLowers.size()))];
    bound.cElements = static_cast<ULONG>(Number(8));
  }
  SAFEARRAY* array = SafeArrayCreate(rowType, dimensions, bounds.data());
  if (array == nullptr || dimensions != 1 || bounds[0].cElements == 0) return array;
  void* rows = nullptr;
  if (FAILED(SafeArrayAccessData(array, &rows))) return array;
  for (ULONG i = 0; i < bounds[0].cElements; ++i) {
    if (rowType == VT_BSTR) {
      static_cast<BSTR*>(rows)[i] = NewText();
    } else if (rowType == VT_VARIANT) {
      Fill(static_cast<VARIANT*>(rows)[i], depth + 1);
    } else if (rowType == VT_DISPATCH || rowType == VT_UNKNOWN) {
      static_cast<IUnknown**>(rows)[i] = Number(2) == 0 ? nullptr : new Thing(true);
    } else if (rowType != VT_DECIMAL) {
      const auto bits = Bits<LONGLONG>();
      std::memcpy(static_cast<char*>(rows) + std::size_t{i} * array->cbElements, &bits,
                  array->cbElements);
    }
  }
  SafeArrayUnaccessData(array);
  return array;
}

void RandomVariants::FillArray(VARIANT& variant, int depth) {
  const VARTYPE rowType = kRows[static_cast<std::size_t>(Number(kRows.size()))];
  variant.parray = Number(10) == 0 ? nullptr : NewArray(rowType, depth);
  variant.vt = static_cast<VARTYPE>(VT_ARRAY | rowType);
}

void RandomVariants::Fill(VARIANT& variant, int depth) {
  if (depth < kDeepest && Number(3) == 0) {
    FillArray(variant, depth);
  } else {
    FillScalar(variant);
  }
}

RandomVariants::Made RandomVariants::Next() {
  Made made;
  made.content_ = std::make_shared<hostlib::com::Variant>();
  VARIANT& content = made.content_->get();
  Fill(content, 0);
  if (Number(3) != 0 || content.vt == VT_EMPTY || content.vt == VT_NULL) return made;
  made.referring_ = std::make_shared<VARIANT>();
  VARIANT& referring = *made.referring_;
  if (Number(8) == 0) {
    referring.byref = nullptr;
    referring.vt = static_cast<VARTYPE>(VT_BYREF | content.vt);
  } else if (Number(2) == 0) {
    referring.pvarVal = &content;
    referring.vt = VT_BYREF | VT_VARIANT;
  } else {
    // All kinds of content but a decimal begin at the same place.
    referring.byref =
        content.vt == VT_DECIMAL ? static_cast<void*>(&content.decVal) : &content.byref;
    referring.vt = static_cast<VARTYPE>(VT_BYREF | content.vt);
  }
  return made;
}

int RandomVariants::LiveObjects() { return live; }

}  // namespace com_tests
