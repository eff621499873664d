#include "practice/terminal/TypeLibrary.h"

#include "common/RunTimeError.h"

namespace practice::terminal {

std::wstring ProgramPath() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(path.size() * 2);
  }
}

TypeLibrary::TypeLibrary() {
  if (FAILED(LoadTypeLibEx(ProgramPath().c_str(), REGKIND_NONE, &library_))) {
    throw common::RunTimeError(L"The program's type library can not be read");
  }
}

ComPtr<ITypeInfo> TypeLibrary::InfoOf(REFGUID id) const {
  ComPtr<ITypeInfo> info;
  if (FAILED(library_->GetTypeInfoOfGuid(id, &info))) return nullptr;
  return info;
}

GUID TypeLibrary::Id() const {
  TLIBATTR* attributes = nullptr;
  if (FAILED(library_->GetLibAttr(&attributes))) return GUID_NULL;
  const GUID id = attributes->guid;
  library_->ReleaseTLibAttr(attributes);
  return id;
}

}  // namespace practice::terminal
