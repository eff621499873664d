#include "tst/TSTFieldReader.h"

#include "common/Text.h"
#include "hostlib/Requests.h"

namespace tst {

using hostlib::TstDetailRequest;

TSTFieldReader::TSTFieldReader(hostlib::Library& library, hostlib::ScriptGlobal& global,
                               std::wstring_view responseText)
    : library_(library), global_(global), responseText_(responseText), bag_(library) {}

void TSTFieldReader::ReadNames(TSTInfo& tst) {
  TstDetailRequest(library_).ReadNames(bag_, responseText_);
  tst.strNames = Text(L"strKeyTSTNames");
}

void TSTFieldReader::ReadGeneral(TSTInfo& tst, TSTGeneral& general, pnr::MCOInfo& mco) {
  TstDetailRequest(library_).ReadGeneral(bag_, responseText_);
  TakeFirst(general.strFirstTravelDate, L"strKeyFirstTravelDate");
  TakeFirst(general.strFirstFlightNo, L"strKeyFirstFlightNo");
  TakeFirst(general.strNotValidAfterDate, L"strKeyNotValidAfter");
  // The itinerary is still that of the TST before this one: with one TST the airport stays empty.
  if (general.strOriginAirport.empty())
    general.strOriginAirport = common::Left(mco.strItinerary, 3);
  mco.strItinerary = Text(L"strKeyItinerary");
  tst.strFareBasis = Text(L"strKeyAllFareBasis");
}

void TSTFieldReader::ReadFare(TSTInfo& tst) {
  TstDetailRequest(library_).ReadFare(bag_, responseText_);
  tst.strTSTNum = Text(L"strKeyTSTNum");
  tst.strFare = Text(L"strKeyFare");
  tst.strFareIndicator = Text(L"strKeyFareIndicator");
  tst.strEquivalentFare = Text(L"strKeyEquivFare");
  tst.strXFTax = Text(L"strKeyXFTax");
  tst.strTotalFare = Text(L"strKeyTotalFare");
  tst.strFareCalc = Text(L"strKeyFareCalc");
}

bool TSTFieldReader::IsReissue() { return global_.FlagIn(bag_, L"blnKeyReissue"); }

std::wstring TSTFieldReader::SalesIndicator() { return Text(L"strKeySalesIndicator"); }

void TSTFieldReader::ReadTaxes(TSTInfo& tst) {
  hostlib::Value taxes = bag_.GetValue(L"strKeyTaxArray()");
  if (!taxes.IsArray() && !taxes.IsObject()) return;
  for (const std::wstring& tax : hostlib::TextsOf(std::move(taxes)).items) {
    tst.strTaxList.append(tax).append(L";");
  }
}

void TSTFieldReader::ReadFareElements(TSTInfo& tst) {
  TstDetailRequest(library_).ReadFareElements(bag_, responseText_);
  tst.strFMElementNumber = Text(L"intKeyFMElementNumber");
  tst.strFMElementValue = Text(L"strKeyFMElementValue");
  tst.strFPElementNumber = Text(L"intKeyFPElementNumber");
  tst.strFPElementValue = Text(L"strKeyFPElementValue");
  tst.strFVElementNumber = Text(L"intKeyFVElementNumber");
  tst.strFVElementValue = Text(L"strKeyFVElementValue");
}

void TSTFieldReader::TakeFirst(std::wstring& field, common::Literal key) {
  if (field.empty()) field = Text(key);
}

}  // namespace tst
