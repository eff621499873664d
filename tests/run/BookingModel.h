#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace run {

/// What an element or a fare is for: nothing set is all.
struct ModelAssociation {
  std::wstring type;  ///< PAX, INF or none
  std::vector<int> passengers;
  bool segments = false;  ///< both of the booking
};

struct ModelLine {
  std::wstring text;
  ModelAssociation whom;
};

/// Every fare names its passengers.
struct ModelFare {
  ModelAssociation whom;
  std::wstring fare;
  std::wstring equivalent;
  std::vector<std::wstring> taxes;
  std::wstring total;
  std::wstring indicator;
  std::wstring xf;
  std::wstring notValidAfter;
  bool pta = false;
};

/// A booking as a test thinks of it: lines by their codes, and fares. It can be written down as a
/// booking for the practice host, and as the text in which that host would show it.
struct BookingModel {
  std::map<std::wstring, std::vector<ModelLine>> lines;
  std::vector<ModelFare> fares;  ///< numbered from 1
  std::wstring feeText;

  /// As the PNR's display numbers it; `index` counts from 0.
  int NumberOf(const std::wstring& code, std::size_t index) const;
  bool HasInfant(int passenger) const;
  int CountInfants() const;
  /// The index of the line that holds for the fare; -1 when there is none.
  int Linked(const std::wstring& code, const ModelFare& fare) const;
  std::wstring LinkedText(const std::wstring& code, const ModelFare& fare) const;

  std::wstring SegmentNumbers() const;
  std::wstring AssociationText(const ModelAssociation& whom) const;
  std::wstring AsBooking() const;
  std::wstring AsDisplay() const;
};

/// "1-3,5": runs are shortened from `shortest` numbers on.
std::wstring NumberList(const std::vector<int>& numbers, int shortest);

}  // namespace run
