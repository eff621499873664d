#include "common/ConstDefintions.h"
#include "practice/library/Objects.h"

namespace practice::objects {
namespace {

using hostlib::Arguments;
using hostlib::Value;

/// Shows boxes, and knows the last failure; its own calls leave that as it is.
class ReporterObject : public PracticeObject {
 public:
  explicit ReporterObject(Workshop& workshop)
      : PracticeObject(hostlib::operations::script_error_reporter::kClass, nullptr) {
    using namespace hostlib::operations::script_error_reporter;
    common::MessageBoxes& boxes = workshop.with.boxes;
    On(kLastErrorText, [&workshop](const Arguments&) { return Value(workshop.lastError.text); });
    On(kLastErrorNumber,
       [&workshop](const Arguments&) { return Value(workshop.lastError.number); });
    On(kReportLastError, [&workshop, &boxes](const Arguments&) {
      boxes.ShowBox(workshop.lastError.text, common::kCritical, common::kTitle);
      return Value();
    });
    On(kShowMessage, [&boxes](const Arguments& a) {
      boxes.ShowBox(a[2].Text(), common::kCritical, a[1].Text());
      return Value();
    });
    On(kShowError, [&boxes](const Arguments& a) {
      boxes.ShowBox(a[2].Text(), a[3].Long(), a[1].Text());
      return Value();
    });
  }
};

}  // namespace

hostlib::ObjectPtr MakeErrorReporter(Workshop& workshop) {
  return workshop.Make<ReporterObject>(workshop);
}

}  // namespace practice::objects
