#pragma once

#include <oaidl.h>
#include <windows.h>

#include <functional>

#include "hostlib/Value.h"

namespace practice::terminal {

/// How an object of the library goes out as a COM object, and comes back.
struct ObjectPassage {
  /// With a reference of its own.
  std::function<IDispatch*(const hostlib::ObjectPtr&)> out;
  std::function<hostlib::ObjectPtr(IUnknown*)> in;
};

/// Reads a variant as it comes from a client, by-reference values included. Throws LibraryError
/// (type mismatch) for a kind that the library does not know.
hostlib::Value FromVariant(const VARIANT& variant, const ObjectPassage& passage);

/// Fills an empty variant.
void ToVariant(const hostlib::Value& value, const ObjectPassage& passage, VARIANT& variant);

/// A text that the receiver frees. Throws std::bad_alloc.
BSTR NewText(std::wstring_view text);
/// A null text is "".
std::wstring TextOf(BSTR text);

}  // namespace practice::terminal
