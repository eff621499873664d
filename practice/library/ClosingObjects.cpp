#include "practice/library/Objects.h"

namespace practice::objects {
namespace {

using hostlib::Arguments;
using hostlib::ObjectPtr;
using hostlib::Value;

std::wstring TextIn(const ParameterBagObject& bag, std::wstring_view key) {
  return bag.Get(key).Text();
}

// Nothing can be built without a queue and an office.
std::wstring BuildQueue(const ParameterBagObject& bag) {
  const std::wstring number = TextIn(bag, L"strKeyQueNumber");
  const std::wstring category = TextIn(bag, L"strKeyQueCategory");
  const std::wstring office = TextIn(bag, L"strKeyQueOfficeID");
  if (number.empty() || office.empty()) return {};
  return L"QE " + number + (category.empty() ? L"" : L" CAT " + category) + L" AT " + office +
         (bag.Get(L"blnKeyRetain").Flag() ? L" RETAIN" : L"") +
         (bag.Get(L"blnKeyRetrieve").Flag() ? L" RETRIEVE" : L"");
}

class QueueObject : public PracticeObject {
 public:
  explicit QueueObject(Workshop& workshop)
      : PracticeObject(hostlib::operations::queue_request::kClass, &workshop.lastError) {
    using namespace hostlib::operations::queue_request;
    On(kBuildCommand, [](const Arguments& a) { return Value(BuildQueue(BagIn(a[0]))); });
    On(kReadResponse, [&workshop](const Arguments& a) {
      const std::wstring response = a[0].Text();
      const auto bag = workshop.MakeBag();
      bag->Set(L"blnKeyQuePNR", response.starts_with(L"QUEUED "));
      bag->Set(L"blnKeyQueOn",
               (response.starts_with(L"QUEUED ") || response.starts_with(L"NOT QUEUED")) &&
                   response.ends_with(L" - QUEUE ON"));
      return Value(ObjectPtr(bag));
    });
  }
};

class PrintObject : public PracticeObject {
 public:
  explicit PrintObject(Workshop& workshop)
      : PracticeObject(hostlib::operations::print_request::kClass, &workshop.lastError) {
    using namespace hostlib::operations::print_request;
    On(kExecute,
       [](const Arguments& a) { return Value(L"PRINT " + TextIn(BagIn(a[0]), L"strKeyText")); });
    On(kReadResponse, [&workshop](const Arguments& a) {
      const auto bag = workshop.MakeBag();
      bag->Set(L"blnKeyResult", a[0].Text().starts_with(L"PRINTED "));
      return Value(ObjectPtr(bag));
    });
  }
};

// The retain value comes as a text; the associations only when they are wanted.
std::wstring BuildBackOffice(const ParameterBagObject& bag) {
  std::wstring entry = TextIn(bag, L"strKeyRetain") == L"True" ? L"BT RETAIN" : L"BT";
  const std::wstring passengers = TextIn(bag, L"strKeyPasAsso");
  const std::wstring segments = TextIn(bag, L"strKeySegAsso");
  if (passengers.empty() && segments.empty()) return entry;
  entry += L" [";
  if (!passengers.empty()) entry += L"P" + passengers;
  if (!segments.empty()) entry += (passengers.empty() ? L"S" : L" S") + segments;
  return entry + L"]";
}

class BackOfficeObject : public PracticeObject {
 public:
  explicit BackOfficeObject(Workshop& workshop)
      : PracticeObject(hostlib::operations::back_office_request::kClass, &workshop.lastError) {
    using namespace hostlib::operations::back_office_request;
    On(kExecute, [](const Arguments& a) { return Value(BuildBackOffice(BagIn(a[0]))); });
  }
};

}  // namespace

ObjectPtr MakeQueueRequest(Workshop& workshop) { return workshop.Make<QueueObject>(workshop); }

ObjectPtr MakePrintRequest(Workshop& workshop) { return workshop.Make<PrintObject>(workshop); }

ObjectPtr MakeBackOfficeRequest(Workshop& workshop) {
  return workshop.Make<BackOfficeObject>(workshop);
}

}  // namespace practice::objects
