#pragma once

#include "practice/library/PracticeLibrary.h"
#include "practice/terminal/Desk.h"
#include "practice/terminal/Exporter.h"

namespace practice::terminal {

/// What the terminal offers by COM: the script library's objects, and the trainer's desk.
class OfferedLibrary : public hostlib::Library {
 public:
  OfferedLibrary(PracticeLibrary& library, Desk& desk, const Exporter& exporter)
      : library_(library), desk_(desk), exporter_(exporter) {}

  hostlib::ObjectPtr Create(std::wstring_view className) override;

 private:
  PracticeLibrary& library_;
  Desk& desk_;
  const Exporter& exporter_;
};

}  // namespace practice::terminal
