#include "practice/terminal/ComObject.h"

#include "practice/terminal/Failures.h"

namespace practice::terminal {

const IID kExportedId = {
    0x5a0f0c7e, 0x1c5f, 0x4a39, {0x9a, 0x21, 0x63, 0x0e, 0x7d, 0x50, 0x11, 0xb8}};

ComObject::ComObject(Exporter& exporter, hostlib::ObjectPtr target, const LibraryClass& kind,
                     ClientPtr client)
    : exporter_(exporter),
      target_(std::move(target)),
      kind_(kind),
      client_(std::move(client)),
      parts_(kind.parts.size()) {
  exporter_.Began(*this);
}

ComObject::~ComObject() { exporter_.Ended(*this); }

HRESULT ComObject::QueryInterface(REFIID id, void** result) {
  if (result == nullptr) return E_POINTER;
  *result = nullptr;
  if (id == IID_IUnknown || id == kExportedId) {
    *result = static_cast<IExported*>(this);
  } else if (id == IID_ISupportErrorInfo) {
    *result = static_cast<ISupportErrorInfo*>(this);
  } else if (id == IID_IProvideClassInfo) {
    *result = static_cast<IProvideClassInfo*>(this);
  } else if (id == IID_IDispatch) {
    *result = PartNumber(0);
  } else {
    for (std::size_t i = 0; i < kind_.parts.size() && *result == nullptr; ++i) {
      if (id == *kind_.parts[i].id) *result = PartNumber(i);
    }
  }
  if (*result == nullptr) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

// Null when the library's object lacks the interface.
IDispatch* ComObject::PartNumber(std::size_t index) {
  std::unique_ptr<Part>& part = parts_[index];
  if (!part) {
    Guarded([&] {
      part = kind_.parts[index].make(*this, target_->Interface(static_cast<int>(index) + 1));
    });
  }
  return part ? part->dispatch() : nullptr;
}

ULONG ComObject::AddRef() { return ++references_; }

ULONG ComObject::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT ComObject::InterfaceSupportsErrorInfo(REFIID id) {
  for (const PartEntry& part : kind_.parts) {
    if (*part.id == id) return S_OK;
  }
  return id == IID_IDispatch ? S_OK : S_FALSE;
}

HRESULT ComObject::GetClassInfo(ITypeInfo** info) {
  if (info == nullptr) return E_POINTER;
  *info = exporter_.types().InfoOf(kind_.id).Detach();
  return *info == nullptr ? TYPE_E_ELEMENTNOTFOUND : S_OK;
}

}  // namespace practice::terminal
