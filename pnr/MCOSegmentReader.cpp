#include "pnr/MCOSegmentReader.h"

#include "common/Text.h"
#include "hostlib/Requests.h"
#include "pnr/ElementBag.h"

namespace pnr {

namespace procedures = errors::procedures;

MCOSegmentReader::MCOSegmentReader(hostlib::Library& library, hostlib::ScriptGlobal& global,
                                   errors::ErrorHandler& errors,
                                   const settings::OfficeProfile& profile, MCOInfo& mco)
    : library_(library), global_(global), errors_(errors), profile_(profile), mco_(mco) {}

void MCOSegmentReader::GetMCOInformation(std::int16_t index) {
  errors_.Run(procedures::kMCOInfo, [&] {
    hostlib::PnrReader reader(library_);
    const hostlib::ParameterBag bag = ElementBag(library_, index, L"MCO");
    reader.ReadElement(bag);
    mco_.strMCONumber = global_.TextIn(bag, L"strKeyMCOFATicketNbr");
    ReadAirline(bag);
    CheckAirline();
    mco_.strCommission = global_.TextIn(bag, L"strKeyMCOFMElement");
    mco_.strFormOfPayment = global_.TextIn(bag, L"strKeyMCOFPElement");
  });
}

// The airline that an exception names is final: it is not looked up again.
void MCOSegmentReader::ReadAirline(const hostlib::ParameterBag& bag) {
  mco_.strAirlineCode = global_.TextIn(bag, L"strKeyAirline");
  std::wstring validating =
      profile_.Read(L"FVException" + mco_.strAirlineCode, L"FVException", mco_.strAirlineCode);
  if (!validating.empty()) mco_.strAirlineCode = std::move(validating);
}

// The agency's list has no separator of its own: a code counts wherever its letters stand.
void MCOSegmentReader::CheckAirline() {
  const std::wstring notValid = profile_.Read(L"AirlinesNotValid", L"Airlines", L"NotValid");
  if (mco_.strAirlineCode.empty()) return;
  if (common::Contains(notValid, mco_.strAirlineCode)) {
    errors_.Report(procedures::kAirlineNotValid);
  }
}

}  // namespace pnr
