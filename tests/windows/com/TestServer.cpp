#include "tests/windows/com/TestServer.h"

namespace com_tests {
namespace {

std::wstring TextOf(const IID& id) {
  wchar_t text[64] = L"";
  StringFromGUID2(id, text, static_cast<int>(std::size(text)));
  return text;
}

}  // namespace

TypeLibrary LoadTypes(Types types) {
  wchar_t program[MAX_PATH] = L"";
  GetModuleFileNameW(nullptr, program, MAX_PATH);
  const std::wstring path =
      std::wstring(program) + L"\\" + std::to_wstring(static_cast<int>(types));
  TypeLibrary library;
  EXPECT_EQ(LoadTypeLibEx(path.c_str(), REGKIND_NONE, &library), S_OK);
  return library;
}

void TestObject::AddInterface(const IID& id, ComPtr<TestObject> object) {
  others[TextOf(id)] = std::move(object);
}

void TestObject::BreakWith(const std::shared_ptr<LinkBreak>& theLink) {
  link = theLink;
  type_ = WithBreak(type_, link);
}

void TestObject::Answer(std::function<void(VARIANT&)> fill) {
  onCall = [fill = std::move(fill)](const Received& call) {
    fill(*call.result);
    return S_OK;
  };
}

HRESULT TestObject::QueryInterface(REFIID id, void** result) {
  if (id == IID_IUnknown || id == IID_IDispatch) {
    *result = static_cast<IDispatch*>(this);
    AddRef();
    return S_OK;
  }
  ++questions;
  *result = nullptr;
  if (link->IsNow()) return link->with;
  const auto other = others.find(TextOf(id));
  return other == others.end() ? E_NOINTERFACE
                               : other->second.CopyTo(reinterpret_cast<TestObject**>(result));
}

ULONG TestObject::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT TestObject::GetTypeInfoCount(UINT* count) {
  *count = type_ != nullptr ? 1 : 0;
  return S_OK;
}

HRESULT TestObject::GetTypeInfo(UINT, LCID, ITypeInfo** type) {
  ++typeQuestions;
  if (link->IsNow()) return link->with;
  return type_ != nullptr ? type_.CopyTo(type) : DISP_E_BADINDEX;
}

HRESULT TestObject::Invoke(DISPID member, REFIID, LCID, WORD kind, DISPPARAMS* parameters,
                           VARIANT* result, EXCEPINFO* exception, UINT* badArgument) {
  calls.push_back(member);
  const Received call{member, kind, parameters, result, exception, badArgument};
  return onCall ? onCall(call) : S_OK;
}

void TestSource::Install(std::wstring_view className, const CLSID& classId,
                         ComPtr<IDispatch> object) {
  entries_.push_back({std::wstring(hostlib::com::ProgIdOf(className)), classId, std::move(object)});
}

HRESULT TestSource::FindClass(std::wstring_view progId, CLSID& classId) {
  ++searched;
  if (onSearch) onSearch();
  for (const Entry& entry : entries_) {
    if (entry.progId != progId) continue;
    classId = entry.classId;
    return S_OK;
  }
  return REGDB_E_CLASSNOTREG;
}

HRESULT TestSource::Make(const CLSID& classId, ComPtr<IDispatch>& object) {
  ++tried;
  for (const Entry& entry : entries_) {
    if (entry.classId != classId) continue;
    if (stopping-- > 0) return CO_E_SERVER_STOPPING;
    if (const auto failure = failures.find(entry.progId); failure != failures.end()) {
      return failure->second;
    }
    ++made;
    object = entry.object;
    return S_OK;
  }
  return REGDB_E_CLASSNOTREG;
}

ComPtr<TestObject> ComBench::Install(std::wstring_view className, const CLSID& classId,
                                     const IID& id) {
  TypeInfo type;
  EXPECT_EQ(types_->GetTypeInfoOfGuid(id, &type), S_OK);
  ComPtr<TestObject> object(new TestObject(std::move(type)));
  object->AddInterface(id, object);
  source_.Install(className, classId, object);
  return object;
}

}  // namespace com_tests
