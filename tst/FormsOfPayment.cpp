#include "tst/FormsOfPayment.h"

#include "common/Text.h"

namespace tst {
namespace {

std::wstring_view WithoutPrefix(std::wstring_view fpElement) {
  for (const std::wstring_view prefix : {L"O/PT/", L"O/"}) {
    if (fpElement.starts_with(prefix)) return fpElement.substr(prefix.size());
  }
  return fpElement;
}

}  // namespace

FormsOfPayment::FormsOfPayment(pnr::PNRInfo& pnr, pnr::MCOInfo& mco, TSTGeneral& general,
                               TSTWarnings& warnings)
    : pnr_(pnr), mco_(mco), general_(general), warnings_(warnings) {}

void FormsOfPayment::Add(std::wstring_view fpElement) {
  if (fpElement.empty()) {
    if (pnr_.blnFPExists) warnings_.WarnOfMissingFP();
    return;
  }
  const std::wstring_view formOfPayment = WithoutPrefix(fpElement);
  if (mco_.strFormOfPayment.empty()) {
    mco_.strFormOfPayment = formOfPayment;
    pnr_.strFP1 = formOfPayment;
  } else if (!common::Contains(mco_.strFormOfPayment, formOfPayment)) {
    AddFurther(formOfPayment);
  }
}

void FormsOfPayment::AddFurther(std::wstring_view formOfPayment) {
  if (general_.blnMultipleFP) {
    warnings_.WarnOfThirdFP();
    return;
  }
  general_.blnMultipleFP = true;
  mco_.strFormOfPayment = common::Trim(mco_.strFormOfPayment) + L" + ";
  mco_.strFormOfPayment += formOfPayment;
  pnr_.strFP2 = formOfPayment;
}

}  // namespace tst
