#pragma once

#include <map>
#include <tuple>

#include "hostlib/Requests.h"
#include "pnr/MCOInfo.h"
#include "pnr/PNRInfo.h"
#include "tests/support/RoomBench.h"

namespace pnr {

using Lines = std::vector<std::wstring>;
/// What the library writes into the bag for one element.
using Row = std::vector<std::pair<std::wstring, hostlib::Value>>;
namespace reader = hostlib::operations::pnr_reader;

/// A PNR in the scripted library's PnrReader: rows of keys by kind of element. A row that is not
/// there is a failure.
struct PNRBench : support::RoomBench {
  PNRBench() {
    scripted.On(reader::kFindElements,
                [this](const hostlib::Arguments& arguments) { return Find(arguments[0]); });
  }

  void Has(const hostlib::Operation& count, const hostlib::Operation& get, std::vector<Row> rows) {
    scripted.Answer(count, static_cast<std::int16_t>(rows.size()));
    scripted.On(get, [rows = std::move(rows)](const hostlib::Arguments& arguments) {
      Fill(arguments[0], rows);
      return hostlib::Value();
    });
  }
  /// Elements that are read by the typed read.
  void HasTyped(std::wstring kind, std::vector<Row> rows) { typed[kind] = std::move(rows); }
  void HasTyped(const hostlib::Operation& count, std::wstring kind, std::vector<Row> rows) {
    scripted.Answer(count, static_cast<std::int16_t>(rows.size()));
    HasTyped(std::move(kind), std::move(rows));
  }

  /// What a search for an element code finds; a code that is not here is answered by an array that
  /// ends at 0.
  std::map<std::wstring, hostlib::TextArray> found;
  std::map<std::wstring, std::vector<Row>> typed;
  /// The search texts, one array a search.
  std::vector<hostlib::TextArray> searches;

 private:
  static void Fill(const hostlib::ValueView& argument, const std::vector<Row>& rows) {
    practice::ParameterBagObject& bag = practice::BagIn(argument);
    const std::int16_t index = bag.Get(L"intKeyIndex").Integer();
    for (const auto& [key, value] : rows.at(static_cast<std::size_t>(index))) bag.Set(key, value);
  }
  hostlib::Value Find(const hostlib::ValueView& argument) {
    practice::ParameterBagObject& bag = practice::BagIn(argument);
    const std::wstring element = bag.Get(L"strKeyPNRElement").Text();
    if (!bag.Has(L"strKeyFind()")) {
      Fill(argument, typed.at(element));
      return {};
    }
    if (element != L"ALL") throw hostlib::LibraryError(-1, L"test", L"no such search");
    searches.push_back(hostlib::TextsOf(bag.Get(L"strKeyFind()")));
    const auto hit = found.find(searches.back().items.at(1));
    const hostlib::TextArray array = hit == found.end() ? hostlib::TextArray{{L""}} : hit->second;
    return hostlib::ObjectPtr(scripted.Bag({{L"strKeyResult()", scripted.List(array)}}));
  }
};

/// The lines of a transcript.
inline Lines Put(std::wstring_view key, std::wstring_view shown) {
  return {L"ParameterBag.1.7 SetValue(\"" + std::wstring(key) + L"\", " + std::wstring(shown) +
          L")"};
}
inline Lines Read(std::wstring_view key, std::wstring_view text) {
  const std::wstring shown = L"\"" + std::wstring(text) + L"\"";
  return {L"ParameterBag.1.8 GetValue(\"" + std::wstring(key) + L"\") -> " + shown,
          L"ScriptGlobal.1.13 ToText(" + shown + L") -> " + shown};
}
inline Lines Call(std::wstring_view line) { return {std::wstring(line)}; }
inline Lines Together(std::initializer_list<Lines> parts) {
  Lines all;
  for (const Lines& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

inline Lines ShowError(int number, std::wstring_view text, int style) {
  return {L"ScriptErrorReporter.1.18 ShowError(" +
          std::to_wstring(static_cast<std::int32_t>(0x80040000U) + number) +
          L", \"  PTA Script \", \"" + std::wstring(text) + L"\", " + std::to_wstring(style) +
          L")"};
}
/// How a reading procedure shows a failure that is not the library's.
inline Lines OwnFailure(int number, std::wstring_view text, int style) {
  return Together(
      {Call(L"ScriptErrorReporter.1.10 LastErrorNumber() -> 0"), ShowError(number, text, style)});
}
inline Lines LibraryFailure(int number) {
  return {L"ScriptErrorReporter.1.10 LastErrorNumber() -> " + std::to_wstring(number),
          L"ScriptErrorReporter.1.11 ReportLastError()"};
}

/// The lines that begin so.
inline Lines Only(std::wstring_view beginning, const Lines& lines) {
  Lines some;
  for (const std::wstring& line : lines) {
    if (line.starts_with(beginning)) some.push_back(line);
  }
  return some;
}
inline Lines OnlyReports(const Lines& lines) { return Only(L"ScriptErrorReporter", lines); }

/// The last lines.
inline Lines Last(std::size_t count, const Lines& lines) {
  return {lines.end() - static_cast<std::ptrdiff_t>(std::min(count, lines.size())), lines.end()};
}

/// Every field of a record in class order, comparable as a whole.
inline auto Fields(const PNRInfo& record) {
  const auto& [strMCOElementNumber, strFP2, strFP1, blnFPExists, blnLH, strDestination, strOrigin,
               strResponsibleOffice, strTicketingText, strTicketingAction, strRMBODInfo,
               strRMPWCTAction, strRMPTATotal, strTKElementNumber, intTotalNames, strRMPWCTNumber,
               blnFMExists, blnFVExists] = record;
  return std::tie(strMCOElementNumber, strFP2, strFP1, blnFPExists, blnLH, strDestination,
                  strOrigin, strResponsibleOffice, strTicketingText, strTicketingAction,
                  strRMBODInfo, strRMPWCTAction, strRMPTATotal, strTKElementNumber, intTotalNames,
                  strRMPWCTNumber, blnFMExists, blnFVExists);
}
inline auto Fields(const MCOInfo& record) {
  const auto& [strTax2, strTax1, strNameList, strTaxList, strFlightInfo, strCashCollection,
               strXTTaxString3, strXTTaxString2, strXTTaxString1, strXTTax, sglXTTax,
               strNameString2, strNameString1, strExpiryDate, strMCOTotal, strAmountInLetters,
               intNoNames, blnInf, blnAllTSTs, blnReissue, strFirstName, strSegAsso, strINFPasAsso,
               strPasAsso, strCurrency, strAirlineCode, strCommission, strItinerary,
               strFormOfPayment, dblMCOFee, strXFTax, strFareCalc, strTotalFare, strEquivalentFare,
               strTourCode, strSellingFare, strNetFare, strFare, strRecordLocator, strMCONumber,
               intMCOCount, blnMultTST] = record;
  return std::tie(strTax2, strTax1, strNameList, strTaxList, strFlightInfo, strCashCollection,
                  strXTTaxString3, strXTTaxString2, strXTTaxString1, strXTTax, sglXTTax,
                  strNameString2, strNameString1, strExpiryDate, strMCOTotal, strAmountInLetters,
                  intNoNames, blnInf, blnAllTSTs, blnReissue, strFirstName, strSegAsso,
                  strINFPasAsso, strPasAsso, strCurrency, strAirlineCode, strCommission,
                  strItinerary, strFormOfPayment, dblMCOFee, strXFTax, strFareCalc, strTotalFare,
                  strEquivalentFare, strTourCode, strSellingFare, strNetFare, strFare,
                  strRecordLocator, strMCONumber, intMCOCount, blnMultTST);
}

}  // namespace pnr
