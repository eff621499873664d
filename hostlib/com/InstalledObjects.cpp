#include "hostlib/com/Elevation.h"
#include "hostlib/com/ObjectSource.h"
#include "hostlib/com/RegisteredTypes.h"

namespace hostlib::com {

HRESULT InstalledObjects::FindClass(std::wstring_view progId, CLSID& classId) {
  return CLSIDFromProgID(std::wstring(progId).c_str(), &classId);
}

HRESULT InstalledObjects::Make(const CLSID& classId, Microsoft::WRL::ComPtr<IDispatch>& object) {
  return CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER,
                          IID_PPV_ARGS(&object));
}

TypeLibrary InstalledObjects::TypesOf(const CLSID& classId) { return RegisteredTypesOf(classId); }

bool InstalledObjects::IsOutOfReach(const CLSID& classId, HRESULT failure) {
  return com::IsOutOfReach(ThisMachine(), classId, failure);
}

}  // namespace hostlib::com
