#include "tests/docs/Documents.h"

#include <filesystem>

#include "practice/host/Syntax.h"
#include "tests/docs/SourceTexts.h"

namespace docs {

std::vector<Row> CodeRows(const std::wstring& document) {
  std::vector<Row> rows;
  for (const std::wstring& line : practice::syntax::Split(document, L'\n')) {
    if (!line.starts_with(L"| `")) continue;
    Row row;
    for (const std::wstring& cell : practice::syntax::Split(line, L'|')) row.push_back(Plain(cell));
    // What stands before the first bar and behind the last.
    row.erase(row.begin());
    row.pop_back();
    rows.push_back(std::move(row));
  }
  return rows;
}

std::vector<std::wstring> CodeIn(const std::wstring& text) {
  std::vector<std::wstring> codes;
  const std::vector<std::wstring> pieces = practice::syntax::Split(text, L'`');
  for (std::size_t i = 1; i + 1 < pieces.size(); i += 2) codes.push_back(pieces[i]);
  return codes;
}

std::vector<std::string> DocumentPaths() {
  namespace fs = std::filesystem;
  std::vector<std::string> paths;
  for (const char* folder : {"", "docs"}) {
    for (const auto& entry : fs::directory_iterator(fs::path(PTA_SOURCE_DIR) / folder)) {
      if (entry.path().extension() == ".md") {
        paths.push_back(fs::relative(entry.path(), PTA_SOURCE_DIR).generic_string());
      }
    }
  }
  return paths;
}

}  // namespace docs
