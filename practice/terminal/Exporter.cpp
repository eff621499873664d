#include "practice/terminal/Exporter.h"

#include <algorithm>

#include "hostlib/com/Invocation.h"
#include "practice/terminal/ComObject.h"

namespace practice::terminal {
namespace {

struct NamedProperty {
  int slot;
  const wchar_t* name;
};

/// The names of what Attach is given: of a progress form, and of an application.
constexpr NamedProperty kProperties[] = {
    {7, L"Caption"}, {8, L"Text"}, {7, L"Title"}, {8, L"Path"}, {9, L"Instance"}};

/// An object of a client's, such as those it attaches with: its properties are read by name.
class ForeignObject : public hostlib::Object {
 public:
  ForeignObject(ComPtr<IDispatch> object, hostlib::com::ObjectGate& gate)
      : object_(std::move(object)), gate_(gate) {}
  std::wstring_view ClassName() const override { return L"Object of another program"; }
  hostlib::Value Call(int slot, const hostlib::Arguments&) override {
    for (const NamedProperty& property : kProperties) {
      DISPID id = DISPID_UNKNOWN;
      if (property.slot == slot && HasName(property.name, id)) return Read(id);
    }
    Refuse();
  }
  hostlib::ObjectPtr Interface(int) override { Refuse(); }

 private:
  bool HasName(std::wstring name, DISPID& id) {
    wchar_t* names[] = {name.data()};
    return SUCCEEDED(object_->GetIDsOfNames(IID_NULL, names, 1, LOCALE_NEUTRAL, &id));
  }
  hostlib::Value Read(DISPID id) {
    const hostlib::com::Variant answer =
        hostlib::com::InvokeMember(*object_.Get(), {id, DISPATCH_PROPERTYGET, {}}, {});
    return hostlib::com::FromVariant(answer.get(), gate_, {});
  }
  [[noreturn]] static void Refuse() {
    throw hostlib::LibraryError(DISP_E_MEMBERNOTFOUND, L"Practice library",
                                L"The object does not belong to the library");
  }

  ComPtr<IDispatch> object_;
  hostlib::com::ObjectGate& gate_;
};

}  // namespace

Exporter::Exporter(const TypeLibrary& types, ProcessLife& life) : types_(types), life_(life) {}

ComPtr<IDispatch> Exporter::Outward(const hostlib::ObjectPtr& object) {
  ComPtr<IDispatch> result;
  if (object == nullptr) return result;
  const LibraryClass* kind = FindClass(object->ClassName());
  if (kind == nullptr) {
    throw hostlib::LibraryError(REGDB_E_CLASSNOTREG, L"Practice library",
                                std::wstring(object->ClassName()) + L" can not be handed out");
  }
  auto* made = new ComObject(*this, object, *kind, client_);
  const HRESULT found = made->QueryInterface(IID_PPV_ARGS(&result));
  made->Release();
  if (FAILED(found)) throw hostlib::LibraryError(found, L"Practice library", L"No interface");
  return result;
}

hostlib::ObjectPtr Exporter::Inward(ComPtr<IDispatch> object, std::wstring_view) {
  if (object == nullptr) return nullptr;
  ComPtr<IExported> exported;
  if (SUCCEEDED(object->QueryInterface(kExportedId, &exported))) return exported->Target();
  return std::make_shared<ForeignObject>(std::move(object), *this);
}

int Exporter::Live() const {
  return static_cast<int>(std::count_if(live_.begin(), live_.end(), [](const ComObject* object) {
    return object->kind().use != ClassUse::kHidden;
  }));
}

void Exporter::DisconnectTheDead() {
  Disconnect([](const ComObject& object) {
    return object.client() != nullptr && object.client()->IsGone();
  });
}

void Exporter::DisconnectAll() {
  Disconnect([](const ComObject&) { return true; });
}

void Exporter::Disconnect(const std::function<bool(const ComObject&)>& which) {
  std::vector<ComPtr<IExported>> objects;
  for (ComObject* object : live_) {
    if (which(*object)) objects.emplace_back(object);
  }
  for (const auto& object : objects) CoDisconnectObject(object.Get(), 0);
}

void Exporter::Began(ComObject& object) {
  life_.Hold();
  live_.insert(&object);
  Changed();
}

void Exporter::Ended(ComObject& object) {
  live_.erase(&object);
  Changed();
  life_.LetGo();
}

void Exporter::Changed() const {
  if (onChange) onChange(Live());
}

}  // namespace practice::terminal
