#include "pnr/PNRChecks.h"

#include "common/Text.h"
#include "hostlib/Requests.h"
#include "pnr/ElementBag.h"

namespace pnr {

using hostlib::ParameterBag;
using hostlib::PnrReader;
namespace procedures = errors::procedures;

namespace {

constexpr std::wstring_view kPWCT = L"PWCT";

bool IsPWCT(std::wstring_view remark) { return common::LeftTrim(remark).starts_with(kPWCT); }

// Cut from the remark as it stands: one with leading blanks keeps the end of the word itself.
std::wstring PWCTAction(std::wstring_view remark) {
  return common::Trim(common::Mid(remark, static_cast<int>(kPWCT.size()) + 1));
}

}  // namespace

PNRChecks::PNRChecks(hostlib::Library& library, hostlib::ScriptGlobal& global,
                     hostlib::TerminalSession& session, errors::ErrorHandler& errors,
                     common::MessageBoxes& boxes, const MCOInfo& mco, PNRInfo& pnr)
    : library_(library),
      global_(global),
      session_(session),
      errors_(errors),
      boxes_(boxes),
      mco_(mco),
      pnr_(pnr) {}

void PNRChecks::GetPWCTInformation() {
  errors_.Run(procedures::kPWCT, [&] {
    PnrReader reader(library_);
    const int count = reader.CountRMElements();
    for (int i = 0; i < count; ++i) {
      const ParameterBag bag = ElementBag(library_, i);
      reader.GetRMElement(bag);
      const std::wstring remark = global_.TextIn(bag, L"strKeyText");
      const std::wstring segments = global_.TextIn(bag, L"strKeySegAsso");
      if (!IsPWCT(remark) || !BelongsToMCO(segments)) continue;
      pnr_.strRMPWCTNumber = global_.TextIn(bag, L"strKeyElementNr");
      pnr_.strRMPWCTAction = PWCTAction(remark);
      return;
    }
  });
}

bool PNRChecks::BelongsToMCO(std::wstring_view segmentAssociation) const {
  return segmentAssociation.empty() || segmentAssociation == mco_.strSegAsso ||
         mco_.strSegAsso.empty();
}

void PNRChecks::CheckSKOSI() {
  errors_.Run(procedures::kOSI, [&] {
    if (!HasOSIForSK()) session_.SendCommand(L"OS SK PTA");
  });
}

bool PNRChecks::HasOSIForSK() {
  PnrReader reader(library_);
  const int count = reader.CountOSIElements();
  for (int i = 0; i < count; ++i) {
    const ParameterBag bag = ElementBag(library_, i, L"OSI");
    reader.ReadElement(bag);
    global_.TextIn(bag, L"strKeyElementNr");
    const std::wstring text = global_.TextIn(bag, L"strKeyElement");
    const std::wstring airline = global_.TextIn(bag, L"strKeyAirline");
    if (!text.empty() && airline == L"SK") return true;
  }
  return false;
}

void PNRChecks::CheckIR() {
  errors_.Run(procedures::kRetrievePNR, [&] {
    if (!session_.SendEntryChecked(L"IR")) boxes_.ShowBox(L"No IR", common::kPlain, L"");
  });
}

}  // namespace pnr
