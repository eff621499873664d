#include "pnr/TSTReaders.h"

#include <algorithm>
#include <vector>

#include "common/Numbers.h"
#include "common/Text.h"
#include "hostlib/Requests.h"
#include "pnr/ElementBag.h"

namespace pnr {

using hostlib::ParameterBag;
using hostlib::PnrReader;
namespace procedures = errors::procedures;

namespace {

void AddOne(std::int16_t& count) { count = common::ToInteger(count + 1.0); }

// Lists are built with their separator in front of every item.
void DropLeading(wchar_t separator, std::wstring& list) {
  if (list.starts_with(separator)) list.erase(0, 1);
}

// An infant that travels with an adult stands in brackets behind the adult's name.
std::wstring WithoutInfant(std::wstring name) {
  const int bracket = common::InStr(name, L"(");
  if (bracket == 0) return name;
  return common::Trim(common::Left(name, bracket - 1));
}

std::vector<std::wstring_view> ElementsOf(std::wstring_view association) {
  std::vector<std::wstring_view> elements;
  while (!association.empty()) {
    const std::size_t comma = std::min(association.find(L','), association.size());
    elements.push_back(association.substr(0, comma));
    association.remove_prefix(std::min(comma + 1, association.size()));
  }
  return elements;
}

// The same association holds them all, in whatever form it is written.
bool HoldsEveryElementOf(std::wstring_view association, std::wstring_view wanted) {
  const auto held = ElementsOf(association);
  return std::ranges::all_of(ElementsOf(wanted), [&](std::wstring_view element) {
    return std::ranges::find(held, element) != held.end();
  });
}

bool PassengersMatch(std::wstring_view passengers, const tst::TSTInfo& tst) {
  if (passengers.empty()) return true;
  const bool infants = common::Contains(passengers, L"INF");
  if (tst.blnInf) return infants;
  return !infants && HoldsEveryElementOf(passengers, tst.strPasAsso);
}

bool SegmentsMatch(std::wstring_view segments, const tst::TSTGeneral& general) {
  return segments.empty() || general.strSegAsso.empty() || segments == general.strSegAsso;
}

}  // namespace

TSTReaders::TSTReaders(hostlib::Library& library, hostlib::ScriptGlobal& global,
                       errors::ErrorHandler& errors, const tst::TSTGeneral& general, PNRInfo& pnr,
                       MCOInfo& mco, tst::TSTTotals& totals)
    : library_(library),
      global_(global),
      errors_(errors),
      general_(general),
      pnr_(pnr),
      mco_(mco),
      totals_(totals) {}

void TSTReaders::GetNameInformation(tst::TSTInfo& tst) {
  errors_.Run(procedures::kNames, [&] {
    tst.intNoNames = 0;
    // Once for all names of the PNR that are sought in it.
    const std::wstring namesOfTST = common::UpperCase(tst.strNames);
    PnrReader reader(library_);
    const int count = reader.CountNameElements();
    for (int i = 0; i < count; ++i) {
      const ParameterBag bag = ElementBag(library_, i);
      reader.GetNameElement(bag);
      std::wstring name = global_.TextIn(bag, L"strKeyElement");
      if (!tst.blnInf) {
        const std::wstring adult = WithoutInfant(std::move(name));
        if (common::Contains(namesOfTST, common::UpperCase(adult))) CountAdult(bag, adult, tst);
      } else if (common::InStrAnyCase(name, L"(INF") > 0) {
        CountInfant(bag, tst);
      }
    }
    DropLeading(L';', mco_.strNameList);
    DropLeading(L',', mco_.strPasAsso);
    DropLeading(L',', mco_.strINFPasAsso);
    DropLeading(L',', tst.strPasAsso);
  });
}

void TSTReaders::CountInfant(const ParameterBag& bag, tst::TSTInfo& tst) {
  AddOne(tst.intNoNames);
  AddOne(pnr_.intTotalNames);
  const std::wstring number = global_.TextIn(bag, L"strKeyElementNr");
  mco_.strINFPasAsso.append(L",").append(number);
}

void TSTReaders::CountAdult(const ParameterBag& bag, const std::wstring& name, tst::TSTInfo& tst) {
  // Drops a one-digit element number and its point; a two-digit number leaves its point in front.
  const std::wstring listed = common::Mid(name, 3);
  if (mco_.strFirstName.empty()) mco_.strFirstName = listed;
  mco_.strNameList.append(L";").append(listed);
  const std::wstring number = global_.TextIn(bag, L"strKeyElementNr");
  mco_.strPasAsso.append(L",").append(number);
  AddOne(pnr_.intTotalNames);
  tst.strPasAsso.append(L",").append(number);
  AddOne(tst.intNoNames);
}

void TSTReaders::GetFareInformation(const tst::TSTInfo& tst) {
  errors_.Run(procedures::kFareElement, [&] {
    totals_.strNetFare.clear();
    totals_.strSellingFare.clear();
    totals_.strTourCode.clear();
    PnrReader reader(library_);
    const int count = reader.CountFSElements();
    for (int i = 0; i < count; ++i) {
      const ParameterBag bag = ElementBag(library_, i, L"FS");
      reader.ReadElement(bag);
      ReadFareElement(bag, tst);
    }
  });
}

// The last element that matches stands.
void TSTReaders::ReadFareElement(const ParameterBag& bag, const tst::TSTInfo& tst) {
  const std::wstring netFare = global_.TextIn(bag, L"strKeyNetFare");
  const std::wstring sellingFare = global_.TextIn(bag, L"strKeySellFare");
  global_.TextIn(bag, L"strKeyElement");
  const std::wstring tourCode = global_.TextIn(bag, L"strKeyTourCode");
  const std::wstring passengers = global_.TextIn(bag, L"strKeyPasAsso");
  const std::wstring segments = global_.TextIn(bag, L"strKeySegAsso");
  if (!PassengersMatch(passengers, tst) || !SegmentsMatch(segments, general_)) return;
  totals_.strNetFare = WithCurrency(netFare);
  totals_.strSellingFare = WithCurrency(sellingFare);
  totals_.strTourCode = tourCode;
}

std::wstring TSTReaders::WithCurrency(const std::wstring& amount) const {
  const bool hasCurrency =
      amount.size() >= 3 && std::ranges::all_of(common::Left(amount, 3), common::IsLetter);
  return amount.empty() || hasCurrency ? amount : mco_.strCurrency + amount;
}

}  // namespace pnr
