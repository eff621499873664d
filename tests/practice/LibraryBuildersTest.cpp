#include "tests/practice/LibraryObjects.h"

namespace practice {
namespace {

using hostlib::TextArray;
using testing::ElementsAre;
namespace builder = hostlib::operations::pnr_element_builder;

TEST_F(LibraryObjects, TstUpdatePiecesAreBuilt) {
  hostlib::TstUpdateRequest request(bench.library);
  const auto bag = bench.Bag({{L"strKeyTSTNum", L"2"},
                              {L"strKeyFare", L"NOK900"},
                              {L"strKeyFareIndicator", L"F"},
                              {L"strKeyEquivFare", L"SEK1000"},
                              {L"strKeyTaxArray", TextArray{}},
                              {L"blnKeyPTA", true},
                              {L"strKeyNotValidAfter", L"15MAR07"}});
  EXPECT_EQ(request.BuildTSTEntry(bag), L"TU 2 PTA");
  EXPECT_EQ(request.BuildFareEntry(bag), L"FARE F NOK900 EQUIV SEK1000");
  EXPECT_EQ(request.BuildValidityEntry(bag), L"NVA 15MAR07");
}

TEST_F(LibraryObjects, BuiltElementsAreWhatTheHostTakes) {
  const std::pair<std::wstring, std::wstring> elements[] = {
      {Build(builder::kExecuteFO, {{L"strKeyPasID", L"PAX"},
                                   {L"strKeyMPDNumber", L"117-4012345678"},
                                   {L"strKeyIATANumber", L"80246878"},
                                   {L"strKeyCity", L"STO"},
                                   {L"strKeyPasAsso", L"1-2"},
                                   {L"strKeySegAsso", L"3-4"}}),
       L"FO 117-4012345678 STO 80246878 [PAX P1-2 S3-4]"},
      {Build(builder::kExecuteFV, {{L"strKeyText", L"SK"}, {L"strKeyPasAsso", L"1,2"}}),
       L"FV SK [P1,2]"},
      {Build(builder::kExecuteFM,
             {{L"strKeyPasID", L"INF"}, {L"strKeyText", L"10"}, {L"strKeyPasAsso", L"2"}}),
       L"FM 10 [INF P2]"},
      {Build(builder::kExecuteFP, {{L"strKeyText", L"CASH"}, {L"blnKeyPTA", true}}),
       L"FP O/PT/CASH"},
      {Build(builder::kExecuteFP,
             {{L"strKeyText", L"O/CASH"}, {L"blnKeyPTA", true}, {L"blnKeyLH", true}}),
       L"FP O/PT/CASHAGT"},
      {Build(builder::kExecuteFP, {{L"strKeyText", L"O/PT/CASH"}, {L"blnKeyPTA", true}}),
       L"FP O/PT/CASH"},
      {Build(builder::kExecuteRM,
             {{L"strKeyText", L"*TEXT"}, {L"strKeyPasAsso", L""}, {L"strKeySegAsso", L"3,4"}}),
       L"RM *TEXT [S3,4]"},
      {Build(builder::kExecuteOP, {{L"strKeyText", L"CHECK"}, {L"strKeyDate", L"16MAR07"}}),
       L"OP 16MAR07 CHECK"},
      {Build(builder::kExecuteOP, {{L"strKeyText", L""}, {L"strKeyDate", L"16MAR07"}}),
       L"OP 16MAR07"},
  };
  for (const auto& [built, expected] : elements) {
    EXPECT_EQ(built, expected);
    EXPECT_TRUE(IsAccepted(built)) << common::ToUtf8(built);
  }
}

TEST_F(LibraryObjects, ElementsWithoutATextAreEmpty) {
  for (const auto* execute :
       {&builder::kExecuteFV, &builder::kExecuteFM, &builder::kExecuteFP, &builder::kExecuteRM}) {
    EXPECT_EQ(Build(*execute, {{L"strKeyText", L""}, {L"strKeyPasAsso", L"1"}}), L"");
  }
}

TEST_F(LibraryObjects, FormattedAssociationsAreTakenByTheHost) {
  const std::wstring formatted = bench.global.FormatAssociation(L"1,2");
  EXPECT_TRUE(IsAccepted(
      Build(builder::kExecuteRM, {{L"strKeyText", L"A"}, {L"strKeyPasAsso", formatted}})));
}

TEST_F(LibraryObjects, RefusedChangesAndEntriesFindNoPnr) {
  hostlib::PnrElementChange change(bench.library);
  const auto bag = bench.Bag({{L"strKeyElementNr", L"99"}, {L"strKeyNewValue", L"OK"}});
  EXPECT_EQ(change.Execute(bag), L"CH 99 OK");
  EXPECT_FALSE(
      bench.Flag(change.ReadResponse(bench.session.SendEntry(L"CH 99 OK")), L"blnKeyPNRFound"));
  EXPECT_FALSE(IsAccepted(L"RM A [P77]"));
}

TEST_F(LibraryObjects, DividedRemarksAreTakenAndLoseNothing) {
  std::wstring words;
  for (int i = 0; words.size() < 400; ++i)
    words += (i > 0 ? L" WORD" : L"WORD") + std::to_wstring(i);
  const std::wstring element =
      Build(builder::kExecuteRM,
            {{L"strKeyText", L"*" + words}, {L"strKeyPasAsso", L"1"}, {L"strKeySegAsso", L"3"}});
  const TextArray pieces = hostlib::RemarkDivider(bench.library).Divide(element);
  EXPECT_EQ(pieces.items.size(), 4u);
  std::wstring together;
  for (const std::wstring& piece : pieces.items) {
    EXPECT_LE(piece.size(), 124u);
    EXPECT_TRUE(IsAccepted(piece)) << common::ToUtf8(piece);
    ASSERT_TRUE(piece.starts_with(L"RM *WORD") && piece.ends_with(L" [P1 S3]"));
    together += (together.empty() ? L"" : L" ") + piece.substr(4, piece.size() - 12);
  }
  EXPECT_EQ(together, words);
}

TEST_F(LibraryObjects, ALongWordIsCutWhereThePieceEnds) {
  const auto pieces =
      hostlib::RemarkDivider(bench.library).Divide(L"RM " + std::wstring(130, L'A'));
  EXPECT_THAT(pieces.items, ElementsAre(L"RM " + std::wstring(121, L'A'), L"RM AAAAAAAAA"));
}

TEST_F(LibraryObjects, ALongRemarkWhoseAssociationLeavesItNoRoomIsAFailure) {
  hostlib::RemarkDivider divider(bench.library);
  const std::wstring association = L" [P" + std::wstring(116, L'1') + L"]";
  EXPECT_EQ(divider.Divide(L"RM AB" + association).items.size(), 2u);
  EXPECT_THROW(divider.Divide(L"RM A [P" + std::wstring(117, L'1') + L"]"), hostlib::LibraryError);
}

TEST_F(LibraryObjects, AShortRemarkIsOnePiece) {
  EXPECT_THAT(hostlib::RemarkDivider(bench.library).Divide(L"RM A B").items,
              ElementsAre(L"RM A B"));
}

TEST_F(LibraryObjects, QueueCommandsAreBuiltAndTheirAnswersRead) {
  hostlib::QueueRequest request(bench.library);
  const auto place = [this](std::wstring_view number, std::wstring_view category,
                            std::wstring_view office) {
    return bench.Bag({{L"strKeyQueNumber", number},
                      {L"strKeyQueCategory", category},
                      {L"strKeyQueOfficeID", office},
                      {L"blnKeyRetain", true},
                      {L"blnKeyRetrieve", false}});
  };
  EXPECT_EQ(request.BuildCommand(place(L"", L"", L"STOSK08AA")), L"");
  EXPECT_EQ(request.BuildCommand(place(L"80", L"1", L"")), L"");
  const std::wstring command = request.BuildCommand(place(L"80", L"1", L"STOSK08AA"));
  EXPECT_EQ(command, L"QE 80 CAT 1 AT STOSK08AA RETAIN");
  const auto flags = [this, &request](const std::wstring& entry) {
    const auto result = request.ReadResponse(bench.session.SendEntry(entry));
    return std::pair(bench.Flag(result, L"blnKeyQuePNR"), bench.Flag(result, L"blnKeyQueOn"));
  };
  EXPECT_EQ(flags(command), std::pair(true, true));
  EXPECT_EQ(flags(command), std::pair(false, true));
  bench.host.Enter(L"TR QUEUE OFF 81 AT STOSK08AA");
  EXPECT_EQ(flags(L"QE 81 AT STOSK08AA RETAIN"), std::pair(true, false));
  EXPECT_EQ(flags(L"QE 81 AT STOSK08AA RETAIN"), std::pair(false, false));
  bench.host.Enter(L"TR QUEUE CLOSED 82 AT STOSK08AA");
  EXPECT_EQ(flags(L"QE 82 AT STOSK08AA"), std::pair(false, false));
}

TEST_F(LibraryObjects, PrintedAndRefusedPrintsAreToldApart) {
  hostlib::PrintRequest request(bench.library);
  const std::wstring command = request.Execute(bench.Bag({{L"strKeyText", L"RT"}}));
  EXPECT_EQ(command, L"PRINT RT");
  EXPECT_TRUE(bench.Flag(request.ReadResponse(bench.session.SendEntry(command)), L"blnKeyResult"));
  bench.host.Enter(L"TR PRINTER OFF");
  EXPECT_FALSE(bench.Flag(request.ReadResponse(bench.session.SendEntry(command)), L"blnKeyResult"));
}

TEST_F(LibraryObjects, BackOfficeCommandsAreBuilt) {
  hostlib::BackOfficeRequest request(bench.library);
  EXPECT_EQ(request.Execute(bench.Bag({{L"strKeyRetain", L"False"}})), L"BT");
  EXPECT_EQ(
      request.Execute(bench.Bag(
          {{L"strKeyRetain", L"True"}, {L"strKeyPasAsso", L"1,2"}, {L"strKeySegAsso", L"3-4"}})),
      L"BT RETAIN [P1,2 S3-4]");
  EXPECT_EQ(request.Execute(bench.Bag(
                {{L"strKeyRetain", L"True"}, {L"strKeyPasAsso", L""}, {L"strKeySegAsso", L"3-4"}})),
            L"BT RETAIN [S3-4]");
}

}  // namespace
}  // namespace practice
