#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "common/Literal.h"
#include "errors/ErrorHandler.h"
#include "fares/DateHelpers.h"
#include "hostlib/Requests.h"
#include "pnr/MCOInfo.h"
#include "pnr/PNRInfo.h"
#include "settings/Settings.h"
#include "tst/TSTGeneral.h"

namespace updates {

// The passenger types of an element; empty when the MCO covers no infant.
inline constexpr std::wstring_view kAdult = L"PAX";
inline constexpr std::wstring_view kInfant = L"INF";

/// Makes the texts of new elements; sends nothing to the host. "" is no element. A failure is
/// reported in the words of its element and ends the run.
class ElementBuilders {
 public:
  ElementBuilders(hostlib::Library& library, errors::ErrorHandler& errors,
                  fares::DateHelpers& dates, const settings::Settings& settings,
                  const tst::TSTGeneral& general, const pnr::PNRInfo& pnr, const pnr::MCOInfo& mco);

  std::wstring CreateFOElement(std::wstring_view type);
  // `association` is not used for an infant: the MCO knows the infant's.
  std::wstring CreateFPElement(std::wstring_view type, std::wstring_view association);
  std::wstring CreateFVElement(std::wstring_view type, std::wstring_view association);
  std::wstring CreateFMElement(std::wstring_view type, std::wstring_view association);
  std::wstring CreateRMElement(std::wstring_view text);
  /// Dated the day after departure.
  std::wstring CreateOPElement();

  /// A remark too long for one element as several, joined with ";".
  std::wstring DivideRMString(std::wstring_view text);

 private:
  /// What the bag of a new element gets, under which key.
  struct Input {
    common::Literal key;
    hostlib::ValueView value;
  };
  using Inputs = std::initializer_list<Input>;

  std::wstring Build(const hostlib::Operation& execute, Inputs inputs);
  std::wstring CreateTextElement(const hostlib::Operation& execute, std::wstring_view type,
                                 std::wstring_view text, std::wstring_view association);
  std::wstring_view PassengerAssociation(std::wstring_view type,
                                         std::wstring_view association) const;
  const std::wstring& FormOfPayment() const;

  hostlib::Library& library_;
  errors::ErrorHandler& errors_;
  fares::DateHelpers& dates_;
  const settings::Settings& settings_;
  const tst::TSTGeneral& general_;
  const pnr::PNRInfo& pnr_;
  const pnr::MCOInfo& mco_;
};

}  // namespace updates
