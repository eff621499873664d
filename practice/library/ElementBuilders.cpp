#include "practice/library/Objects.h"

namespace practice::objects {
namespace {

using hostlib::Arguments;
using hostlib::ObjectPtr;
using hostlib::Operation;
using hostlib::Value;
namespace builder = hostlib::operations::pnr_element_builder;

std::wstring TextIn(const ParameterBagObject& bag, std::wstring_view key) {
  return bag.Get(key).Text();
}

// " [INF P1-2 S3]"; "" when the element is for all.
std::wstring Association(const ParameterBagObject& bag) {
  std::wstring words;
  const auto add = [&words](const std::wstring& prefix, const std::wstring& word) {
    if (!word.empty()) words += (words.empty() ? L"" : L" ") + prefix + word;
  };
  add(L"", TextIn(bag, L"strKeyPasID"));
  add(L"P", TextIn(bag, L"strKeyPasAsso"));
  add(L"S", TextIn(bag, L"strKeySegAsso"));
  return words.empty() ? words : L" [" + words + L"]";
}

// Without a text there is nothing to build.
std::wstring Element(const std::wstring& code, const std::wstring& text,
                     const ParameterBagObject& bag) {
  return text.empty() ? text : code + L" " + text + Association(bag);
}

std::wstring BuildFO(const ParameterBagObject& bag) {
  return L"FO " + TextIn(bag, L"strKeyMPDNumber") + L" " + TextIn(bag, L"strKeyCity") + L" " +
         TextIn(bag, L"strKeyIATANumber") + Association(bag);
}

std::wstring BuildFV(const ParameterBagObject& bag) {
  return Element(L"FV", TextIn(bag, L"strKeyText"), bag);
}

std::wstring BuildFP(const ParameterBagObject& bag) {
  std::wstring text = TextIn(bag, L"strKeyText");
  if (text.empty()) return text;
  if (bag.Get(L"blnKeyPTA").Flag() && !text.starts_with(L"O/PT/")) {
    text = L"O/PT/" + (text.starts_with(L"O/") ? text.substr(2) : text);
  }
  if (bag.Get(L"blnKeyLH").Flag() && !text.ends_with(L"AGT")) text += L"AGT";
  return Element(L"FP", text, bag);
}

std::wstring BuildFM(const ParameterBagObject& bag) {
  return Element(L"FM", TextIn(bag, L"strKeyText"), bag);
}

std::wstring BuildRM(const ParameterBagObject& bag) {
  return Element(L"RM", TextIn(bag, L"strKeyText"), bag);
}

std::wstring BuildOP(const ParameterBagObject& bag) {
  const std::wstring text = TextIn(bag, L"strKeyText");
  return L"OP " + TextIn(bag, L"strKeyDate") + (text.empty() ? L"" : L" " + text);
}

/// One kind of element.
class BuilderObject : public PracticeObject {
 public:
  BuilderObject(Workshop& workshop, const Operation& execute,
                std::wstring (*build)(const ParameterBagObject&))
      : PracticeObject(execute.object, &workshop.lastError) {
    On(execute, [build](const Arguments& a) { return Value(build(BagIn(a[0]))); });
  }
};

}  // namespace

ObjectPtr MakeBuilderFO(Workshop& workshop) {
  return workshop.Make<BuilderObject>(workshop, builder::kExecuteFO, BuildFO);
}
ObjectPtr MakeBuilderFV(Workshop& workshop) {
  return workshop.Make<BuilderObject>(workshop, builder::kExecuteFV, BuildFV);
}
ObjectPtr MakeBuilderFP(Workshop& workshop) {
  return workshop.Make<BuilderObject>(workshop, builder::kExecuteFP, BuildFP);
}
ObjectPtr MakeBuilderFM(Workshop& workshop) {
  return workshop.Make<BuilderObject>(workshop, builder::kExecuteFM, BuildFM);
}
ObjectPtr MakeBuilderRM(Workshop& workshop) {
  return workshop.Make<BuilderObject>(workshop, builder::kExecuteRM, BuildRM);
}
ObjectPtr MakeBuilderOP(Workshop& workshop) {
  return workshop.Make<BuilderObject>(workshop, builder::kExecuteOP, BuildOP);
}

}  // namespace practice::objects
