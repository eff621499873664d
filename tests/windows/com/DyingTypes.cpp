#include "tests/windows/com/DyingTypes.h"

namespace com_tests {
namespace {

using hostlib::com::TypeInfo;
using hostlib::com::TypeLibrary;
using Link = std::shared_ptr<LinkBreak>;

/// What the link does not ask is not answered.
template <typename Base>
class Counted : public Base {
 public:
  virtual ~Counted() = default;
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

 private:
  ULONG references_ = 0;
};

HRESULT GiveType(HRESULT result, const TypeInfo& type, const Link& link, ITypeInfo** given) {
  if (SUCCEEDED(result)) *given = WithBreak(type, link).Detach();
  return result;
}

class DyingLibrary final : public Counted<ITypeLib> {
 public:
  DyingLibrary(TypeLibrary library, Link link)
      : library_(std::move(library)), link_(std::move(link)) {}

  UINT STDMETHODCALLTYPE GetTypeInfoCount() override { return library_->GetTypeInfoCount(); }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, ITypeInfo** given) override {
    if (link_->IsNow()) return link_->with;
    TypeInfo type;
    const HRESULT result = library_->GetTypeInfo(index, &type);
    return GiveType(result, type, link_, given);
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfoType(UINT index, TYPEKIND* kind) override {
    return link_->IsNow() ? link_->with : library_->GetTypeInfoType(index, kind);
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfoOfGuid(REFGUID id, ITypeInfo** given) override {
    if (link_->IsNow()) return link_->with;
    TypeInfo type;
    const HRESULT result = library_->GetTypeInfoOfGuid(id, &type);
    return GiveType(result, type, link_, given);
  }
  HRESULT STDMETHODCALLTYPE GetLibAttr(TLIBATTR**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeComp(ITypeComp**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetDocumentation(INT, BSTR*, BSTR*, DWORD*, BSTR*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE IsName(LPOLESTR, ULONG, BOOL*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE FindName(LPOLESTR, ULONG, ITypeInfo**, MEMBERID*, USHORT*) override {
    return E_NOTIMPL;
  }
  void STDMETHODCALLTYPE ReleaseTLibAttr(TLIBATTR*) override {}

 private:
  TypeLibrary library_;
  Link link_;
};

class DyingType final : public Counted<ITypeInfo> {
 public:
  DyingType(TypeInfo type, Link link) : type_(std::move(type)), link_(std::move(link)) {}

  HRESULT STDMETHODCALLTYPE GetTypeAttr(TYPEATTR** attributes) override {
    return link_->IsNow() ? link_->with : type_->GetTypeAttr(attributes);
  }
  void STDMETHODCALLTYPE ReleaseTypeAttr(TYPEATTR* attributes) override {
    type_->ReleaseTypeAttr(attributes);
  }
  HRESULT STDMETHODCALLTYPE GetFuncDesc(UINT index, FUNCDESC** function) override {
    return link_->IsNow() ? link_->with : type_->GetFuncDesc(index, function);
  }
  void STDMETHODCALLTYPE ReleaseFuncDesc(FUNCDESC* function) override {
    type_->ReleaseFuncDesc(function);
  }
  HRESULT STDMETHODCALLTYPE GetImplTypeFlags(UINT index, INT* flags) override {
    return link_->IsNow() ? link_->with : type_->GetImplTypeFlags(index, flags);
  }
  HRESULT STDMETHODCALLTYPE GetRefTypeOfImplType(UINT index, HREFTYPE* reference) override {
    return link_->IsNow() ? link_->with : type_->GetRefTypeOfImplType(index, reference);
  }
  HRESULT STDMETHODCALLTYPE GetRefTypeInfo(HREFTYPE reference, ITypeInfo** given) override {
    if (link_->IsNow()) return link_->with;
    TypeInfo type;
    const HRESULT result = type_->GetRefTypeInfo(reference, &type);
    return GiveType(result, type, link_, given);
  }
  HRESULT STDMETHODCALLTYPE GetContainingTypeLib(ITypeLib** given, UINT* index) override {
    if (link_->IsNow()) return link_->with;
    TypeLibrary library;
    const HRESULT result = type_->GetContainingTypeLib(&library, index);
    if (SUCCEEDED(result)) *given = TypeLibrary(new DyingLibrary(library, link_)).Detach();
    return result;
  }

  HRESULT STDMETHODCALLTYPE GetTypeComp(ITypeComp**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetVarDesc(UINT, VARDESC**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetNames(MEMBERID, BSTR*, UINT, UINT*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(LPOLESTR*, UINT, MEMBERID*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Invoke(PVOID, MEMBERID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                   UINT*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetDocumentation(MEMBERID, BSTR*, BSTR*, DWORD*, BSTR*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetDllEntry(MEMBERID, INVOKEKIND, BSTR*, BSTR*, WORD*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE AddressOfMember(MEMBERID, INVOKEKIND, PVOID*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID, PVOID*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMops(MEMBERID, BSTR*) override { return E_NOTIMPL; }
  void STDMETHODCALLTYPE ReleaseVarDesc(VARDESC*) override {}

 private:
  TypeInfo type_;
  Link link_;
};

}  // namespace

TypeInfo WithBreak(const TypeInfo& type, std::shared_ptr<LinkBreak> link) {
  return TypeInfo(new DyingType(type, std::move(link)));
}

}  // namespace com_tests
