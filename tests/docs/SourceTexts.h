#pragma once

#include <string>
#include <vector>

// What the program's sources can put before the agent's eyes, and what the documents say of it.
namespace docs {

/// A text literal of a source; neighbours that the compiler joins are one.
struct SourceText {
  std::string file;
  std::string word;  ///< the name that stands last before it: what is called, or assigned
  std::wstring text;
};

/// The text literals of the C++ sources in these folders of the checkout, subfolders included.
/// Comments and preprocessor lines do not count.
std::vector<SourceText> TextsOfSources(const std::vector<std::string>& folders);

/// The rooms that PTA_QX.exe is built of.
const std::vector<std::string>& ProductFolders();

/// Whether a literal is words for a reader: several words with small letters in them, or whatever
/// a failure is described with.
bool IsWording(const SourceText& text);

/// Line ends, tabs and several blanks as one blank; without the marks of menus, quotations, code
/// and bold print.
std::wstring Plain(std::wstring_view text);

}  // namespace docs
