#include "app/AttachObjects.h"

#include "common/ConstDefintions.h"

namespace app {
namespace {

constexpr auto kMemberNotFound = static_cast<std::int32_t>(0x80020003);

/// Read-only properties, one a slot. Its name and what it tells of outlast the object.
class PropertyObject : public hostlib::Object {
 public:
  explicit PropertyObject(std::wstring_view className) : className_(className) {}

  std::wstring_view ClassName() const override { return className_; }
  hostlib::ObjectPtr Interface(int) override { Missing(); }

 protected:
  [[noreturn]] void Missing() const {
    throw hostlib::LibraryError(kMemberNotFound, std::wstring(className_), L"Member not found");
  }

 private:
  std::wstring_view className_;
};

class ProgressFormObject : public PropertyObject {
 public:
  ProgressFormObject(const ui::Form& form, const ui::Label& text)
      : PropertyObject(form.name()), form_(form), text_(text) {}

  hostlib::Value Call(int slot, const hostlib::Arguments&) override {
    switch (slot) {
      case 7:
        return form_.Caption();
      case 8:
        return text_.Text();
      default:
        Missing();
    }
  }

 private:
  const ui::Form& form_;
  const ui::Label& text_;
};

class ApplicationObject : public PropertyObject {
 public:
  explicit ApplicationObject(const platform::Platform& platform)
      : PropertyObject(L"Application"), platform_(platform) {}

  hostlib::Value Call(int slot, const hostlib::Arguments&) override {
    constexpr std::int32_t kOneInstance = 1;
    switch (slot) {
      case 7:
        return common::kTitle;
      case 8:
        return platform_.ProgramFolder();
      case 9:
        return kOneInstance;
      default:
        Missing();
    }
  }

 private:
  const platform::Platform& platform_;
};

}  // namespace

hostlib::ObjectPtr MakeProgressFormObject(const ui::Form& form, const ui::Label& text) {
  return std::make_shared<ProgressFormObject>(form, text);
}

hostlib::ObjectPtr MakeApplicationObject(const platform::Platform& platform) {
  return std::make_shared<ApplicationObject>(platform);
}

}  // namespace app
