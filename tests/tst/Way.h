#pragma once

#include <string>
#include <vector>

namespace tst {

using Lines = std::vector<std::wstring>;

/// A transcript in short, so that a whole procedure can be read at a glance: what is put into a
/// bag as `key=value`; what is read from one, by the convention of value and conversion, as
/// `<-key text "..."` or `<-key flag ...`, and without a conversion as `<-key ...`. All other calls
/// stay as they are.
Lines Way(const Lines& calls);

}  // namespace tst
