#include "practice/host/Syntax.h"
#include "practice/library/Objects.h"

namespace practice::objects {
namespace {

using hostlib::Arguments;
using hostlib::Value;

std::wstring TextIn(const ParameterBagObject& bag, std::wstring_view key) {
  return bag.Get(key).Text();
}

std::wstring BuildFare(const ParameterBagObject& bag) {
  std::wstring piece =
      L"FARE " + TextIn(bag, L"strKeyFareIndicator") + L" " + TextIn(bag, L"strKeyFare");
  const std::wstring equivalent = TextIn(bag, L"strKeyEquivFare");
  if (!equivalent.empty()) piece += L" EQUIV " + equivalent;
  const auto taxes = hostlib::TextsOf(bag.Get(L"strKeyTaxArray"));
  if (!taxes.items.empty()) piece += L" TAX " + syntax::Join(taxes.items, L" ");
  return piece;
}

/// Builds the pieces of a TST update entry.
class TstUpdateObject : public PracticeObject {
 public:
  explicit TstUpdateObject(Workshop& workshop)
      : PracticeObject(hostlib::operations::tst_update_request::kClass, &workshop.lastError) {
    using namespace hostlib::operations::tst_update_request;
    On(kBuildFareEntry, [](const Arguments& a) { return Value(BuildFare(BagIn(a[0]))); });
    On(kBuildValidityEntry, [](const Arguments& a) {
      return Value(L"NVA " + TextIn(BagIn(a[0]), L"strKeyNotValidAfter"));
    });
    On(kBuildTSTEntry, [](const Arguments& a) {
      const ParameterBagObject& bag = BagIn(a[0]);
      return Value(L"TU " + TextIn(bag, L"strKeyTSTNum") +
                   (bag.Get(L"blnKeyPTA").Flag() ? L" PTA" : L""));
    });
  }
};

}  // namespace

hostlib::ObjectPtr MakeTstUpdateRequest(Workshop& workshop) {
  return workshop.Make<TstUpdateObject>(workshop);
}

}  // namespace practice::objects
