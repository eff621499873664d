#include "practice/host/ElementRules.h"
#include "practice/host/Syntax.h"
#include "practice/library/Objects.h"

namespace practice::objects {
namespace {

using display_lines::FirstWord;
using hostlib::Arguments;
using hostlib::ObjectPtr;
using hostlib::Operation;
using hostlib::TextArray;
using hostlib::Value;
namespace pnr_reader = hostlib::operations::pnr_reader;

// Codes are asked for as agents write them in settings.
std::wstring DisplayCode(const std::wstring& asked) {
  if (asked == L"OSI") return L"OS";
  return asked;
}

std::wstring AfterFirstWord(const std::wstring& text) {
  const std::size_t blank = text.find(L' ');
  return blank == text.npos ? std::wstring() : text.substr(blank + 1);
}

// The value behind a name, as in NET SEK800 SELL 1000.
std::wstring NamedWord(const std::wstring& text, std::wstring_view name) {
  const std::vector<std::wstring> words = syntax::Words(text);
  for (std::size_t i = 0; i + 1 < words.size(); i += 2) {
    if (words[i] == name) return words[i + 1];
  }
  return {};
}

// Every element number written out, behind the type of passenger.
std::wstring ElementList(const display_lines::AssociationWords& association) {
  std::wstring list = association.type == L"INF" ? association.type : std::wstring();
  const auto numbers = syntax::ReadNumbers(association.passengers);
  if (association.passengers.empty() || !numbers) return list;
  for (std::size_t i = 0; i < numbers->size(); ++i) {
    list += (i > 0 ? L"," : L"") + std::to_wstring((*numbers)[i]);
  }
  return list;
}

/// Reads the PNR as the session loaded it last.
class PnrReaderObject : public PracticeObject {
 public:
  explicit PnrReaderObject(Workshop& workshop)
      : PracticeObject(pnr_reader::kClass, &workshop.lastError), workshop_(workshop) {
    Count(pnr_reader::kCountSegments, L"SG");
    Count(pnr_reader::kCountFPElements, L"FP");
    Count(pnr_reader::kCountRMElements, L"RM");
    Count(pnr_reader::kCountTKElements, L"TK");
    Count(pnr_reader::kCountNameElements, L"NM");
    Count(pnr_reader::kCountOPElements, L"OP");
    Count(pnr_reader::kCountFSElements, L"FS");
    Count(pnr_reader::kCountOSIElements, L"OS");
    Count(pnr_reader::kCountMCOElements, L"MCO");
    On(pnr_reader::kGetRecordLocator, [this](const Arguments&) { return Value(Loaded().locator); });
    On(pnr_reader::kGetHeader, [this](const Arguments& a) {
      BagIn(a[0]).Set(L"strKeyOfficeID", Loaded().office);
      return Value();
    });
    Read(pnr_reader::kGetSegment, L"SG", ReadSegment);
    Read(pnr_reader::kGetNameElement, L"NM", ReadPlain);
    Read(pnr_reader::kGetRMElement, L"RM", ReadRemark);
    Read(pnr_reader::kGetTKElement, L"TK", ReadTicketing);
    Read(pnr_reader::kGetOPElement, L"OP", ReadPlain);
    On(pnr_reader::kFindElements, [this](const Arguments& a) { return Find(a[0]); });
  }

 private:
  using Reader = void (*)(const PnrLine&, ParameterBagObject&);

  const PnrDisplayText& Loaded() const {
    if (!workshop_.loaded) RaiseFailure(kNoPnr, L"No PNR has been loaded");
    return *workshop_.loaded;
  }

  void Count(const Operation& operation, std::wstring_view code) {
    On(operation, [this, code](const Arguments&) {
      return Value(static_cast<std::int16_t>(Loaded().All(code).size()));
    });
  }

  void Read(const Operation& operation, std::wstring_view code, Reader reader) {
    On(operation, [this, code, reader](const Arguments& a) {
      ReadInto(BagIn(a[0]), code, reader);
      return Value();
    });
  }

  void ReadInto(ParameterBagObject& bag, std::wstring_view code, Reader reader) {
    const int index = bag.Get(L"intKeyIndex").Integer();
    const std::vector<const PnrLine*> lines = Loaded().All(code);
    if (index < 0 || static_cast<std::size_t>(index) >= lines.size()) {
      RaiseFailure(kNoElement, L"The PNR has no " + std::wstring(code) + L" element with index " +
                                   std::to_wstring(index));
    }
    reader(*lines[static_cast<std::size_t>(index)], bag);
  }

  // A search gives a bag of its own; the typed read of one element fills the bag it was given.
  Value Find(const hostlib::ValueView& argument) {
    ParameterBagObject& bag = BagIn(argument);
    const std::wstring type = bag.Get(L"strKeyPNRElement").Text();
    if (!bag.Has(L"intKeyIndex")) return Search(bag, type);
    if (type == L"MCO") {
      ReadInto(bag, L"MCO", ReadMco);
    } else if (type == L"OSI") {
      ReadInto(bag, L"OS", ReadOsi);
    } else if (type == L"FS") {
      ReadInto(bag, L"FS", ReadFare);
    } else {
      RaiseFailure(kNoElement, L"Elements of type " + type + L" can not be read so");
    }
    return Value(argument);
  }

  // With ALL the search text is an element code, else a part of the text of such elements.
  Value Search(ParameterBagObject& bag, const std::wstring& type) {
    const TextArray find = hostlib::TextsOf(bag.Get(L"strKeyFind()"));
    if (find.UpperBound() < 1) RaiseFailure(kNoElement, L"There is no text to search for");
    const std::wstring& sought = find.items[static_cast<std::size_t>(1 - find.lowerBound)];
    const bool byCode = type == L"ALL";
    TextArray result{{L""}, 0};
    for (const PnrLine* line : Loaded().All(DisplayCode(byCode ? sought : type))) {
      if (byCode || line->text.find(sought) != std::wstring::npos) {
        result.items.push_back(line->whole);
      }
    }
    const auto answer = workshop_.MakeBag();
    answer->Set(L"strKeyResult()", workshop_.MakeList(std::move(result)));
    return ObjectPtr(answer);
  }

  static void ReadPlain(const PnrLine& line, ParameterBagObject& bag) {
    bag.Set(L"strKeyElement", line.text);
    bag.Set(L"strKeyElementNr", line.number);
  }

  static void ReadSegment(const PnrLine& line, ParameterBagObject& bag) {
    const SegmentParts parts = PartsOf(line.text);
    bag.Set(L"strKeySegment", line.whole);
    bag.Set(L"strKeyDepCity", parts.from);
    bag.Set(L"strKeyArrCity", parts.to);
  }

  static void ReadRemark(const PnrLine& line, ParameterBagObject& bag) {
    bag.Set(L"strKeyText", line.text);
    bag.Set(L"strKeyPasAsso", line.association.passengers);
    bag.Set(L"strKeySegAsso", line.association.segments);
    bag.Set(L"strKeyElementNr", line.number);
  }

  static void ReadTicketing(const PnrLine& line, ParameterBagObject& bag) {
    ReadPlain(line, bag);
    bag.Set(L"strKeyAction", FirstWord(line.text.substr(0, line.text.find(L'/'))));
  }

  static void ReadMco(const PnrLine& line, ParameterBagObject& bag) {
    const std::wstring airline = line.text.substr(0, line.text.find(L','));
    bag.Set(L"strKeyElementNr", line.number);
    bag.Set(L"strKeyElement", line.code + L" " + line.text);
    bag.Set(L"strKeyAirline", airline == L"--" ? std::wstring() : airline);
    bag.Set(L"strKeyMCOFATicketNbr", McoField(line.text, L"FA"));
    bag.Set(L"strKeyMCOFMElement", McoField(line.text, L"FM"));
    bag.Set(L"strKeyMCOFPElement", McoField(line.text, L"FP"));
  }

  static void ReadOsi(const PnrLine& line, ParameterBagObject& bag) {
    bag.Set(L"strKeyElementNr", line.number);
    bag.Set(L"strKeyElement", AfterFirstWord(line.text));
    bag.Set(L"strKeyAirline", FirstWord(line.text));
  }

  static void ReadFare(const PnrLine& line, ParameterBagObject& bag) {
    ReadPlain(line, bag);
    bag.Set(L"strKeyNetFare", NamedWord(line.text, L"NET"));
    bag.Set(L"strKeySellFare", NamedWord(line.text, L"SELL"));
    bag.Set(L"strKeyTourCode", NamedWord(line.text, L"TOUR"));
    bag.Set(L"strKeyPasAsso", ElementList(line.association));
    bag.Set(L"strKeySegAsso", line.association.segments);
  }

  Workshop& workshop_;
};

}  // namespace

ObjectPtr MakePnrReader(Workshop& workshop) { return workshop.Make<PnrReaderObject>(workshop); }

}  // namespace practice::objects
