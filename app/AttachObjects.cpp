#include "app/AttachObjects.h"

#include <functional>
#include <utility>

#include "common/ConstDefintions.h"

namespace app {
namespace {

constexpr int kFirstSlot = 7;
constexpr auto kMemberNotFound = static_cast<std::int32_t>(0x80020003);

/// Read-only properties, one a slot.
class PropertyObject : public hostlib::Object {
 public:
  using Property = std::function<hostlib::Value()>;
  /// The name outlasts the object, as what its properties read does.
  PropertyObject(std::wstring_view className, std::vector<Property> properties)
      : className_(className), properties_(std::move(properties)) {}

  std::wstring_view ClassName() const override { return className_; }
  hostlib::Value Call(int slot, const hostlib::Arguments&) override {
    const auto index = static_cast<std::size_t>(slot - kFirstSlot);
    if (slot < kFirstSlot || index >= properties_.size()) Missing();
    return properties_[index]();
  }
  hostlib::ObjectPtr Interface(int) override { Missing(); }

 private:
  [[noreturn]] void Missing() const {
    throw hostlib::LibraryError(kMemberNotFound, std::wstring(className_), L"Member not found");
  }

  std::wstring_view className_;
  std::vector<Property> properties_;
};

}  // namespace

hostlib::ObjectPtr MakeProgressFormObject(const ui::Form& form, const ui::Label& text) {
  return std::make_shared<PropertyObject>(
      form.name(),
      std::vector<PropertyObject::Property>{[&form] { return hostlib::Value(form.Caption()); },
                                            [&text] { return hostlib::Value(text.Text()); }});
}

hostlib::ObjectPtr MakeApplicationObject(const platform::Platform& platform) {
  constexpr std::int32_t kOneInstance = 1;
  return std::make_shared<PropertyObject>(
      L"Application", std::vector<PropertyObject::Property>{
                          [] { return hostlib::Value(common::kTitle); },
                          [&platform] { return hostlib::Value(platform.ProgramFolder()); },
                          [] { return hostlib::Value(kOneInstance); }});
}

}  // namespace app
