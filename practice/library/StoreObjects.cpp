#include "practice/library/Objects.h"

namespace practice::objects {
namespace {

using hostlib::Arguments;
using hostlib::Value;

class ProfileStoreObject : public PracticeObject {
 public:
  explicit ProfileStoreObject(Workshop& workshop)
      : PracticeObject(hostlib::operations::profile_store::kClass, &workshop.lastError) {
    using namespace hostlib::operations::profile_store;
    Profiles& profiles = workshop.with.profiles;
    On(kReadValue, [&profiles](const Arguments& a) {
      return Value(profiles.Read(a[0].Text(), a[1].Text(), a[2].Text()));
    });
    On(kWriteValue, [&profiles](const Arguments& a) {
      if (!profiles.Write(a[0].Text(), a[1].Text(), a[2].Text(), a[3].Text())) {
        RaiseFailure(kNotWritten, L"\"" + a[0].Text() + L"\" can not be written");
      }
      return Value();
    });
  }
};

class UserSettingsStoreObject : public PracticeObject {
 public:
  explicit UserSettingsStoreObject(Workshop& workshop)
      : PracticeObject(hostlib::operations::user_settings_store::kClass, &workshop.lastError) {
    using namespace hostlib::operations::user_settings_store;
    UserValues& values = workshop.with.userValues;
    On(kGetSetting, [&values](const Arguments& a) {
      std::wstring value = values.Get(a[0].Text(), a[1].Text(), a[2].Text());
      if (value.empty() && !a[3].IsMissing()) value = a[3].Text();
      return Value(std::move(value));
    });
    On(kSaveSetting, [&values](const Arguments& a) {
      values.Save(a[0].Text(), a[1].Text(), a[2].Text(), a[3].Text());
      return Value();
    });
  }
};

class OfficeDisplayReaderObject : public PracticeObject {
 public:
  explicit OfficeDisplayReaderObject(Workshop& workshop)
      : PracticeObject(hostlib::operations::office_display_reader::kClass, &workshop.lastError) {
    using namespace hostlib::operations::office_display_reader;
    On(kReadResponse, [&workshop](const Arguments& a) {
      const auto lines = display_lines::DisplayIn(a[0].Text(), L"OFFICE ", L"END OF OFFICE");
      if (!lines) RaiseFailure(kNoDisplay, L"The answer is no office display");
      const auto bag = workshop.MakeBag();
      bag->Set(L"strKeyOfficeID", display_lines::ValueOf(*lines, L"OFFICE"));
      return Value(hostlib::ObjectPtr(bag));
    });
  }
};

}  // namespace

hostlib::ObjectPtr MakeProfileStore(Workshop& workshop) {
  return workshop.Make<ProfileStoreObject>(workshop);
}

hostlib::ObjectPtr MakeUserSettingsStore(Workshop& workshop) {
  return workshop.Make<UserSettingsStoreObject>(workshop);
}

hostlib::ObjectPtr MakeOfficeDisplayReader(Workshop& workshop) {
  return workshop.Make<OfficeDisplayReaderObject>(workshop);
}

}  // namespace practice::objects
