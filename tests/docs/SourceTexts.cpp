#include "tests/docs/SourceTexts.h"

#include <algorithm>
#include <cwctype>
#include <filesystem>

#include "common/Text.h"
#include "tests/run/Scenes.h"

namespace docs {
namespace {

bool IsNameCharacter(wchar_t c) { return std::iswalnum(static_cast<wint_t>(c)) != 0 || c == L'_'; }
bool IsBlank(wchar_t c) { return c == L' ' || c == L'\n' || c == L'\t' || c == L'\r'; }

/// Reads a source from front to back.
class Reader {
 public:
  Reader(std::string file, std::wstring source)
      : file_(std::move(file)), source_(std::move(source)) {}

  std::vector<SourceText> Read() {
    while (at_ < source_.size()) Step();
    return std::move(texts_);
  }

 private:
  bool Sees(std::wstring_view what) const { return source_.compare(at_, what.size(), what) == 0; }

  void Step() {
    if (Sees(L"//")) return SkipTo(L"\n");
    if (Sees(L"/*")) return SkipTo(L"*/");
    const wchar_t c = source_[at_];
    if (c == L'#' && atLineStart_) return SkipDirective();
    if (c == L'\'' && !afterName_) return SkipCharacter();
    if (c == L'"') return ReadLiteral();
    if (IsNameCharacter(c)) return ReadName();
    if (!IsBlank(c)) joins_ = false;
    if (c == L'\n') atLineStart_ = true;
    if (!IsBlank(c)) atLineStart_ = false;
    afterName_ = false;
    ++at_;
  }

  void SkipTo(std::wstring_view end) {
    const std::size_t found = source_.find(end, at_);
    at_ = found == source_.npos ? source_.size() : found + end.size();
    atLineStart_ = atLineStart_ || end == L"\n";
  }

  void SkipDirective() {
    do {
      SkipTo(L"\n");
    } while (at_ >= 2 && at_ < source_.size() && source_[at_ - 2] == L'\\');
    atLineStart_ = true;
  }

  void SkipCharacter() {
    ++at_;
    while (at_ < source_.size() && source_[at_] != L'\'') at_ += source_[at_] == L'\\' ? 2 : 1;
    ++at_;
    joins_ = false;
  }

  void ReadName() {
    const std::size_t start = at_;
    while (at_ < source_.size() && IsNameCharacter(source_[at_])) ++at_;
    atLineStart_ = false;
    const std::wstring name = source_.substr(start, at_ - start);
    const wchar_t next = at_ < source_.size() ? source_[at_] : L' ';
    afterName_ = name != L"L";
    if (!afterName_ && (next == L'"' || next == L'\'')) return;
    word_ = common::ToUtf8(name);
    joins_ = false;
  }

  void ReadLiteral() {
    std::wstring text;
    for (++at_; at_ < source_.size() && source_[at_] != L'"'; ++at_) {
      if (source_[at_] == L'\\') {
        ++at_;
        text += source_[at_] == L'r' || source_[at_] == L'n' ? L'\n' : source_[at_];
      } else {
        text += source_[at_];
      }
    }
    ++at_;
    atLineStart_ = afterName_ = false;
    if (joins_) {
      texts_.back().text += text;
    } else {
      texts_.push_back({file_, word_, text});
    }
    joins_ = true;
  }

  std::string file_;
  std::wstring source_;
  std::size_t at_ = 0;
  bool atLineStart_ = true;
  bool afterName_ = false;
  bool joins_ = false;  ///< a literal was read, and nothing but blanks since
  std::string word_;
  std::vector<SourceText> texts_;
};

}  // namespace

std::vector<SourceText> TextsOfSources(const std::vector<std::string>& folders) {
  namespace fs = std::filesystem;
  std::vector<SourceText> all;
  for (const std::string& folder : folders) {
    for (const auto& entry : fs::recursive_directory_iterator(fs::path(PTA_SOURCE_DIR) / folder)) {
      const std::string extension = entry.path().extension().string();
      if (extension != ".cpp" && extension != ".h") continue;
      const std::string file = fs::relative(entry.path(), PTA_SOURCE_DIR).generic_string();
      for (SourceText& text : Reader(file, run::ReadProjectFile(file)).Read()) {
        all.push_back(std::move(text));
      }
    }
  }
  return all;
}

const std::vector<std::string>& ProductFolders() {
  static const std::vector<std::string> folders = {"app",      "common", "errors", "fares",
                                                   "hostlib",  "mco",    "pnr",    "platform",
                                                   "settings", "tst",    "ui",     "updates"};
  return folders;
}

bool IsWording(const SourceText& text) {
  if (text.word.ends_with("Error") || text.word.ends_with("Mismatch")) return true;
  const std::wstring plain = Plain(text.text);
  const bool severalWords = plain.find(L' ') != plain.npos;
  return severalWords &&
         std::any_of(plain.begin(), plain.end(), [](wchar_t c) { return c >= L'a' && c <= L'z'; });
}

std::wstring Plain(std::wstring_view text) {
  std::wstring lines(text);
  for (const auto& [from, to] : {std::pair<std::wstring_view, std::wstring_view>{L"\n> ", L"\n"},
                                 {L"\n>", L"\n"},
                                 {L"**", L""},
                                 {L"&", L""},
                                 {L"`", L""},
                                 {L"\\", L""}}) {
    lines = common::Replace(lines, from, to);
  }
  std::wstring plain;
  for (const wchar_t c : lines) {
    const wchar_t shown = IsBlank(c) ? L' ' : c;
    if (shown != L' ' || (!plain.empty() && plain.back() != L' ')) plain += shown;
  }
  return common::Trim(plain);
}

}  // namespace docs
