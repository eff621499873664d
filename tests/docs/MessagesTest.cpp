#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cwchar>
#include <regex>

#include "common/Text.h"
#include "tests/docs/SourceTexts.h"
#include "tests/run/Scenes.h"

// docs/messages.md has every message that the program can show, and no other.
namespace docs {
namespace {

/// One message of the appendix: its heading, which is its first line, and all that is said of it.
struct Message {
  std::wstring heading;
  std::wstring whole;
};

std::vector<Message> Messages() {
  std::vector<Message> messages;
  std::wstring text = L"\n" + run::ReadProjectFile("docs/messages.md");
  std::size_t at = text.find(L"\n### ");
  while (at != text.npos) {
    const std::size_t end = text.find(L"\n#", at + 5);
    const std::wstring whole = text.substr(at + 5, end == text.npos ? end : end - at - 5);
    messages.push_back({Plain(whole.substr(0, whole.find(L'\n'))), Plain(whole)});
    at = end == text.npos ? end : text.find(L"\n### ", end);
  }
  return messages;
}

const Message* MessageWith(const std::vector<Message>& messages, const std::wstring& words,
                           const std::wstring& number) {
  for (const Message& message : messages) {
    if (common::Contains(message.whole, words) && common::Contains(message.whole, number)) {
      return &message;
    }
  }
  return nullptr;
}

/// A row of errors/Procedures.h.
struct Report {
  std::wstring name;
  std::wstring words;
  std::wstring number;
};

std::vector<Report> Reports() {
  const std::wstring source = run::ReadProjectFile("errors/Procedures.h");
  const std::wregex row(LR"(constexpr Procedure (k\w+)\{((?:\s*L"(?:[^"\\]|\\.)*")+),\s*(\d+))");
  const std::wregex piece(LR"(L"((?:[^"\\]|\\.)*)\")");
  std::vector<Report> reports;
  for (std::wsregex_iterator at(source.begin(), source.end(), row), end; at != end; ++at) {
    const std::wstring literals = (*at)[2];
    std::wstring words;
    for (std::wsregex_iterator part(literals.begin(), literals.end(), piece); part != end; ++part) {
      words += (*part)[1];
    }
    words = common::Replace(words, L"\\r", L"\n");
    reports.push_back({(*at)[1], Plain(words), (*at)[3]});
  }
  return reports;
}

// Words of the sources that nobody reads: a font's name, a caption that the dialog replaces before
// it is shown, and an instruction of the processor.
bool IsNoMessage(const SourceText& text) {
  return text.text == L"Courier New" || text.text == L"PTA - Prepaid Ticket Advice" ||
         text.text == L"int $0x29";
}

TEST(Messages, OfTheTableOfReportsAreAllThereWithTheirNumbers) {
  const std::vector<Message> messages = Messages();
  const std::vector<Report> reports = Reports();
  // As many rows as the table has declarations: none is written in a form that is not seen here.
  const std::wstring source = run::ReadProjectFile("errors/Procedures.h");
  std::size_t rows = 0;
  for (std::size_t at = source.find(L"constexpr Procedure "); at != source.npos;
       at = source.find(L"constexpr Procedure ", at + 1)) {
    ++rows;
  }
  EXPECT_EQ(reports.size(), rows);
  for (const Report& report : reports) {
    EXPECT_NE(MessageWith(messages, report.words, L"Number " + report.number + L"."), nullptr)
        << common::ToUtf8(report.name) << ": " << common::ToUtf8(report.words) << " with number "
        << common::ToUtf8(report.number);
  }
}

/// "Number | As code | heading" of every message with a number, in the order of the numbers.
std::vector<std::wstring> NumberedMessages() {
  std::vector<std::pair<int, std::wstring>> numbered;
  const std::wregex number(LR"(Number (\d+)\.)");
  for (const Message& message : Messages()) {
    std::wsmatch match;
    if (!std::regex_search(message.whole, match, number)) continue;
    numbered.emplace_back(std::stoi(match[1]), message.heading);
  }
  std::stable_sort(numbered.begin(), numbered.end(),
                   [](const auto& one, const auto& other) { return one.first < other.first; });
  std::vector<std::wstring> rows;
  for (const auto& [value, heading] : numbered) {
    std::array<wchar_t, 16> code = {};
    std::swprintf(code.data(), code.size(), L"0x%08X", 0x80040000U + static_cast<unsigned>(value));
    rows.push_back(std::to_wstring(value) + L" | " + code.data() + L" | " + heading);
  }
  return rows;
}

TEST(Messages, WithANumberStandInTheTableByNumber) {
  const std::wregex row(LR"(\n\| (\d+ \| 0x[0-9A-F]{8} \| )\[([^\]]*)\]\(#)");
  const std::wstring page = run::ReadProjectFile("docs/messages.md");
  std::vector<std::wstring> rows;
  for (std::wsregex_iterator at(page.begin(), page.end(), row), end; at != end; ++at) {
    rows.push_back((*at)[1].str() + Plain((*at)[2].str()));
  }
  EXPECT_GT(rows.size(), 50U);
  EXPECT_EQ(rows, NumberedMessages());
}

TEST(Messages, OfWhateverSourceStandInTheAppendixOrTheUserGuide) {
  const std::wstring said = Plain(run::ReadProjectFile("docs/messages.md") + L"\n" +
                                  run::ReadProjectFile("docs/user-guide.md"));
  for (const SourceText& text : TextsOfSources(ProductFolders())) {
    if (!IsWording(text) || IsNoMessage(text)) continue;
    EXPECT_TRUE(common::Contains(said, Plain(text.text)))
        << text.file << ": " << common::ToUtf8(Plain(text.text));
  }
}

TEST(Messages, AreAllOnesThatTheProgramHas) {
  std::vector<std::string> folders = ProductFolders();
  folders.push_back("practice/terminal");
  std::wstring sources;
  for (const SourceText& text : TextsOfSources(folders)) sources += Plain(text.text) + L"\n";
  for (const Message& message : Messages()) {
    EXPECT_TRUE(common::Contains(sources, message.heading)) << common::ToUtf8(message.heading);
  }
}

TEST(Messages, SayWhatTheyMeanAndWhatToDo) {
  const std::vector<Message> messages = Messages();
  EXPECT_GT(messages.size(), 60U);
  for (const Message& message : messages) {
    EXPECT_TRUE(common::Contains(message.whole, L"Meaning.")) << common::ToUtf8(message.heading);
    EXPECT_TRUE(common::Contains(message.whole, L"What to do.")) << common::ToUtf8(message.heading);
  }
}

}  // namespace
}  // namespace docs
