#pragma once

#include "hostlib/ParameterBag.h"

namespace pnr {

/// A fresh bag that addresses one element by its 0-based index.
inline hostlib::ParameterBag ElementBag(hostlib::Library& library, int index) {
  hostlib::ParameterBag bag(library);
  bag.SetValue(L"intKeyIndex", static_cast<std::int16_t>(index));
  return bag;
}

/// The same for the typed read: `element` is the kind that the index counts.
inline hostlib::ParameterBag ElementBag(hostlib::Library& library, int index,
                                        std::wstring_view element) {
  hostlib::ParameterBag bag = ElementBag(library, index);
  bag.SetValue(L"strKeyPNRElement", element);
  return bag;
}

}  // namespace pnr
