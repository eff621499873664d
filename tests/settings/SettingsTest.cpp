#include <gtest/gtest.h>

#include "settings/Settings.h"

namespace settings {
namespace {

TEST(Settings, AFreshRecordIsEmpty) {
  const Settings fresh;
  EXPECT_EQ(fresh.strSymbol + fresh.strOPText + fresh.strCityCode + fresh.strIATANumber +
                fresh.strCountryCode + fresh.strMandatoryElements + fresh.strPrinterDevice +
                fresh.strDataPath,
            L"");
  EXPECT_EQ(fresh.intTopMarg + fresh.intLeftMarg + fresh.intPaperBin, 0);
  EXPECT_FALSE(fresh.blnAddRMTotalinBOD || fresh.blnAddMCOInfo || fresh.blnPrintPNR ||
               fresh.blnTKNoUpdate || fresh.blnAddOP || fresh.blnAddPasSegAsso ||
               fresh.blnSendBOD || fresh.blnPanelMode);
}

}  // namespace
}  // namespace settings
