#include "hostlib/com/LibraryCheck.h"
#include "tests/run/Scenes.h"
#include "tests/windows/com/run/RoundTrips.h"
#include "tests/windows/com/run/RunningTerminal.h"

// What a call costs once its class is bound: every question to the terminal's process is counted.
namespace com_run {
namespace {

using hostlib::Value;

class RoundTripsOfACall : public RunningTerminal {
 protected:
  /// A terminal with an open booking and a bound library.
  void Open() {
    Start();
    RoundTrips::Watch();
    Set(run::OrdinaryScene());
    hostlib::com::CheckUsedOperations(library_);
    session_ = library_.Create(L"TerminalSession");
    session_->Call(9, {});
    reader_ = library_.Create(L"PnrReader");
    bag_ = library_.Create(L"ParameterBag");
  }

  /// The round trips of an action that has been done before. What it gives is kept: to let an
  /// object go is a round trip of its own.
  template <typename Action>
  int Of(Action action) {
    kept_.push_back(action());
    const int before = RoundTrips::Count();
    kept_.push_back(action());
    const int trips = RoundTrips::Count() - before;
    most_ = std::max(most_, trips);
    return trips;
  }

  static void TearDownTestSuite() {
    std::cout << "COM round trips of a call after binding: " << most_ << "\n";
  }

  hostlib::ObjectPtr session_;
  hostlib::ObjectPtr reader_;
  hostlib::ObjectPtr bag_;
  std::vector<Value> kept_;
  static int most_;

  void TearDown() override {
    kept_.clear();
    bag_ = reader_ = session_ = nullptr;
  }
};

int RoundTripsOfACall::most_ = 0;

TEST_F(RoundTripsOfACall, IsOneForATextANumberAndAnEntry) {
  Telling([this] {
    Open();
    EXPECT_EQ(Of([this] { return reader_->Call(29, {}); }), 1);
    EXPECT_EQ(Of([this] { return reader_->Call(27, {}); }), 1);
    EXPECT_EQ(Of([this] { return session_->Call(11, {Value(L"RT")}); }), 1);
  });
}

TEST_F(RoundTripsOfACall, IsOneForWritingAndReadingABag) {
  Telling([this] {
    Open();
    for (const Value& value : {Value(L"a"), Value(true), Value(std::int16_t{3}), Value(0.5),
                               Value(hostlib::TextArray{{L"a", L"b"}, 1})}) {
      EXPECT_EQ(Of([&] { return bag_->Call(7, {Value(L"key"), value}); }), 1);
      EXPECT_EQ(Of([&] { return bag_->Call(8, {Value(L"key")}); }), 1);
    }
  });
}

TEST_F(RoundTripsOfACall, IsOneForAnAnswerThatIsABag) {
  Telling([this] {
    Open();
    const auto request = library_.Create(L"TstListRequest");
    const Value response = session_->Call(11, {Value(L"TQT")});
    EXPECT_EQ(Of([&] { return request->Call(10, {response}); }), 1);
  });
}

TEST_F(RoundTripsOfACall, IsOneForAListAndOneForItsArray) {
  Telling([this] {
    Open();
    bag_->Call(7, {Value(L"strKeyPNRElement"), Value(L"ALL")});
    bag_->Call(7, {Value(L"strKeyFind()"), Value(hostlib::TextArray{{L"", L"AP"}, 0})});
    const auto found = reader_->Interface(3)->Call(7, {Value(bag_)}).AsObject();
    EXPECT_EQ(Of([&] { return found->Call(8, {Value(L"strKeyResult()")}); }), 1);
    const auto list = found->Call(8, {Value(L"strKeyResult()")}).AsObject();
    EXPECT_EQ(Of([&] { return list->Call(hostlib::kDefaultMember, {}); }), 1);
  });
}

// As every request has one. A bag that is handed over again may cost one more: it takes references
// along, of which the system keeps few in stock.
TEST_F(RoundTripsOfACall, IsOneWithAFreshBag) {
  Telling([this] {
    Open();
    const auto further = reader_->Interface(2);
    const auto other = library_.Create(L"ParameterBag");
    for (const auto& bag : {bag_, other}) {
      bag->Call(7, {Value(L"intKeyIndex"), Value(std::int16_t{0})});
    }
    auto next = {Value(bag_), Value(other)};
    const auto* bag = next.begin();
    EXPECT_EQ(Of([&] { return further->Call(17, {*bag++}); }), 1);
  });
}

// The class is registered with its type library, which is read in this process.
TEST_F(RoundTripsOfACall, IsOneForTheVeryFirst) {
  Telling([this] {
    Start();
    RoundTrips::Watch();
    const auto session = library_.Create(L"TerminalSession");
    const int before = RoundTrips::Count();
    ASSERT_GT(before, 0);
    session->Call(9, {});
    EXPECT_EQ(RoundTrips::Count() - before, 1);
  });
}

// ... and has the other classes, too.
TEST_F(RoundTripsOfACall, IsOneForTheFirstCallOfAFurtherClass) {
  Telling([this] {
    Start();
    RoundTrips::Watch();
    library_.Create(L"TerminalSession")->Call(9, {});
    const auto bag = library_.Create(L"ParameterBag");
    const int before = RoundTrips::Count();
    ASSERT_GT(before, 0);
    bag->Call(7, {Value(L"intKeyIndex"), Value(std::int16_t{0})});
    EXPECT_EQ(RoundTrips::Count() - before, 1);
  });
}

/// Counts the calls, and the objects that are made.
class CallCount : public hostlib::CallHook {
 public:
  int calls = 0;
  int objects = 0;

  void ObjectCreated(std::wstring_view) override { ++objects; }
  Value OnCall(const hostlib::CallInfo&, const std::function<Value()>& proceed) override {
    ++calls;
    return proceed();
  }
};

// No promise: what it costs to make an object and to let it go is the system's.
TEST_F(RoundTripsOfACall, AreCountedForTheOrdinaryRun) {
  Telling([this] {
    Open();
    CallCount count;
    const int before = RoundTrips::Count();
    const auto outcome = Run(run::OrdinaryScene(), count);
    const int trips = RoundTrips::Count() - before;
    EXPECT_EQ(outcome.disagreement, L"");
    EXPECT_GE(trips, count.calls);
    std::cout << "COM round trips of the ordinary run: " << trips << " for " << count.calls
              << " calls and " << count.objects << " objects made and let go\n";
  });
}

}  // namespace
}  // namespace com_run
