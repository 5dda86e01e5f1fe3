#include "CallbackList.h"

#include <gmock/gmock.h>

#include "Dialog.h"
#include "support/FormTest.h"

namespace Wexa {
namespace {

using List = CallbackList<int>;

TEST(CallbackListTest, CallsInTheOrderOfConnecting) {
  List list;
  std::vector<int> got;
  list.Connect([&](int n) { got.push_back(n); });
  list.Connect([&](int n) { got.push_back(10 * n); });
  list(3);
  EXPECT_THAT(got, testing::ElementsAre(3, 30));
}

TEST(CallbackListTest, ADisconnectedCallableIsNotCalledEvenInTheSameFiring) {
  List list;
  int calls = 0;
  List::ConnectionId second = 0;
  list.Connect([&](int) { list.Disconnect(second); });
  second = list.Connect([&](int) { ++calls; });
  list(1);
  EXPECT_EQ(calls, 0);
  list.Disconnect(second);
  list.Disconnect(77);
}

TEST(CallbackListTest, ACallableConnectedWhileFiringIsCalledTheNextTime) {
  List list;
  int calls = 0;
  auto id = list.Connect([&](int) { list.Connect([&](int) { ++calls; }); });
  list(1);
  EXPECT_EQ(calls, 0);
  list.Disconnect(id);
  list(1);
  EXPECT_EQ(calls, 1);
}

TEST(CallbackListTest, AListThatDiesWhileItFiresCallsNobodyElse) {
  auto list = std::make_unique<List>();
  int calls = 0;
  list->Connect([&](int) { list.reset(); });
  list->Connect([&](int) { ++calls; });
  (*list)(1);
  EXPECT_EQ(calls, 0);
}

TEST(CallbackListTest, ABlockedListDoesNothing) {
  List list;
  int calls = 0;
  list.Connect([&](int) { ++calls; });
  list.Block(true);
  list(1);
  list.Block(false);
  list(1);
  EXPECT_EQ(calls, 1);
}

TEST(CallbackListTest, AnEmptyCallableThrowsAndLeavesTheListUsable) {
  List list;
  auto id = list.Connect(List::Callback());
  EXPECT_THROW(list(1), std::bad_function_call);
  list.Disconnect(id);
  list(1);
}

TEST(CallbackListTest, AScopedConnectionEndsWithItsObject) {
  List list;
  int calls = 0;
  {
    ScopedConnection connection(list, list.Connect([&](int) { ++calls; }));
    ScopedConnection moved = std::move(connection);
    list(1);
  }
  list(1);
  EXPECT_EQ(calls, 1);
  EXPECT_TRUE(list.IsEmpty());
}

TEST(CallbackListTest, AScopedConnectionEndsTheOneItReplaces) {
  List list;
  std::string got;
  ScopedConnection connection(list, list.Connect([&](int) { got += 'a'; }));
  connection = ScopedConnection(list, list.Connect([&](int) { got += 'b'; }));
  list(1);
  EXPECT_EQ(got, "b");
  connection.Release();
  connection.Disconnect();
  list(1);
  EXPECT_EQ(got, "bb");
}

TEST(CallbackListTest, AScopedConnectionMayOutliveItsList) {
  auto list = std::make_unique<List>();
  ScopedConnection connection(*list, list->Connect([](int) {}));
  list.reset();
  connection.Disconnect();
}

TEST(CallbackListTest, AScopedConnectionMayEndInItsOwnCall) {
  List list;
  int calls = 0;
  ScopedConnection connection;
  connection = ScopedConnection(list, list.Connect([&](int) {
    connection.Disconnect();
    ++calls;
  }));
  list(1);
  list(1);
  EXPECT_EQ(calls, 1);
}

TEST(CallbackListTest, ASenderOfADeadListDoesNothing) {
  auto list = std::make_unique<List>();
  int calls = 0;
  list->Connect([&](int) { ++calls; });
  auto send = list->GetSender();
  send(1);
  list.reset();
  send(1);
  EXPECT_EQ(calls, 1);
}

class QueuedCallTest : public FormTest {};

TEST_F(QueuedCallTest, CallsForAReceiverThatIsGoneAreDropped) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit")));
  List list;
  int calls = 0;
  list.Connect(dialog_.get(), [&](int) { ++calls; });
  list(1);
  dialog_.reset();
  list(1);
  Robot::PumpAll();
  EXPECT_EQ(calls, 0);
}

TEST_F(QueuedCallTest, ReferencesReachWhoIsCalledAtOnceAndCopiesWhoIsCalledLater) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit")));
  CallbackList<std::vector<int>&> list;
  std::size_t seen = 0;
  list.Connect([](std::vector<int>& values) { values.push_back(2); });
  list.Connect(dialog_.get(), [&](std::vector<int>& values) {
    values.push_back(3);
    seen = values.size();
  });
  std::vector<int> values{1};
  list(values);
  Robot::PumpAll();
  EXPECT_EQ(values, (std::vector<int>{1, 2}));
  EXPECT_EQ(seen, 3u);
}

TEST_F(QueuedCallTest, AReceiverGetsCallsAgainWhenItsWindowIsBack) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit")));
  List list;
  int calls = 0;
  list.Connect(dialog_.get(), [&](int n) { calls += n; });
  dialog_->Done(Dialog::Rejected);
  list(1);
  dialog_->DoModeless(true);
  list(10);
  Robot::PumpAll();
  EXPECT_EQ(calls, 10);
}

TEST_F(QueuedCallTest, CallsKeepTheirOrderAndLeaveNothingBehind) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit")));
  const auto held = std::make_shared<int>();
  CallbackList<std::shared_ptr<int>, int> list;
  std::vector<int> got;
  list.Connect(dialog_.get(), [&](const std::shared_ptr<int>&, int n) { got.push_back(n); });
  for (int n = 0; n < 3; ++n) list(held, n);
  dialog_->Done(Dialog::Rejected);
  dialog_->DoModeless(true);
  for (int n = 10; n < 13; ++n) {
    list(held, n);
    Robot::PumpAll();
  }
  EXPECT_THAT(got, testing::ElementsAre(10, 11, 12));
  EXPECT_EQ(held.use_count(), 2) << "of the latest call alone";
}

TEST_F(QueuedCallTest, ACallMayEndItsReceiverAndItsList) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit")));
  int calls = 0;
  auto list = std::make_unique<List>();
  list->Connect(dialog_.get(), [&](int) {
    ++calls;
    list.reset();
    dialog_.reset();
  });
  (*list)(1);
  (*list)(2);
  Robot::PumpAll();
  EXPECT_EQ(calls, 1);
}

TEST_F(QueuedCallTest, ArgumentsAreCopied) {
  Open(ColumnForm(WidgetItem("QLineEdit", "edit")));
  CallbackList<std::wstring> list;
  std::wstring got;
  list.Connect(dialog_.get(), [&](std::wstring text) { got = text; });
  {
    std::wstring text = L"a text that is long enough for the heap";
    list(text);
  }
  Robot::PumpAll();
  EXPECT_EQ(got, L"a text that is long enough for the heap");
}

}  // namespace
}  // namespace Wexa
