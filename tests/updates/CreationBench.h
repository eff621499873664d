#pragma once

#include "fares/DateHelpers.h"
#include "tests/updates/UpdatesBench.h"

namespace updates {

/// A bench whose builders answer with their kind and what they were asked for, e.g.
/// "FV PAX SK p2 s1" (type, text, associations); a blank value is left out.
struct CreationBench : UpdatesBench {
  CreationBench() {
    using namespace hostlib::operations::pnr_element_builder;
    Echo(kExecuteFO, L"FO");
    Echo(kExecuteFP, L"FP");
    Echo(kExecuteFV, L"FV");
    Echo(kExecuteFM, L"FM");
    Echo(kExecuteOP, L"OP");
    scripted.On(kExecuteRM, [](const hostlib::Arguments& arguments) {
      return hostlib::Value(L"RM " + TextIn(arguments, L"strKeyText"));
    });
    AnswerFlag(hostlib::operations::pnr_element_entry::kReadResponse, L"blnKeyPNRFound", true);
    general.strFirstTravelDate = L"15MAR07";
    settings.strIATANumber = L"80246878";
    settings.strCityCode = L"STO";
    settings.strOPText = L"CHECK IF TICKET OK";
    mco.strMCONumber = L"117-4012345678";
    mco.strPasAsso = L"2";
    mco.strINFPasAsso = L"3,4";
    mco.strSegAsso = L"1";
    mco.strAirlineCode = L"SK";
    mco.strCommission = L"10";
    mco.strCurrency = L"SEK";
    pnr.strFP1 = L"CASH";
  }

  static std::wstring TextIn(const hostlib::Arguments& arguments, std::wstring_view key) {
    return practice::BagIn(arguments[0]).Get(key).Text();
  }

  fares::DateHelpers dates{global, scripted.platform, errors};

 private:
  void Echo(const hostlib::Operation& execute, const std::wstring& kind) {
    scripted.On(execute, [kind](const hostlib::Arguments& arguments) {
      std::wstring element = kind;
      const std::pair<const wchar_t*, const wchar_t*> parts[] = {{L"strKeyPasID", L""},
                                                                 {L"strKeyText", L""},
                                                                 {L"strKeyDate", L""},
                                                                 {L"strKeyPasAsso", L"p"},
                                                                 {L"strKeySegAsso", L"s"}};
      for (const auto& [key, mark] : parts) {
        const std::wstring text = TextIn(arguments, key);
        if (!text.empty()) element += L" " + (mark + text);
      }
      return hostlib::Value(element);
    });
  }
};

}  // namespace updates
