#pragma once

#include <string>
#include <vector>

namespace docs {

using Row = std::vector<std::wstring>;

/// The rows of a document's tables whose first cell is code, cell by cell, as plain words.
std::vector<Row> CodeRows(const std::wstring& document);

/// What stands in `code` in a text, in order.
std::vector<std::wstring> CodeIn(const std::wstring& text);

/// The paths of the checkout's documents.
std::vector<std::string> DocumentPaths();

}  // namespace docs
