#include "practice/library/Objects.h"

namespace practice::objects {
namespace {

using hostlib::Arguments;
using hostlib::ObjectPtr;
using hostlib::Value;

// An accepted entry is answered with the PNR.
Value ReadOutcome(Workshop& workshop, const std::wstring& response) {
  const auto bag = workshop.MakeBag();
  bag->Set(L"blnKeyPNRFound", ReadPnrDisplay(response).has_value());
  return ObjectPtr(bag);
}

class ElementChangeObject : public PracticeObject {
 public:
  explicit ElementChangeObject(Workshop& workshop)
      : PracticeObject(hostlib::operations::pnr_element_change::kClass, &workshop.lastError) {
    using namespace hostlib::operations::pnr_element_change;
    On(kExecute, [](const Arguments& a) {
      const ParameterBagObject& bag = BagIn(a[0]);
      return Value(L"CH " + bag.Get(L"strKeyElementNr").Text() + L" " +
                   bag.Get(L"strKeyNewValue").Text());
    });
    On(kReadResponse,
       [&workshop](const Arguments& a) { return ReadOutcome(workshop, a[0].Text()); });
  }
};

class ElementEntryObject : public PracticeObject {
 public:
  explicit ElementEntryObject(Workshop& workshop)
      : PracticeObject(hostlib::operations::pnr_element_entry::kClass, &workshop.lastError) {
    using namespace hostlib::operations::pnr_element_entry;
    On(kReadResponse,
       [&workshop](const Arguments& a) { return ReadOutcome(workshop, a[0].Text()); });
  }
};

}  // namespace

ObjectPtr MakePnrElementChange(Workshop& workshop) {
  return workshop.Make<ElementChangeObject>(workshop);
}

ObjectPtr MakePnrElementEntry(Workshop& workshop) {
  return workshop.Make<ElementEntryObject>(workshop);
}

}  // namespace practice::objects
