#include <gtest/gtest.h>

#include <set>

#include "hostlib/Interposer.h"
#include "hostlib/Recorder.h"
#include "hostlib/Requests.h"
#include "hostlib/TerminalSession.h"
#include "tests/support/ScriptedLibrary.h"

namespace hostlib {
namespace {

using Lines = std::vector<std::wstring>;

struct Bench {
  support::ScriptedLibrary scripted;
  Recorder recorder{Recorder::Objects::kShow};
  InterposedLibrary library{scripted, recorder};
};

TEST(Interposer, RecordsEveryCallWithItsInterfaceSlotNameAndAnswer) {
  Bench bench;
  bench.scripted.Answer(operations::pnr_reader::kGetRecordLocator, L"ABC123");
  bench.scripted.Answer(operations::pnr_reader::kGetHeader, {});
  {
    PnrReader reader(bench.library);
    reader.GetRecordLocator();
    reader.GetHeader(ParameterBag(bench.library));
  }
  EXPECT_EQ(
      bench.recorder.lines(),
      (Lines{L"+ PnrReader", L"PnrReader.1.29 GetRecordLocator() -> \"ABC123\"", L"+ ParameterBag",
             L"PnrReader.2.17 GetHeader(<ParameterBag>)", L"- ParameterBag", L"- PnrReader"}));
}

TEST(Interposer, GivesTheLibraryItsOwnObjectsBack) {
  Bench bench;
  bench.scripted.On(operations::queue_request::kBuildCommand, [](const Arguments& arguments) {
    return practice::BagIn(arguments[0]).Get(L"key");
  });
  ParameterBag bag(bench.library);
  bag.SetValue(L"key", L"found");
  EXPECT_EQ(QueueRequest(bench.library).BuildCommand(bag), L"found");
}

TEST(Interposer, AnObjectThatIsNoneReachesTheLibraryAsNone) {
  Bench bench;
  ParameterBag bag(bench.library);
  bag.SetValue(L"key", ObjectPtr());
  EXPECT_EQ(bench.recorder.lines().back(), L"ParameterBag.1.7 SetValue(\"key\", Nothing)");
  EXPECT_EQ(bag.GetValue(L"key"), Value(ObjectPtr()));
}

TEST(Interposer, ObjectsThatTheLibraryGivesAreRecordedToo) {
  Bench bench;
  bench.scripted.On(operations::queue_request::kReadResponse, [&](const Arguments&) {
    return Value(ObjectPtr(bench.scripted.Bag({{L"key", L"x"}})));
  });
  {
    const ParameterBag answer = QueueRequest(bench.library).ReadResponse(L"text");
    EXPECT_EQ(answer.GetValue(L"key").Text(), L"x");
    EXPECT_EQ(bench.recorder.LiveObjects(), 1);
  }
  EXPECT_EQ(bench.recorder.LiveObjects(), 0);
  EXPECT_EQ(bench.recorder.lines(),
            (Lines{L"+ QueueRequest",
                   L"QueueRequest.1.8 ReadResponse(\"text\", missing, missing) -> <ParameterBag>",
                   L"+ ParameterBag", L"- QueueRequest",
                   L"ParameterBag.1.8 GetValue(\"key\") -> \"x\"", L"- ParameterBag"}));
}

TEST(Interposer, AFailureIsRecordedAndPassedOnWithItsPlace) {
  Bench bench;
  bench.scripted.Fail(operations::remark_divider::kDivide, 77, L"broken");
  try {
    RemarkDivider(bench.library).Divide(L"x");
    FAIL() << "nothing was thrown";
  } catch (const LibraryError& error) {
    EXPECT_EQ(error.number(), 77);
    EXPECT_EQ(error.object(), L"RemarkDivider");
    EXPECT_EQ(error.operation(), L"Divide");
  }
  EXPECT_EQ(bench.recorder.lines()[1], L"RemarkDivider.1.7 Divide(\"x\") !> broken");
}

TEST(Interposer, AFurtherInterfaceIsNoFurtherObject) {
  Bench bench;
  bench.scripted.Answer(operations::print_request::kReadResponse,
                        Value(ObjectPtr(bench.scripted.Bag())));
  { PrintRequest(bench.library).ReadResponse(L"x"); }
  EXPECT_EQ(bench.recorder.LiveObjects(), 0);
}

/// A library whose objects have one interface only.
class NoFurtherInterface : public Library {
 public:
  ObjectPtr Create(std::wstring_view className) override {
    return std::make_shared<Only>(std::wstring(className));
  }

 private:
  class Only : public Object {
   public:
    explicit Only(std::wstring className) : className_(std::move(className)) {}
    std::wstring_view ClassName() const override { return className_; }
    Value Call(int, const Arguments&) override { return {}; }
    ObjectPtr Interface(int) override { throw LibraryError(1, L"test", L"no interface"); }

   private:
    std::wstring className_;
  };
};

TEST(Interposer, AnInterfaceThatCannotBeHadIsAFailureOfTheCallThatWantsIt) {
  NoFurtherInterface inner;
  Recorder recorder;
  InterposedLibrary library(inner, recorder);
  PrintRequest request(library);
  EXPECT_THROW(request.ReadResponse(L"x"), LibraryError);
  EXPECT_EQ(recorder.lines(), Lines{L"PrintRequest.2.8 ReadResponse(\"x\") !> no interface"});
}

TEST(Interposer, TheFirstInterfaceByItsNumberIsNoFurtherObject) {
  Bench bench;
  const ObjectPtr object = bench.library.Create(operations::print_request::kClass);
  object->Interface(1);
  EXPECT_EQ(bench.recorder.LiveObjects(), 1);
}

TEST(Operations, NoTwoStandInTheSamePlace) {
  std::set<std::tuple<std::wstring_view, int, int>> places;
  for (const Operation& one : AllOperations()) {
    EXPECT_TRUE(places.insert({one.object, one.interfaceNumber, one.slot}).second) << one.slot;
    EXPECT_EQ(FindOperation(one.object, one.interfaceNumber, one.slot)->name, one.name);
    EXPECT_GE(one.slot, 7);
  }
  EXPECT_EQ(FindOperation(L"PnrReader", 1, 7), nullptr);
}

// The check of the library makes an object of the first class, which the run then need not make.
TEST(Operations, TheFirstAreThoseOfTheObjectThatARunMakesFirst) {
  EXPECT_EQ(AllOperations().front().object, operations::script_global::kClass);
}

TEST(Facade, AnObjectThatWasReleasedFailsBeforeAnythingIsSent) {
  Bench bench;
  TerminalSession session;
  session.Connect(bench.library);
  session.Release();
  try {
    session.SendEntry(L"IR");
    FAIL() << "nothing was thrown";
  } catch (const LibraryError& error) {
    EXPECT_EQ(error.outcome(), LibraryError::Outcome::kNotSent);
    EXPECT_EQ(error.operation(), L"SendEntry");
  }
  EXPECT_EQ(bench.recorder.lines(), (Lines{L"+ TerminalSession", L"- TerminalSession"}));
}

TEST(TerminalSession, ASingleCommandGoesByTheOperationThatItsLengthAsksFor) {
  Bench bench;
  bench.scripted.Answer(operations::terminal_session::kSendEntry, L"short");
  bench.scripted.Answer(operations::terminal_session::kSendCommand, L"long");
  TerminalSession session;
  session.Connect(bench.library);
  EXPECT_EQ(session.SendSingle(std::wstring(75, L'X')), L"short");
  EXPECT_EQ(session.SendSingle(std::wstring(76, L'X')), L"long");
}

}  // namespace
}  // namespace hostlib
