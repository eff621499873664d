#include "updates/ClosingCommands.h"

namespace updates {

namespace procedures = errors::procedures;

ClosingCommands::ClosingCommands(hostlib::Library& library, hostlib::ScriptGlobal& global,
                                 hostlib::TerminalSession& session, errors::ErrorHandler& errors,
                                 common::RunEnd& runEnd, const settings::Settings& settings,
                                 const pnr::MCOInfo& mco)
    : library_(library),
      global_(global),
      session_(session),
      errors_(errors),
      runEnd_(runEnd),
      settings_(settings),
      mco_(mco) {}

void ClosingCommands::PrintPNR() {
  errors_.Run(procedures::kPrintPNR, [&] {
    if (!IsPrinted()) runEnd_.EndScript();
  });
}

bool ClosingCommands::IsPrinted() {
  hostlib::PrintRequest request(library_);
  hostlib::ParameterBag bag(library_);
  bag.SetValue(L"strKeyText", L"RT");
  const std::wstring response = session_.SendSingle(request.Execute(bag));
  const hostlib::ParameterBag result = request.ReadResponse(response);
  if (global_.FlagIn(result, L"blnKeyResult")) return true;
  errors_.ReportRefusal(procedures::kPrintPNR);
  return false;
}

void ClosingCommands::SendBT(std::wstring_view retain) {
  errors_.Run(procedures::kSendBT, [&] {
    hostlib::BackOfficeRequest request(library_);
    hostlib::ParameterBag bag(library_);
    bag.SetValue(L"strKeyRetain", retain);
    if (settings_.blnAddPasSegAsso) {
      bag.SetValue(L"strKeyPasAsso", mco_.strPasAsso);
      bag.SetValue(L"strKeySegAsso", mco_.strSegAsso);
    }
    session_.SendSingle(request.Execute(bag));
  });
}

}  // namespace updates
