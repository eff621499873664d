#pragma once

#include <functional>

#include "tests/run/BookingModel.h"
#include "tests/run/Scenes.h"

namespace run {

/// What the office has set.
struct ModelSettings {
  bool printPNR = true;
  bool addOP = true;
  std::wstring opText;
  bool panelMode = false;
  bool sendBOD = true;
  bool passengerSegmentAsso = false;
  bool includeRMinBOD = false;
  bool noTKUpdate = false;
  std::wstring country;
  std::string decimal = ",";

  std::wstring AsIni() const;
};

/// What the agent does before OK; an empty text leaves the field as it is proposed.
struct ModelAgent {
  std::vector<std::size_t> chosen;  ///< indexes of fares; with one fare there is no choice
  std::wstring pwct;
  std::wstring backOfficeInfo;
  std::wstring total;
  std::wstring office;
  std::wstring queue;
  bool clicksNoTSTUpdate = false;
};

/// The rules of writing, put down a second time and independently: who is to see which box, what is
/// to be sent, and what the PNR is to be afterwards.
class WritingRules {
 public:
  WritingRules(BookingModel& booking, const ModelSettings& settings, const ModelAgent& agent);

  /// The agent's script with every box that has to come. Brings the booking to where it is when the
  /// dialog stands.
  std::wstring Read();
  /// The entries behind the dialog's OK. Brings the booking to where it is afterwards.
  Lines Write();

 private:
  struct Fare {
    std::size_t index;
    int count;  ///< passengers
  };
  /// A new element, or a divided remark: as it is sent, and as the lines that it becomes.
  struct Element {
    std::wstring code;
    std::wstring sent;
    std::vector<ModelLine> lines;
  };
  /// The text that an element's text is to be changed to; empty when it is right.
  using NewText = std::function<std::wstring(const std::wstring& text)>;

  std::wstring ReadingBoxes();
  std::wstring DisplayBoxes() const;
  std::wstring TypedFields() const;
  void ChangeElements();
  void ChangeFareElements(const std::wstring& code, const NewText& newText);
  void Change(const std::wstring& code, std::size_t index, const std::wstring& text);
  void CreateElements();
  void CreateForDocument(const std::wstring& code, const std::wstring& text);
  void CreateFareElements(const std::wstring& code, const std::wstring& text, bool exists);
  void Create(const std::wstring& code, const std::wstring& text, const ModelAssociation& whom,
              int shortest);
  void CreateRemark(const std::wstring& text);
  void SendElements();
  void UpdateFares();
  void Close();

  const ModelFare& At(const Fare& fare) const { return booking_.fares[fare.index]; }
  ModelAssociation Everyone() const;
  std::wstring Sent(const ModelAssociation& whom, int shortest) const;
  bool AnyHas(const std::wstring& code) const;
  int FindPWCT() const;
  double Fee() const;
  std::wstring FeePart() const;
  long Sum(std::wstring ModelFare::*amount) const;
  std::vector<std::pair<std::wstring, long>> Taxes() const;
  std::wstring ProposedTotal() const;
  std::wstring Money() const;
  bool LH() const { return agent_.office.find(L"LH0") != std::wstring::npos; }

  BookingModel& booking_;
  const ModelSettings& settings_;
  const ModelAgent& agent_;
  std::vector<Fare> fares_;
  std::vector<int> adults_;
  std::vector<int> infants_;
  bool hasInfantFare_ = false;
  bool isList_ = false;
  bool updatesFares_ = true;
  bool newPWCT_ = false;
  std::wstring airline_;
  std::vector<Element> elements_;
  Lines entries_;
};

}  // namespace run
