#include "updates/ElementBuilders.h"

#include "common/Text.h"

namespace updates {

namespace procedures = errors::procedures;
using namespace hostlib::operations::pnr_element_builder;

ElementBuilders::ElementBuilders(hostlib::Library& library, errors::ErrorHandler& errors,
                                 fares::DateHelpers& dates, const settings::Settings& settings,
                                 const tst::TSTGeneral& general, const pnr::PNRInfo& pnr,
                                 const pnr::MCOInfo& mco)
    : library_(library),
      errors_(errors),
      dates_(dates),
      settings_(settings),
      general_(general),
      pnr_(pnr),
      mco_(mco) {}

std::wstring ElementBuilders::CreateFOElement(std::wstring_view type) {
  std::wstring element;
  errors_.Run(procedures::kCreateFO, [&] {
    element = Build(kExecuteFO, {{L"strKeyPasID", type},
                                 {L"strKeyMPDNumber", mco_.strMCONumber},
                                 {L"strKeyIATANumber", settings_.strIATANumber},
                                 {L"strKeyCity", settings_.strCityCode},
                                 {L"strKeyPasAsso", PassengerAssociation(type, mco_.strPasAsso)},
                                 {L"strKeySegAsso", mco_.strSegAsso}});
  });
  return element;
}

std::wstring ElementBuilders::CreateFPElement(std::wstring_view type,
                                              std::wstring_view association) {
  std::wstring element;
  errors_.Run(procedures::kCreateFP, [&] {
    const std::wstring& text = FormOfPayment();
    if (text.empty()) return;
    element = Build(kExecuteFP, {{L"strKeyPasID", type},
                                 {L"strKeyText", text},
                                 {L"strKeyPasAsso", PassengerAssociation(type, association)},
                                 {L"strKeySegAsso", mco_.strSegAsso},
                                 {L"blnKeyPTA", true},
                                 {L"blnKeyLH", pnr_.blnLH}});
  });
  return element;
}

std::wstring ElementBuilders::CreateFVElement(std::wstring_view type,
                                              std::wstring_view association) {
  std::wstring element;
  errors_.Run(procedures::kCreateFV, [&] {
    element = CreateTextElement(kExecuteFV, type, mco_.strAirlineCode, association);
  });
  return element;
}

std::wstring ElementBuilders::CreateFMElement(std::wstring_view type,
                                              std::wstring_view association) {
  std::wstring element;
  errors_.Run(procedures::kCreateFM, [&] {
    element = CreateTextElement(kExecuteFM, type, mco_.strCommission, association);
  });
  return element;
}

std::wstring ElementBuilders::CreateRMElement(std::wstring_view text) {
  std::wstring element;
  errors_.Run(procedures::kCreateRM, [&] {
    element = Build(kExecuteRM, {{L"strKeyText", text},
                                 {L"strKeyPasAsso", mco_.strPasAsso},
                                 {L"strKeySegAsso", mco_.strSegAsso}});
  });
  return element;
}

std::wstring ElementBuilders::CreateOPElement() {
  std::wstring element;
  errors_.Run(procedures::kCreateOP, [&] {
    const std::wstring date = dates_.AddDay(general_.strFirstTravelDate);
    if (date.empty()) return;
    element = Build(kExecuteOP, {{L"strKeyText", settings_.strOPText}, {L"strKeyDate", date}});
  });
  return element;
}

std::wstring ElementBuilders::DivideRMString(std::wstring_view text) {
  std::wstring elements;
  errors_.Run(procedures::kDivideRM, [&] {
    hostlib::RemarkDivider divider(library_);
    for (const std::wstring& piece : divider.Divide(text).items) elements += piece + L";";
    // A division that gives no piece at all is a failure here: the remark must not vanish.
    elements = common::Left(elements, common::Length(elements) - 1);
  });
  return elements;
}

std::wstring ElementBuilders::Build(const hostlib::Operation& execute, Inputs inputs) {
  hostlib::PnrElementBuilder builder(library_, execute);
  hostlib::ParameterBag bag(library_);
  for (const auto& [key, value] : inputs) bag.SetValue(key, value);
  return builder.Execute(bag);
}

std::wstring ElementBuilders::CreateTextElement(const hostlib::Operation& execute,
                                                std::wstring_view type, std::wstring_view text,
                                                std::wstring_view association) {
  return Build(execute, {{L"strKeyPasID", type},
                         {L"strKeyText", text},
                         {L"strKeyPasAsso", PassengerAssociation(type, association)},
                         {L"strKeySegAsso", mco_.strSegAsso}});
}

std::wstring_view ElementBuilders::PassengerAssociation(std::wstring_view type,
                                                        std::wstring_view association) const {
  return type == kInfant ? std::wstring_view(mco_.strINFPasAsso) : association;
}

const std::wstring& ElementBuilders::FormOfPayment() const {
  if (!pnr_.strFP1.empty()) return pnr_.strFP1;
  return pnr_.strFP2.empty() ? mco_.strFormOfPayment : pnr_.strFP2;
}

}  // namespace updates
