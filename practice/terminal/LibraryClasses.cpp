// The classes themselves are written at build time, from Library.cmake.
#include "VantelPractice.h"
#include "practice/terminal/Dual.h"

namespace practice::terminal {
namespace {

template <typename PartClass, typename Base>
PartEntry PartOf() {
  return {&__uuidof(Base), [](ComObject& owner, const hostlib::ObjectPtr& target) {
            return std::unique_ptr<Part>(std::make_unique<PartClass>(owner, target));
          }};
}

#include "LibraryClasses.inc"

}  // namespace

std::span<const LibraryClass> LibraryClasses() { return kLibraryClasses; }

const LibraryClass* FindClass(std::wstring_view name) {
  for (const LibraryClass& one : kLibraryClasses) {
    if (one.name == name) return &one;
  }
  return nullptr;
}

}  // namespace practice::terminal
